// The sharpen panel: the filter switch, and its three numbers with a slider each.
#pragma once

#include "panels/PanelBase.h"

namespace kwopde {

class SharpenPDE : public PanelBase {
public:
  SharpenPDE();
  ~SharpenPDE() override { releaseChoices(); }

  // The actions, each sent by the control of its option; the sender does not matter.
  void changeEnableFilterOption(const Object *) { changeSelection(enableFilterSelection); }
  void changeAmountOption(const Object *) { changeValue(amountValue); }
  void changeRadiusOption(const Object *) { changeValue(radiusValue); }
  void changeThresholdOption(const Object *) { changeValue(thresholdValue); }

  Outlet<PopUpButton> enableFilterPopUp;
  Outlet<TextField> amountLabel;
  Outlet<Slider> amountSlider;
  Outlet<TextField> radiusLabel;
  Outlet<Slider> radiusSlider;
  Outlet<TextField> thresholdLabel;
  Outlet<Slider> thresholdSlider;

  std::unique_ptr<ChoiceList> enableFilterChoices;

  ppd_option_t *enableFilterOption = nullptr;
  ppd_option_t *amountOption = nullptr;
  ppd_option_t *radiusOption = nullptr;
  ppd_option_t *thresholdOption = nullptr;

  PDEChoice *enableFilterSelection = nullptr;

  int amountValue = 0;
  int radiusValue = 0;
  int thresholdValue = 0;
};

}  // namespace kwopde
