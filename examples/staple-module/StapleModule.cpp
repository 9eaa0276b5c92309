// A module with one panel: where to staple. It shows all that a module owes its host.
#include <platform/Kept.h>
#include <platform/MenuItems.h>
#include <platform/PanelInspector.h>
#include <platform/PlugIn.h>

#include <QComboBox>
#include <QFormLayout>
#include <QObject>
#include <QPointer>

using namespace kwopde;

Q_DECLARE_INTERFACE(kwopde::PlugInModule, KWOPDE_PLUGIN_MODULE_IID)

namespace {

const std::string kKey = "Staple";

/// A choice of the option, behind an item of the menu.
struct Choice final : Object {
  explicit Choice(std::string word) : keyword(std::move(word)) {}
  std::string_view className() const override { return "Choice"; }
  const std::string keyword;
};

/// What a control is on a widget that somebody else may destroy.
template <class Base, class Widget>
class Wrapped : public Base {
public:
  explicit Wrapped(Widget *native) : widget(native) {}
  std::string_view className() const override { return Widget::staticMetaObject.className(); }
  bool isEnabled() const override { return widget && widget->isEnabled(); }
  void setEnabled(bool enabled) override {
    if (widget) widget->setEnabled(enabled);
  }
  TextField *viewWithTag(int) override { return nullptr; }
  void *nativeView() const override { return static_cast<QWidget *>(widget.data()); }

  const QPointer<Widget> widget;
};

class Menu final : public Wrapped<PopUpButton, QComboBox>, public MenuItems {
public:
  using Wrapped::Wrapped;
  kwopde::Menu *menu() override { return this; }
  void addItem(MenuItem item) override {
    if (widget) widget->addItem(QString::fromStdString(item.title.value_or("")));
    MenuItems::addItem(std::move(item));
  }
  void removeAllItems() override {
    clear();
    if (widget) widget->clear();
  }
  void selectItemAtIndex(int index) override {
    if (widget && itemAtIndex(index)) widget->setCurrentIndex(index);
  }
  int indexOfSelectedItem() const override { return widget ? widget->currentIndex() : 0; }
};

class PanelWidget final : public Wrapped<View, QWidget> {
public:
  using Wrapped::Wrapped;
  ~PanelWidget() override { delete widget.data(); }
};

class StaplePanel final : public Panel, public PanelInspector {
public:
  StaplePanel(std::shared_ptr<HostCallback> host, Bundle *bundle)
      : host_(std::move(host)),
        bundle_(bundle),
        marks_(host_->respondsToSelector(kWillChangePPDOptionKeyValue)),
        option_(ppdFindOption(host_->ppdFile(), kKey.c_str())) {
    if (bundle) keepForever(bundle->weak_from_this().lock());  // as every panel does
  }

  bool isRefused() const { return option_ == nullptr; }
  std::string_view className() const override { return "StaplePanel"; }

  View *panelView() override {
    if (view_) return view_.get();
    view_ = std::make_unique<PanelWidget>(new QWidget);
    auto *box = new QComboBox;
    (new QFormLayout(view_->widget))->addRow(QObject::tr("&Staple:"), box);
    menu_ = std::make_unique<Menu>(box);
    QObject::connect(box, &QComboBox::activated, box, [this] { pick(); });
    return view_.get();
  }
  const std::string *panelName() override {
    if (!name_ && bundle_) name_ = bundle_->localizedStringForKey("Staple", nullptr, nullptr);
    return name_ ? &*name_ : nullptr;
  }
  std::string_view panelKind() override { return "org.example.staplekind"; }
  const std::vector<std::string> &supportedPPDOptionKeys() override {
    if (!keys_) {
      keys_ = std::make_shared<const std::vector<std::string>>(1, kKey);
      keepForever(keys_);
    }
    return *keys_;
  }
  void willShow() override {
    if (menu_ && !menu_->itemAtIndex(0))
      for (int i = 0; i < option_->num_choices; ++i)
        menu_->addItem(
            {option_->choices[i].text, std::make_shared<Choice>(option_->choices[i].choice)});
    show();
  }
  bool shouldHide() override { return true; }
  bool shouldPrint() override { return true; }
  bool shouldShowHelp() override { return true; }
  void PPDOptionKeyValueDidChange(const std::string *, const std::string *) override {}
  bool restoreValuesAndReturnError(Error **) override { return show(), true; }
  bool saveValuesAndReturnError(Error **) override { return true; }
  std::shared_ptr<const Dictionary> summaryInfo() override {
    const auto summary = std::make_shared<Dictionary>(1);
    if (const ppd_choice_t *marked = ppdFindMarkedChoice(host_->ppdFile(), kKey.c_str()))
      summary->setObject(marked->text, option_->text);
    return summary;
  }
  void getNonPPDSettingsFromPrintSettings() override {}
  void writeNonPPDSettingsToPrintSettings() override {}

  // For tools; without these, kwopde validate could not work the menu.
  std::string_view word() const override { return "staple"; }
  std::vector<PanelOption> options() const override {
    return {{kKey, PanelOption::Kind::choice, "staplePopUp", {}, {}, "changeStapleOption:"}};
  }
  std::vector<PanelControl> controls() const override { return {{"staplePopUp", menu_.get()}}; }

private:
  /// Asks the host to mark what was picked, and shows what it has marked.
  void pick() {
    const MenuItem *item = menu_->itemAtIndex(menu_->indexOfSelectedItem());
    if (!item || !marks_) return;
    host_->willChangePPDOptionKeyValue(
        &kKey, &static_cast<const Choice &>(*item->representedObject).keyword);
    show();
  }
  void show() {
    const ppd_choice_t *marked = ppdFindMarkedChoice(host_->ppdFile(), kKey.c_str());
    if (menu_ && marked) menu_->selectItemAtIndex(static_cast<int>(marked - option_->choices));
  }

  std::shared_ptr<HostCallback> host_;
  Bundle *bundle_;
  bool marks_;
  ppd_option_t *option_;
  std::unique_ptr<PanelWidget> view_;
  std::unique_ptr<Menu> menu_;
  std::optional<std::string> name_;
  std::shared_ptr<const std::vector<std::string>> keys_;
};

class StaplePlugIn final : public PlugIn {
public:
  std::string_view className() const override { return "StaplePlugIn"; }
  bool initWithBundle(Bundle *bundle) override {
    bundle_ = bundle;
    return true;
  }
  const PanelList *PDEPanelsForType(const std::string *type,
                                    const std::shared_ptr<HostCallback> &withHostInfo) override {
    if (panels_) keepForever(panels_);  // a host may still use those of its first call
    panels_ = std::make_shared<PanelList>();
    if (!type || *type != kPrinterModuleTypeIDStr) return panels_.get();
    if (withHostInfo && withHostInfo->ppdFile()) {
      auto panel = std::make_shared<StaplePanel>(withHostInfo, bundle_);
      if (!panel->isRefused()) panels_->push_back(std::move(panel));
    }
    if (panels_->empty()) panels_.reset();
    return panels_.get();
  }

private:
  Bundle *bundle_ = nullptr;  // the host's
  std::shared_ptr<PanelList> panels_;
};

/// Its texts are their keys.
class StapleBundle final : public Bundle {
public:
  std::string_view className() const override { return "StapleBundle"; }
  std::optional<std::string> localizedStringForKey(const std::string &key, const std::string *,
                                                   const std::string *) const override {
    return key;
  }
};

}  // namespace

class StapleModule final : public QObject, public PlugInModule {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID KWOPDE_PLUGIN_MODULE_IID)
  Q_INTERFACES(kwopde::PlugInModule)

public:
  std::shared_ptr<Bundle> bundle() override { return bundle_; }
  std::unique_ptr<PlugIn> makePlugIn() override { return std::make_unique<StaplePlugIn>(); }
  LogSink *setLogSink(LogSink *sink) override { return std::exchange(sink_, sink); }

private:
  std::shared_ptr<Bundle> bundle_ = std::make_shared<StapleBundle>();
  LogSink *sink_ = nullptr;
};

#include "StapleModule.moc"
