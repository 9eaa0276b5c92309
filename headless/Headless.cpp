#include "headless/Headless.h"

#include <algorithm>
#include <functional>

#include "plugin/KWOPDEPlugin.h"
#include "plugin/PDELogging.h"

namespace kwopde::headless {

namespace {

/// What every control has: whether it is enabled, and its action.
template <class Base>
class Control : public Base {
public:
  bool isEnabled() const override { return enabled_; }
  void setEnabled(bool enabled) override { enabled_ = enabled; }

  std::function<void()> action;

private:
  bool enabled_ = true;
};

class HeadlessPopUp final : public Control<PopUpButton>, public Menu {
public:
  std::string_view className() const override { return "HeadlessPopUp"; }
  Menu *menu() override { return this; }
  void removeAllItems() override {
    items_.clear();
    selected_ = -1;
  }
  void selectItemAtIndex(int index) override {
    if (itemAtIndex(index)) selected_ = index;
  }
  int indexOfSelectedItem() const override { return selected_; }
  void addItem(MenuItem item) override {
    items_.push_back(std::move(item));
    selected_ = std::max(selected_, 0);
  }
  const MenuItem *itemAtIndex(int index) const override {
    const auto i = static_cast<std::size_t>(index);
    return index >= 0 && i < items_.size() ? &items_[i] : nullptr;
  }

private:
  std::vector<MenuItem> items_;
  int selected_ = -1;
};

class HeadlessSlider final : public Control<Slider> {
public:
  std::string_view className() const override { return "HeadlessSlider"; }
  double doubleValue() const override { return value_; }
  void setDoubleValue(double value) override {
    if (value == value) value_ = std::clamp(value, minValue(), maxValue());
  }
  double minValue() const override { return -10; }
  double maxValue() const override { return 10; }

private:
  double value_ = 0;
};

class HeadlessField final : public Control<TextField> {
public:
  std::string_view className() const override { return "HeadlessField"; }
  std::string stringValue() const override { return text_; }
  void setStringValue(std::string_view text) override { text_ = text; }

private:
  std::string text_;
};

/// A panel's view, which owns its controls.
class HeadlessView final : public View {
public:
  std::string_view className() const override { return "HeadlessView"; }
  std::vector<std::shared_ptr<View>> controls;
};

class Loader final : public InterfaceLoader {
public:
  bool loadNibNamed(std::string_view, InterfaceOwner &owner) override {
    const auto *panel = dynamic_cast<const Panel *>(&owner);
    if (!panel) return false;
    const auto view = std::make_shared<HeadlessView>();
    for (const PanelControl &wanted : panel->controls()) {
      const std::string outlet(wanted.outlet);
      if (outlet.ends_with("PopUp"))
        add<HeadlessPopUp>(*view, outlet, owner, outlet.size() - 5);
      else if (outlet.ends_with("Slider"))
        add<HeadlessSlider>(*view, outlet, owner, outlet.size() - 6);
      else
        add<HeadlessField>(*view, outlet, owner, 0);
    }
    owner.setOutlet("pdeView", view);
    return true;
  }

private:
  /// The first `nameLength` letters of the outlet name its action: "gammaSlider" sends
  /// "changeGammaOption:".
  template <class C>
  static void add(HeadlessView &view, const std::string &outlet, InterfaceOwner &owner,
                  std::size_t nameLength) {
    auto control = std::make_shared<C>();
    if (nameLength > 0) {
      std::string action = "change" + outlet.substr(0, nameLength) + "Option:";
      action[6] = static_cast<char>(action[6] - 'a' + 'A');
      control->action = [&owner, action] { owner.performAction(action); };
    }
    view.controls.push_back(control);
    owner.setOutlet(outlet, control);
  }
};

class KeyBundle final : public Bundle {
public:
  std::string_view className() const override { return "KeyBundle"; }
  std::optional<std::string> localizedStringForKey(const std::string &key, const std::string *,
                                                   const std::string *) const override {
    return key;
  }
};

}  // namespace

Module::Module() : loader_(std::make_unique<Loader>()), bundle_(std::make_shared<KeyBundle>()) {
  Bundle::setInterfaceLoader(loader_.get());
}

Module::~Module() {
  Bundle::setInterfaceLoader(nullptr);
}

std::unique_ptr<PlugIn> Module::makePlugIn() {
  return std::make_unique<KWOPDEPlugIn>();
}

std::vector<PanelRequirement> Module::requirements() const {
  return KWOPDEPlugIn::requirements();
}

void Module::setLogSink(LogSink *sink) {
  setTraceSink(sink);
}

bool UserInput::pick(PopUpButton &popUp, int index) {
  auto *control = dynamic_cast<HeadlessPopUp *>(&popUp);
  if (!control) return false;
  control->selectItemAtIndex(index);
  control->action();
  return true;
}

bool UserInput::slide(Slider &slider, double value) {
  auto *control = dynamic_cast<HeadlessSlider *>(&slider);
  if (!control) return false;
  control->setDoubleValue(value);
  control->action();
  return true;
}

bool UserInput::type(TextField &field, const std::string &text) {
  field.setStringValue(text);
  return true;
}

}  // namespace kwopde::headless
