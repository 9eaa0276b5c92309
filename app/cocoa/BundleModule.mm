#include "app/cocoa/BundleModule.h"

#include <map>

#include "cocoa/BundleClasses.h"
#include "cocoa/CocoaControls.h"
#include "cocoa/Strings.h"
#include "host/Error.h"

using kwopde::cocoa::textOf;

/// The host's callback object, for a session of ours.
@interface KWOPDEHost : NSObject {
@public
  kwopde::HostCallback *session;  // borrowed
}
@end

@implementation KWOPDEHost
- (ppd_file_t *)ppdFile {
  return session->ppdFile();
}
- (BOOL)willChangePPDOptionKeyValue:(NSString *)key ppdChoice:(NSString *)choice {
  const std::string keyText = textOf(key);
  const std::string choiceText = textOf(choice);
  return session->willChangePPDOptionKeyValue(key ? &keyText : nullptr,
                                              choice ? &choiceText : nullptr);
}
- (BOOL)respondsToSelector:(SEL)selector {
  if (selector == @selector(willChangePPDOptionKeyValue:ppdChoice:))
    return session && session->respondsToSelector(textOf(NSStringFromSelector(selector)));
  return [super respondsToSelector:selector];
}
@end

namespace kwopde::cocoa {

namespace {

/// A panel object of the bundle.
class BundlePanel final : public Panel, public PanelInspector {
public:
  explicit BundlePanel(KWOPDEPanel *panel)
      : panel_([panel retain]),
        className_(textOf(NSStringFromClass([panel class]))),
        inspected_(*static_cast<const PanelInspector *>([panel inspector])) {}
  ~BundlePanel() override { [panel_ release]; }

  std::string_view className() const override { return className_; }

  View *panelView() override {
    NSView *view = [panel_ panelView];
    if (!view_ && view) view_ = std::make_unique<CocoaPanelView>(view);
    return view ? view_.get() : nullptr;
  }
  const std::string *panelName() override {
    NSString *name = [panel_ panelName];
    if (!name) return nullptr;
    name_ = textOf(name);
    return &name_;
  }
  std::string_view panelKind() override { return kind_ = textOf([panel_ panelKind]); }
  const std::vector<std::string> &supportedPPDOptionKeys() override {
    keys_.clear();
    forEach<NSString>([[panel_ supportedPPDOptionKeys] objectEnumerator],
                      [&](NSString *key) { keys_.push_back(textOf(key)); });
    return keys_;
  }
  void willShow() override { [panel_ willShow]; }
  bool shouldHide() override { return [panel_ shouldHide]; }
  bool shouldPrint() override { return [panel_ shouldPrint]; }
  bool shouldShowHelp() override { return [panel_ shouldShowHelp]; }
  void PPDOptionKeyValueDidChange(const std::string *key, const std::string *ppdChoice) override {
    [panel_ PPDOptionKeyValueDidChange:stringFrom(key) ppdChoice:stringFrom(ppdChoice)];
  }
  bool restoreValuesAndReturnError(Error **error) override {
    return [panel_ restoreValuesAndReturnError:reinterpret_cast<NSError **>(error)];
  }
  bool saveValuesAndReturnError(Error **error) override {
    return [panel_ saveValuesAndReturnError:reinterpret_cast<NSError **>(error)];
  }
  std::shared_ptr<const Dictionary> summaryInfo() override {
    NSDictionary *info = [panel_ summaryInfo];
    const auto summary = std::make_shared<Dictionary>([info count]);
    forEach<NSString>([info keyEnumerator], [&](NSString *key) {
      summary->setObject(textOf([info objectForKey:key]), textOf(key));
    });
    return summary;
  }
  void getNonPPDSettingsFromPrintSettings() override {
    [panel_ getNonPPDSettingsFromPrintSettings];
  }
  void writeNonPPDSettingsToPrintSettings() override {
    [panel_ writeNonPPDSettingsToPrintSettings];
  }
  std::string_view word() const override { return inspected_.word(); }
  std::vector<PanelOption> options() const override { return inspected_.options(); }
  std::vector<PanelControl> controls() const override {
    auto list = inspected_.controls();
    // The host has wrappers of its own for the views.
    for (auto &[outlet, control] : list) {
      auto &own = controls_[outlet];
      if (!own && control) own = makeControl(static_cast<NSView *>(control->nativeView()));
      control = own.get();
    }
    return list;
  }

private:
  KWOPDEPanel *panel_;
  std::string className_;
  std::unique_ptr<CocoaPanelView> view_;
  std::string name_;
  std::string kind_;
  std::vector<std::string> keys_;
  const PanelInspector &inspected_;  // the bundle's
  mutable std::map<std::string_view, std::shared_ptr<View>> controls_;
};

class NativeBundle final : public NativeObject<Bundle> {
public:
  using NativeObject::NativeObject;
  std::optional<std::string> localizedStringForKey(const std::string &, const std::string *,
                                                   const std::string *) const override {
    return {};  // the bundle's own classes ask the bundle itself
  }
};

class BundlePlugIn final : public PlugIn {
public:
  explicit BundlePlugIn(Class principal) : plugIn_([[principal alloc] init]) {}
  ~BundlePlugIn() override {
    panels_.clear();
    [plugIn_ release];
    [host_ release];
  }

  std::string_view className() const override { return "KWOPDEPlugIn"; }
  bool initWithBundle(Bundle *bundle) override { return [plugIn_ initWithBundle:nativeOf(bundle)]; }
  const PanelList *PDEPanelsForType(const std::string *type,
                                    const std::shared_ptr<HostCallback> &withHostInfo) override {
    if (!host_ && withHostInfo) {
      host_ = [[KWOPDEHost alloc] init];
      host_->session = withHostInfo.get();
      session_ = withHostInfo;
    }
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];  // the panels come autoreleased
    NSArray *panels = [plugIn_ PDEPanelsForType:stringFrom(type)
                                   withHostInfo:withHostInfo ? host_ : nil];
    panels_.clear();
    forEach<KWOPDEPanel>([panels objectEnumerator], [&](KWOPDEPanel *panel) {
      panels_.push_back(std::make_shared<BundlePanel>(panel));
    });
    [pool release];
    return panels ? &panels_ : nullptr;
  }

private:
  KWOPDEPlugIn *plugIn_;
  KWOPDEHost *host_ = nil;
  std::shared_ptr<HostCallback> session_;
  PanelList panels_;
};

}  // namespace

BundleModule::BundleModule(const std::string &path) {
  NSString *absolute = [[NSURL fileURLWithPath:stringFrom(&path)] path];
  native_ = [NSBundle bundleWithPath:absolute];
  if (![[native_ principalClass] instancesRespondToSelector:@selector(PDEPanelsForType:
                                                                          withHostInfo:)])
    throw host::Error(path + ": not a print-dialog extension");
  bundle_ = std::make_shared<NativeBundle>(native_);
}

std::unique_ptr<PlugIn> BundleModule::makePlugIn() {
  return std::make_unique<BundlePlugIn>([native_ principalClass]);
}

std::vector<PanelRequirement> BundleModule::requirements() const {
  return static_cast<const ModuleInspector *>([(id)[native_ principalClass] moduleInspector])
      ->requirements();
}

LogSink *BundleModule::setLogSink(LogSink *sink) {
  return static_cast<LogSink *>([(id)[native_ principalClass] setTraceSink:sink]);
}

}  // namespace kwopde::cocoa
