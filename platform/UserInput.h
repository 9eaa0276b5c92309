// A user's doing, acted out on the controls of a toolkit.
#pragma once

#include <string>

#include "platform/Controls.h"

namespace kwopde {

/// Every operation works the control as a person does, so that it sends its action; false, with
/// nothing done, when the toolkit knows no such control.
class UserInput {
public:
  UserInput() = default;
  UserInput(const UserInput &) = delete;
  UserInput &operator=(const UserInput &) = delete;
  virtual ~UserInput() = default;

  /// Picks the item at `index`, which the pop-up has.
  virtual bool pick(PopUpButton &popUp, int index) = 0;

  /// Moves the slider to `value`, or to the end of its range that is nearest.
  virtual bool slide(Slider &slider, double value) = 0;

  /// Replaces the field's text; no action is sent.
  virtual bool type(TextField &field, const std::string &text) = 0;
};

}  // namespace kwopde
