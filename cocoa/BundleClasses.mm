#include "cocoa/BundleClasses.h"

#include "cocoa/CocoaBundle.h"
#include "cocoa/CocoaCallback.h"
#include "cocoa/CocoaInterfaceLoader.h"
#include "cocoa/Strings.h"
#include "cocoa/SystemLog.h"
#include "panels/ColorPDE.h"
#include "panels/Media7032PDE.h"
#include "panels/MediaPDE.h"
#include "panels/PanelClasses.h"
#include "panels/SharpenPDE.h"
#include "plugin/KWOPDEPlugin.h"
#include "plugin/PDELogging.h"

namespace {

using namespace kwopde::cocoa;

SystemLog systemLog;
CocoaInterfaceLoader interfaceLoader;

/// A string that may be nil, as the core takes it.
class Argument {
public:
  explicit Argument(NSString *string)
      : text_(string ? std::optional(textOf(string)) : std::nullopt) {}
  operator const std::string *() const { return text_ ? &*text_ : nullptr; }

private:
  std::optional<std::string> text_;
};

/// A new wrapper at every call: it borrows the bundle and has nothing to tell it from another.
std::shared_ptr<CocoaBundle> wrap(NSBundle *bundle) {
  return bundle ? std::make_shared<CocoaBundle>(bundle) : nullptr;
}

std::shared_ptr<CocoaCallback> wrap(id host) {
  return host ? std::make_shared<CocoaCallback>(host) : nullptr;
}

}  // namespace

/// What is in the principal object; a struct of its own, since GCC's objects hold no C++ ones.
struct KWOPDEPlugInParts {
  kwopde::KWOPDEPlugIn core;
  NSBundle *bundle = nil;  // the host's
  std::shared_ptr<CocoaBundle> coreBundle;
  NSMutableArray *PDEs = nil;
};

struct KWOPDEPanelParts {
  std::shared_ptr<kwopde::Panel> panel;
  id callback;  // retained
};

@interface KWOPDEPanel (Core)
/// Takes a panel of the core; retains the host for its life, and the bundle for good.
- (id)initWithPanel:(std::shared_ptr<kwopde::Panel>)panel
           callback:(id)host
             bundle:(NSBundle *)bundle;
/// The panel of the core that an object of this class stands for.
+ (std::shared_ptr<kwopde::Panel>)makeWithCallback:(std::shared_ptr<kwopde::HostCallback>)host
                                            bundle:(kwopde::Bundle *)bundle;
@end

@implementation KWOPDEPlugIn
+ (void)initialize {
  if (self != [KWOPDEPlugIn class]) return;
  kwopde::setTraceSink(&systemLog);
  kwopde::Bundle::setInterfaceLoader(&interfaceLoader);
}

+ (void *)setTraceSink:(void *)sink {
  kwopde::LogSink *const before =
      kwopde::setTraceSink(sink ? static_cast<kwopde::LogSink *>(sink) : &systemLog);
  return before == &systemLog ? nullptr : before;
}

+ (const void *)moduleInspector {
  class Inspector final : public kwopde::ModuleInspector {
    std::vector<kwopde::PanelRequirement> requirements() const override {
      return kwopde::panelRequirements();
    }
  };
  static const Inspector inspector;
  return &inspector;
}

/// A host may call initWithBundle: without init.
- (KWOPDEPlugInParts &)parts {
  if (!parts) parts = new KWOPDEPlugInParts;
  return *parts;
}

- (BOOL)initWithBundle:(NSBundle *)bundle {
  KWOPDEPlugInParts &own = [self parts];
  own.bundle = bundle;
  own.coreBundle = wrap(bundle);
  return own.core.initWithBundle(own.coreBundle.get());
}

- (NSArray *)PDEPanelsForType:(NSString *)type withHostInfo:(id)host {
  KWOPDEPlugInParts &own = [self parts];
  const kwopde::PanelList *panels = own.core.PDEPanelsForType(Argument(type), wrap(host));
  // Kept: the array of an earlier call is never released.
  own.PDEs = panels ? [[NSMutableArray alloc] initWithCapacity:panels->size()] : nil;
  if (panels)
    for (const auto &panel : *panels) {
      const Class panelClass = NSClassFromString(stringFrom(panel->className()));
      id object = [[panelClass alloc] initWithPanel:panel callback:host bundle:own.bundle];
      [own.PDEs addObject:[object autorelease]];
    }
  return own.PDEs;
}

- (void)dealloc {
  if (parts) [parts->PDEs release];
  delete parts;
  [super dealloc];
}
@end

@implementation KWOPDEPanel
+ (std::shared_ptr<kwopde::Panel>)makeWithCallback:(std::shared_ptr<kwopde::HostCallback>)host
                                            bundle:(kwopde::Bundle *)bundle {
  (void)host;
  (void)bundle;
  return nullptr;  // only the classes below are panels
}

- (id)initWithPanel:(std::shared_ptr<kwopde::Panel>)panel
           callback:(id)host
             bundle:(NSBundle *)bundle {
  if ((self = [super init])) {
    parts = new KWOPDEPanelParts{panel, [host retain]};
    [bundle retain];
  }
  return self;
}

- (id)initWithCallback:(id)host andBundle:(NSBundle *)bundle {
  const auto made = [[self class] makeWithCallback:wrap(host) bundle:wrap(bundle).get()];
  if (made) return [self initWithPanel:made callback:host bundle:bundle];
  [self release];
  return nil;
}

- (void)dealloc {
  if (parts) [parts->callback release];
  delete parts;
  [super dealloc];
}

- (NSView *)panelView {
  kwopde::View *view = parts->panel->panelView();
  return view ? static_cast<NSView *>(view->nativeView()) : nil;
}
- (NSString *)panelName {
  return stringFrom(parts->panel->panelName());
}
- (NSString *)panelKind {
  return stringFrom(parts->panel->panelKind());
}
- (NSArray *)supportedPPDOptionKeys {
  NSMutableArray *keys = [NSMutableArray array];
  for (const std::string &key : parts->panel->supportedPPDOptionKeys())
    [keys addObject:stringFrom(key)];
  return keys;
}
- (void)willShow {
  parts->panel->willShow();
}
- (BOOL)shouldHide {
  return parts->panel->shouldHide();
}
- (BOOL)shouldPrint {
  return parts->panel->shouldPrint();
}
- (BOOL)shouldShowHelp {
  return parts->panel->shouldShowHelp();
}
- (void)PPDOptionKeyValueDidChange:(NSString *)key ppdChoice:(NSString *)choice {
  parts->panel->PPDOptionKeyValueDidChange(Argument(key), Argument(choice));
}
- (BOOL)restoreValuesAndReturnError:(NSError **)error {
  return parts->panel->restoreValuesAndReturnError(reinterpret_cast<kwopde::Error **>(error));
}
- (BOOL)saveValuesAndReturnError:(NSError **)error {
  return parts->panel->saveValuesAndReturnError(reinterpret_cast<kwopde::Error **>(error));
}
- (NSDictionary *)summaryInfo {
  NSMutableDictionary *summary = [NSMutableDictionary dictionary];
  const auto info = parts->panel->summaryInfo();
  for (const auto &[key, value] : info->entries())
    [summary setObject:stringFrom(value) forKey:stringFrom(key)];
  return summary;
}
- (void)getNonPPDSettingsFromPrintSettings {
  parts->panel->getNonPPDSettingsFromPrintSettings();
}
- (void)writeNonPPDSettingsToPrintSettings {
  parts->panel->writeNonPPDSettingsToPrintSettings();
}
- (const void *)inspector {
  return kwopde::inspectorOf(*parts->panel);
}
@end

#define KWOPDE_PANEL_CLASS(NAME)                                                        \
  @implementation NAME                                                                  \
  +(std::shared_ptr<kwopde::Panel>)makeWithCallback                                     \
      : (std::shared_ptr<kwopde::HostCallback>)host bundle : (kwopde::Bundle *)bundle { \
    return kwopde::PanelBase::initWithCallback<kwopde::NAME>(host, bundle);             \
  }                                                                                     \
  @end

KWOPDE_PANEL_CLASS(MediaPDE)
KWOPDE_PANEL_CLASS(Media7032PDE)
KWOPDE_PANEL_CLASS(ColorPDE)
KWOPDE_PANEL_CLASS(SharpenPDE)
