#include "cocoa/BundleClasses.h"

#include <cctype>
#include <map>

#include "cocoa/CocoaBundle.h"
#include "cocoa/CocoaCallback.h"
#include "cocoa/CocoaChoice.h"
#include "cocoa/CocoaControls.h"
#include "cocoa/CocoaInterfaceLoader.h"
#include "cocoa/SystemLog.h"
#include "panels/ColorPDE.h"
#include "panels/Media7032PDE.h"
#include "panels/MediaPDE.h"
#include "panels/PanelClasses.h"
#include "panels/SharpenPDE.h"
#include "platform/Kept.h"
#include "plugin/KWOPDEPlugin.h"
#include "plugin/PDELogging.h"

namespace {

using namespace kwopde::cocoa;
using kwopde::PanelBase;

SystemLog systemLog;
CocoaInterfaceLoader interfaceLoader;

/// A string that may be nil, as the core takes it.
class Argument {
public:
  explicit Argument(NSString *string)
      : text_(string ? std::optional(textOf(string)) : std::nullopt) {}
  operator const std::string *() const { return text_ ? &*text_ : nullptr; }
  const std::optional<std::string> &text() const { return text_; }

private:
  std::optional<std::string> text_;
};

/// A caller's string that the core replaces. The caller owns it before and after; a string that the
/// core leaves as it was stays the same object.
class StringField {
public:
  explicit StringField(NSString **place) : place_(place), before_(Argument(*place).text()) {
    text = before_;
  }
  StringField(const StringField &) = delete;
  StringField &operator=(const StringField &) = delete;
  ~StringField() {
    if (text == before_) return;
    [*place_ release];
    *place_ = text ? [stringFrom(&*text) retain] : nil;
  }

  std::optional<std::string> text;

private:
  NSString **place_;
  std::optional<std::string> before_;
};

/// Returns a string object with this text that is the same for every call, and lives for good.
NSString *constantString(std::string_view text) {
  static auto *const strings = new std::map<std::string, NSString *, std::less<>>;
  auto found = strings->find(text);
  if (found == strings->end()) found = strings->emplace(text, [stringFrom(text) retain]).first;
  return found->second;
}

/// A summary that stands for the dictionary which the host gets. The trace shows it as the core
/// does, in the order of its keys.
class CocoaSummary final : public NativeObject<kwopde::Dictionary> {
public:
  using NativeObject::NativeObject;
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): not as a native object shows itself.
  void appendDescription(std::string &out) const override { Dictionary::appendDescription(out); }
};

/// A panel of the core that stands for a panel object, which owns it.
template <class P>
class CocoaPanel final : public NativeObject<P> {
public:
  explicit CocoaPanel(KWOPDEPanel *object) : NativeObject<P>(object) {}

protected:
  kwopde::ChoiceMaker choiceMaker() const override { return &makeChoice; }
  std::shared_ptr<kwopde::Dictionary> makeSummary(std::size_t capacity) const override {
    return std::make_shared<CocoaSummary>([NSMutableDictionary dictionaryWithCapacity:capacity],
                                          capacity);
  }
};

/// "setGammaSlider:" for the outlet "gammaSlider".
std::string setterOf(std::string_view outlet) {
  std::string setter = "set" + std::string(outlet) + ":";
  setter[3] = static_cast<char>(std::toupper(static_cast<unsigned char>(setter[3])));
  return setter;
}

/// The outlet that the setter is for.
NSString *outletOf(SEL setter) {
  NSString *name = NSStringFromSelector(setter);
  name = [name substringWithRange:NSMakeRange(3, [name length] - 4)];
  return [[[name substringToIndex:1] lowercaseString]
      stringByAppendingString:[name substringFromIndex:1]];
}

}  // namespace

@interface KWOPDEPanel (Core) <KWOPDEOutlets>
/// Makes the core's panel for an object of this class; null when it is refused.
+ (std::shared_ptr<PanelBase>)makeFor:(KWOPDEPanel *)object
                             callback:(id)callback
                               bundle:(NSBundle *)bundle;

/// Makes a panel of the core on no PPD, to ask what the class has; null for no class of panels.
+ (std::shared_ptr<PanelBase>)prototype;

/// The panel of the core that stands for this object.
- (PanelBase &)core;
@end

namespace {

/// The principal object of the core, whose panels are objects of the bundle.
class CocoaPlugIn final : public NativeObject<kwopde::KWOPDEPlugIn> {
public:
  using NativeObject::NativeObject;

protected:
  std::shared_ptr<kwopde::Panel> makePanel(const kwopde::PanelClass &panelClass,
                                           const std::shared_ptr<kwopde::HostCallback> &host,
                                           kwopde::Bundle *itsBundle) override {
    KWOPDEPanel *panel = [[NSClassFromString(stringFrom(panelClass.name)) alloc]
        initWithCallback:nativeOf(host.get())
               andBundle:nativeOf(itsBundle)];
    if (![panel autorelease]) return nullptr;
    // Borrowed: the plug-in's array owns the panels.
    return {std::shared_ptr<void>(), &[panel core]};
  }
};

}  // namespace

/// A struct of its own, since GCC's objects hold no C++ ones.
struct KWOPDEPlugInParts {
  CocoaPlugIn core;
  std::shared_ptr<CocoaBundle> bundle;
};

struct KWOPDEPanelParts {
  std::shared_ptr<PanelBase> core;
  NSString *thePDEName;              // owned
  NSMutableArray *supportedOptions;  // made once, kept for good
  NSMutableDictionary *outlets;      // while they are being set; owned
};

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

- (KWOPDEPlugInParts &)parts {
  // initWithBundle: does not have to be called first.
  if (!parts) parts = new KWOPDEPlugInParts{CocoaPlugIn(self), nullptr};
  return *parts;
}

- (BOOL)initWithBundle:(NSBundle *)bundle {
  KWOPDEPlugInParts &own = [self parts];
  pluginBundle = bundle;
  own.bundle = bundle ? std::make_shared<CocoaBundle>(bundle) : nullptr;
  return own.core.initWithBundle(own.bundle.get());
}

- (NSArray *)PDEPanelsForType:(NSString *)type withHostInfo:(id)host {
  const auto hostInfo = host ? std::make_shared<CocoaCallback>(host) : nullptr;
  const auto *panels = [self parts].core.PDEPanelsForType(Argument(type), hostInfo);
  // Kept: the array of an earlier call is never released.
  PDEs = panels ? [[NSMutableArray alloc] initWithCapacity:3] : nil;
  if (panels)
    for (const auto &panel : *panels) [PDEs addObject:nativeOf(panel.get())];
  return PDEs;
}

- (void)dealloc {
  [PDEs release];
  delete parts;
  [super dealloc];
}
@end

@implementation KWOPDEPanel
using OneArgument = void (*)(KWOPDEPanel *self, SEL selector, id argument);

static void setOutlet(KWOPDEPanel *self, SEL setter, id control) {
  KWOPDEPanelParts &own = *self->parts;
  if (!own.outlets) own.outlets = [[NSMutableDictionary alloc] init];
  if (control) [own.outlets setObject:control forKey:outletOf(setter)];
}

static void performAction(KWOPDEPanel *self, SEL action, id) {
  self->parts->core->performAction(textOf(NSStringFromSelector(action)), nullptr);
}

+ (std::shared_ptr<PanelBase>)makeFor:(KWOPDEPanel *)object
                             callback:(id)callback
                               bundle:(NSBundle *)bundle {
  (void)object, (void)callback, (void)bundle;
  return nullptr;
}

+ (std::shared_ptr<PanelBase>)prototype {
  return nullptr;
}

+ (void)initialize {
  const auto prototype = [self prototype];
  if (!prototype) return;
  const auto answer = [&](const std::string &selector, OneArgument method) {
    class_addMethod(self, sel_registerName(selector.c_str()),
                    reinterpret_cast<IMP>(reinterpret_cast<void (*)()>(method)), "v@:@");
  };
  answer(setterOf("pdeView"), &setOutlet);
  for (const auto &control : prototype->controls()) answer(setterOf(control.outlet), &setOutlet);
  for (const auto &option : prototype->options())
    if (!option.action.empty()) answer(std::string(option.action), &performAction);
}

- (id)init {
  return [self initWithCallback:nil andBundle:nil];
}

- (id)initWithCallback:(id)callback andBundle:(NSBundle *)bundle {
  if (!(self = [super init])) return nil;
  auto core = [[self class] makeFor:self callback:callback bundle:bundle];
  if (!core) {
    [self release];
    return nil;
  }
  parts = new KWOPDEPanelParts{core, nil, nil, nil};
  return self;
}

- (void)dealloc {
  if (parts) {
    PanelBase &core = [self core];
    if (const auto *view = dynamic_cast<CocoaPanelView *>(core.pdeView.get()))
      view->disconnect(self);
    core.releaseChoices();
    core.pdePluginCallbackObject.reset();
    [parts->thePDEName release];
    core.pdeView.reset();
    [parts->outlets release];
    delete parts;
  }
  [super dealloc];
}

- (PanelBase &)core {
  return *parts->core;
}

- (NSDictionary *)takeOutlets {
  NSDictionary *taken = [parts->outlets autorelease];
  parts->outlets = nil;
  return taken;
}

- (NSView *)panelView {
  return nativeOf([self core].panelView());
}
- (NSString *)panelName {
  const std::string *name = [self core].panelName();
  if (!parts->thePDEName) parts->thePDEName = [stringFrom(name) retain];
  return parts->thePDEName;
}
- (NSString *)panelKind {
  return constantString([self core].panelKind());
}
- (NSArray *)supportedPPDOptionKeys {
  const std::vector<std::string> &keys = [self core].supportedPPDOptionKeys();
  if (!parts->supportedOptions) {
    parts->supportedOptions = [[NSMutableArray alloc] initWithCapacity:keys.capacity()];
    for (const std::string &key : keys) [parts->supportedOptions addObject:stringFrom(key)];
    // Hosts may look at the list after the panel is gone.
    kwopde::keepForever({parts->supportedOptions, [](id) {}});
  }
  return parts->supportedOptions;
}
- (void)willShow {
  [self core].willShow();
}
- (BOOL)shouldHide {
  return [self core].shouldHide();
}
- (BOOL)shouldPrint {
  return [self core].shouldPrint();
}
- (BOOL)shouldShowHelp {
  return [self core].shouldShowHelp();
}
- (void)PPDOptionKeyValueDidChange:(NSString *)key ppdChoice:(NSString *)choice {
  [self core].PPDOptionKeyValueDidChange(Argument(key), Argument(choice));
}
- (BOOL)restoreValuesAndReturnError:(NSError **)error {
  return [self core].restoreValuesAndReturnError(reinterpret_cast<kwopde::Error **>(error));
}
- (BOOL)saveValuesAndReturnError:(NSError **)error {
  return [self core].saveValuesAndReturnError(reinterpret_cast<kwopde::Error **>(error));
}
- (NSDictionary *)summaryInfo {
  const auto info = [self core].summaryInfo();
  NSMutableDictionary *summary = nativeOf(info.get());
  for (const auto &[key, value] : info->entries())
    [summary setObject:stringFrom(value) forKey:stringFrom(key)];
  return summary;
}
- (void)getNonPPDSettingsFromPrintSettings {
  [self core].getNonPPDSettingsFromPrintSettings();
}
- (void)writeNonPPDSettingsToPrintSettings {
  [self core].writeNonPPDSettingsToPrintSettings();
}

- (void)initializeUI {
  [self core].initializeUI();
}
- (void)updateUI {
  [self core].updateUI();
}
- (void)updateMarkedSelections {
  [self core].updateMarkedSelections();
}
- (void)querySettingsFromUI {
  [self core].querySettingsFromUI();
}
- (void)querySettingsFromPPD {
  [self core].querySettingsFromPPD();
}
- (void)saveSettingsToPPD {
  [self core].saveSettingsToPPD();
}
- (void)queryIntFromPPD:(int *)value forKey:(const char *)key {
  [self core].queryIntFromPPD(value, key);
}
- (void)queryDoubleFromPPD:(double *)value forKey:(const char *)key {
  [self core].queryDoubleFromPPD(value, key);
}
- (void)queryNSStringFromPPD:(NSString **)value forKey:(const char *)key {
  StringField field(value);
  [self core].queryNSStringFromPPD(&field.text, key);
}
- (void)saveIntToPPD:(int)value FieldKey:(NSString *)key {
  [self core].saveIntToPPD(value, textOf(key));
}
- (void)saveNSStringToPPD:(NSString *)value FieldKey:(NSString *)key {
  [self core].saveNSStringToPPD(textOf(value), textOf(key));
}
- (int)indexOfMarkedOption:(ppd_option_t *)option forKey:(const char *)key {
  return [self core].indexOfMarkedOption(option, key);
}
- (PDEChoice *)selectionForPopUp:(NSPopUpButton *)popUp withKey:(NSString *)key {
  CocoaPopUpButton button(popUp);
  return nativeOf([self core].selectionForPopUp(popUp ? &button : nullptr, textOf(key)));
}
- (void)setViewTitleByTag:(int)tag fromOptions:(ppd_option_t *)option {
  [self core].setViewTitleByTag(tag, option);
}

- (const void *)inspector {
  return kwopde::inspectorOf([self core]);
}
@end

#define KWOPDE_PANEL_CLASS(NAME)                                                              \
  +(std::shared_ptr<PanelBase>)makeFor : (KWOPDEPanel *)object callback : (id)callback bundle \
      : (NSBundle *)bundle {                                                                  \
    return PanelBase::initWithCallback<CocoaPanel<kwopde::NAME>>(                             \
        retaining<CocoaCallback>(callback), retaining<CocoaBundle>(bundle).get(), object);    \
  }                                                                                           \
  +(std::shared_ptr<PanelBase>)prototype {                                                    \
    return std::make_shared<kwopde::NAME>();                                                  \
  }

@implementation MediaPDE
KWOPDE_PANEL_CLASS(MediaPDE)
@end

@implementation Media7032PDE
KWOPDE_PANEL_CLASS(Media7032PDE)
@end

@implementation ColorPDE
KWOPDE_PANEL_CLASS(ColorPDE)

- (void)saveDoubleToPPD:(double)value FieldKey:(NSString *)key {
  static_cast<kwopde::ColorPDE &>([self core]).saveDoubleToPPD(value, textOf(key));
}
- (void)queryTextFieldFromUI:(NSString **)value FieldUI:(NSTextField *)field {
  StringField text(value);
  CocoaTextField control(field);
  static_cast<kwopde::ColorPDE &>([self core])
      .queryTextFieldFromUI(&text.text, field ? &control : nullptr);
}
@end

@implementation SharpenPDE
KWOPDE_PANEL_CLASS(SharpenPDE)
@end
