#include "platform/Controls.h"

#include "platform/Numbers.h"

namespace kwopde {

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
