// A user's doing, acted out on AppKit's controls.
#pragma once

#include "platform/UserInput.h"

namespace kwopde::cocoa {

/// Sets the control and sends its action, as AppKit does for a click or a drag.
class CocoaUserInput final : public UserInput {
public:
  bool pick(PopUpButton &popUp, int index) override;
  bool slide(Slider &slider, double value) override;
  bool type(TextField &field, const std::string &text) override;
};

}  // namespace kwopde::cocoa
