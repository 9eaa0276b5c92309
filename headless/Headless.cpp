#include "headless/Headless.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "panels/PanelClasses.h"
#include "platform/MenuItems.h"
#include "plugin/KWOPDEPlugin.h"
#include "plugin/PDELogging.h"

namespace kwopde::headless {

namespace {

/// What every control is: it can be disabled, and it may send an action.
template <class Base>
class Control : public Base {
public:
  bool isEnabled() const override { return enabled_; }
  void setEnabled(bool enabled) override { enabled_ = enabled; }
  TextField *viewWithTag(int) override { return nullptr; }
  void *nativeView() const override { return nullptr; }

  /// Acts as if a person had worked it.
  void send() const {
    if (owner_) owner_->performAction(action_, this);
  }
  void setAction(InterfaceOwner &owner, std::string_view action) {
    owner_ = &owner;
    action_ = action;
  }

private:
  bool enabled_ = true;
  InterfaceOwner *owner_ = nullptr;
  std::string action_;
};

class HeadlessPopUp final : public Control<PopUpButton>, public MenuItems {
public:
  std::string_view className() const override { return "HeadlessPopUp"; }
  Menu *menu() override { return this; }
  void removeAllItems() override {
    clear();
    selected_ = -1;
  }
  void selectItemAtIndex(int index) override {
    if (itemAtIndex(index)) selected_ = index;
  }
  int indexOfSelectedItem() const override { return selected_; }
  void addItem(MenuItem item) override {
    MenuItems::addItem(std::move(item));
    selected_ = std::max(selected_, 0);
  }

private:
  int selected_ = -1;
};

/// How far a slider reaches, and in which steps it stands.
struct SliderRange {
  std::string_view outlet;
  double minimum;
  double maximum;
  double stepsPerUnit = 1;
};

/// As in the interface files. Any other slider is one of a percentage about 0.
constexpr SliderRange kSliderRanges[] = {
    {"amountSlider", 0, 500},      {"radiusSlider", 0, 50}, {"thresholdSlider", 0, 255},
    {"gammaSlider", 0.1, 3, 1000}, {"", -100, 100},
};

class HeadlessSlider final : public Control<Slider> {
public:
  explicit HeadlessSlider(std::string_view outlet)
      : range_(*std::find_if(std::begin(kSliderRanges), std::end(kSliderRanges) - 1,
                             [&](const SliderRange &range) { return range.outlet == outlet; })) {
    setDoubleValue(0);
  }
  std::string_view className() const override { return "HeadlessSlider"; }
  double doubleValue() const override { return value_; }
  void setDoubleValue(double value) override {
    if (std::isnan(value)) return;
    const double step =
        std::round(std::clamp(value, range_.minimum, range_.maximum) * range_.stepsPerUnit);
    value_ = step / range_.stepsPerUnit;
  }
  double minValue() const override { return range_.minimum; }
  double maxValue() const override { return range_.maximum; }

private:
  const SliderRange &range_;
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
class HeadlessView final : public Control<View> {
public:
  std::string_view className() const override { return "HeadlessView"; }
  std::vector<std::shared_ptr<View>> controls;
};

class Loader final : public InterfaceLoader {
public:
  bool loadNibNamed(std::string_view, InterfaceOwner &owner) override {
    const auto *panel = dynamic_cast<const PanelInspector *>(&owner);
    if (!panel) return false;
    const auto view = std::make_shared<HeadlessView>();
    const auto add = [&](std::string_view outlet, auto control) {
      view->controls.push_back(control);
      owner.setOutlet(outlet, control);
      return control;
    };
    for (const PanelOption &option : panel->options()) {
      if (!option.popUp.empty())
        add(option.popUp, std::make_shared<HeadlessPopUp>())->setAction(owner, option.action);
      if (!option.slider.empty())
        add(option.slider, std::make_shared<HeadlessSlider>(option.slider))
            ->setAction(owner, option.action);
      if (!option.field.empty()) add(option.field, std::make_shared<HeadlessField>());
    }
    // What is left belongs to no option: captions.
    for (const PanelControl &left : panel->controls())
      if (!left.control) add(left.outlet, std::make_shared<HeadlessField>());
    owner.setOutlet("pdeView", view);
    return true;
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

Module::Module()
    : loader_(std::make_unique<Loader>()),
      loaderBefore_(Bundle::setInterfaceLoader(loader_.get())),
      bundle_(std::make_shared<KeyBundle>()) {}

Module::~Module() {
  Bundle::setInterfaceLoader(loaderBefore_);
}

std::unique_ptr<PlugIn> Module::makePlugIn() {
  return std::make_unique<KWOPDEPlugIn>();
}

std::vector<PanelRequirement> Module::requirements() const {
  return panelRequirements();
}

LogSink *Module::setLogSink(LogSink *sink) {
  return setTraceSink(sink);
}

bool UserInput::pick(PopUpButton &popUp, int index) {
  auto *control = dynamic_cast<HeadlessPopUp *>(&popUp);
  if (!control) return false;
  control->selectItemAtIndex(index);
  control->send();
  return true;
}

bool UserInput::slide(Slider &slider, double value) {
  auto *control = dynamic_cast<HeadlessSlider *>(&slider);
  if (!control) return false;
  control->setDoubleValue(value);
  control->send();
  return true;
}

bool UserInput::type(TextField &field, const std::string &text) {
  field.setStringValue(text);
  return true;
}

}  // namespace kwopde::headless
