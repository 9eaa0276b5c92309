#include "platform/Controls.h"

#include "platform/Numbers.h"

namespace kwopde {

namespace {

/// What every missing control is.
template <class Base>
class Missing : public Base {
public:
  std::string_view className() const override { return "Missing"; }
  bool isEnabled() const override { return false; }
  void setEnabled(bool) override {}
  TextField *viewWithTag(int) override { return nullptr; }
  void *nativeView() const override { return nullptr; }
};

class MissingPopUpButton final : public Missing<PopUpButton> {
public:
  Menu *menu() override { return nullptr; }
  void removeAllItems() override {}
  void selectItemAtIndex(int) override {}
  int indexOfSelectedItem() const override { return 0; }
};

class MissingSlider final : public Missing<Slider> {
public:
  double doubleValue() const override { return 0; }
  void setDoubleValue(double) override {}
  double minValue() const override { return 0; }
  double maxValue() const override { return 0; }
};

class MissingTextField final : public Missing<TextField> {
public:
  std::string stringValue() const override { return {}; }
  void setStringValue(std::string_view) override {}
};

}  // namespace

template <>
const std::shared_ptr<PopUpButton> &missingControl() {
  static const std::shared_ptr<PopUpButton> missing = std::make_shared<MissingPopUpButton>();
  return missing;
}

template <>
const std::shared_ptr<Slider> &missingControl() {
  static const std::shared_ptr<Slider> missing = std::make_shared<MissingSlider>();
  return missing;
}

template <>
const std::shared_ptr<TextField> &missingControl() {
  static const std::shared_ptr<TextField> missing = std::make_shared<MissingTextField>();
  return missing;
}

int Slider::intValue() const {
  return truncatedInteger(doubleValue());
}

int TextField::intValue() const {
  return leadingInteger(stringValue());
}

double TextField::doubleValue() const {
  return leadingDouble(stringValue());
}

void TextField::setIntValue(int value) {
  setStringValue(std::to_string(value));
}

void TextField::setDoubleValue(double value) {
  setStringValue(shortestText(value));
}

}  // namespace kwopde
