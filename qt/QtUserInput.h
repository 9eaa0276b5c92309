// A user's doing on Qt widgets.
#pragma once

#include "platform/UserInput.h"

namespace kwopde::qt {

class QtUserInput final : public UserInput {
public:
  bool pick(PopUpButton &popUp, int index) override;
  bool slide(Slider &slider, double value) override;
  bool type(TextField &field, const std::string &text) override;
};

}  // namespace kwopde::qt
