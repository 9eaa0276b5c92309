#include "cocoa/CocoaInterfaceLoader.h"

#import <AppKit/AppKit.h>

#include "cocoa/CocoaControls.h"
#include "cocoa/Strings.h"

using kwopde::cocoa::textOf;

/// Whom every interface file is loaded for. It takes any outlet ("setNAME:") and any action by
/// forwarding, and hands them on by name.
@interface KWOPDEInterfaceOwner : NSObject {
@public
  kwopde::InterfaceOwner *owner;  // borrowed; null once the panel's view is gone
  NSView *view;                   // the outlet pdeView; borrowed
  NSMutableDictionary *outlets;
}
@end

@implementation KWOPDEInterfaceOwner
- (id)init {
  if ((self = [super init])) outlets = [[NSMutableDictionary alloc] init];
  return self;
}

- (void)dealloc {
  [outlets release];
  [super dealloc];
}

/// "gammaSlider" for setGammaSlider:, nil for another selector.
+ (NSString *)outletOf:(SEL)selector {
  NSString *name = NSStringFromSelector(selector);
  if (![name hasPrefix:@"set"] || ![name hasSuffix:@":"] || [name length] < 5) return nil;
  name = [name substringWithRange:NSMakeRange(3, [name length] - 4)];
  return [[[name substringToIndex:1] lowercaseString]
      stringByAppendingString:[name substringFromIndex:1]];
}

+ (BOOL)isAction:(SEL)selector {
  NSString *name = NSStringFromSelector(selector);
  return [name hasPrefix:@"change"] && [name hasSuffix:@"Option:"];
}

- (BOOL)respondsToSelector:(SEL)selector {
  return [super respondsToSelector:selector] || [KWOPDEInterfaceOwner outletOf:selector] != nil ||
         [KWOPDEInterfaceOwner isAction:selector];
}

- (NSMethodSignature *)methodSignatureForSelector:(SEL)selector {
  NSMethodSignature *known = [super methodSignatureForSelector:selector];
  return known ? known : [NSMethodSignature signatureWithObjCTypes:"v@:@"];
}

- (void)forwardInvocation:(NSInvocation *)invocation {
  const SEL selector = [invocation selector];
  NSString *outlet = [KWOPDEInterfaceOwner outletOf:selector];
  if (outlet) {
    id connected = nil;
    [invocation getArgument:&connected atIndex:2];
    if ([outlet isEqualToString:@"pdeView"]) view = connected;
    if (connected) [outlets setObject:connected forKey:outlet];
  } else if ([KWOPDEInterfaceOwner isAction:selector]) {
    if (owner) owner->performAction(textOf(NSStringFromSelector(selector)), nullptr);
  } else {
    [super forwardInvocation:invocation];
  }
}
@end

namespace kwopde::cocoa {

bool CocoaInterfaceLoader::loadNibNamed(std::string_view name, InterfaceOwner &owner) {
  KWOPDEInterfaceOwner *proxy = [[[KWOPDEInterfaceOwner alloc] init] autorelease];
  if (![NSBundle loadNibNamed:stringFrom(name) owner:proxy] || !proxy->view) return false;
  proxy->owner = &owner;
  const auto view = std::make_shared<CocoaPanelView>(proxy->view, proxy);
  forEach<NSString>([proxy->outlets keyEnumerator], [&](NSString *outlet) {
    if (const auto control = view->control([proxy->outlets objectForKey:outlet]))
      owner.setOutlet(textOf(outlet), control);
  });
  owner.setOutlet("pdeView", view);
  return true;
}

}  // namespace kwopde::cocoa
