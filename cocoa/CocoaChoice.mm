#include "cocoa/CocoaChoice.h"

#include "cocoa/BundleClasses.h"
#include "cocoa/CocoaControls.h"
#include "cocoa/NativeObject.h"

using kwopde::cocoa::NativeObject;
using kwopde::cocoa::stringFrom;

struct PDEChoiceParts {
  NativeObject<kwopde::PDEChoice> core;
  NSString *userTitle = nil;  // owned, made once
  NSString *ppdTitle = nil;
};

@interface PDEChoice (Core) <KWOPDECoreObject>
/// The core's choice that stands for this object; it retains it.
- (std::shared_ptr<kwopde::PDEChoice>)core;
@end

@implementation PDEChoice
+ (void)initialize {
  kwopde::PDEChoice::initialize();
}

+ (id)choiceWithChoice:(ppd_choice_t *)choice {
  return [[[self alloc] initWithChoice:choice] autorelease];
}

- (id)initWithChoice:(ppd_choice_t *)choice {
  if ((self = [super init])) {
    parts = new PDEChoiceParts{NativeObject<kwopde::PDEChoice>(self, choice)};
  }
  return self;
}

- (void)dealloc {
  if (parts) {
    [parts->userTitle release];
    [parts->ppdTitle release];
    delete parts;
  }
  [super dealloc];
}

- (NSString *)userTitle {
  if (!parts->userTitle) parts->userTitle = [stringFrom(parts->core.userTitle()) retain];
  return parts->userTitle;
}

- (NSString *)ppdTitle {
  if (!parts->ppdTitle) parts->ppdTitle = [stringFrom(parts->core.ppdTitle()) retain];
  return parts->ppdTitle;
}

- (ppd_choice_t *)choice {
  return parts->core.choice();
}

- (BOOL)isDefaultChoice {
  return parts->core.isDefaultChoice();
}

- (NSString *)description {
  std::string text;
  parts->core.PDEChoice::appendDescription(text);
  return stringFrom(text);
}

- (std::shared_ptr<kwopde::PDEChoice>)core {
  PDEChoice *object = [self retain];
  return {&parts->core, [object](kwopde::PDEChoice *) { [object release]; }};
}

- (std::shared_ptr<kwopde::Object>)coreObject {
  return [self core];
}
@end

// A name that is not the core's class inside its namespace.
@compatibility_alias CocoaChoice PDEChoice;

std::shared_ptr<kwopde::PDEChoice> kwopde::cocoa::makeChoice(ppd_choice_t *choice) {
  return [[CocoaChoice choiceWithChoice:choice] core];
}
