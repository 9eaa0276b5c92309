// The colour panel: a colour mode, and seven numbers with a slider each.
#pragma once

#include "panels/PanelBase.h"

namespace kwopde {

class ColorPDE : public PanelBase {
public:
  ColorPDE();
  ~ColorPDE() override { releaseChoices(); }

  using PanelBase::saveDoubleToPPD;

  /// Replaces the string at `value` by what `FieldUI` shows. The panel has no text of its own, so
  /// it does not use it.
  void queryTextFieldFromUI(std::optional<std::string> *value, const TextField *FieldUI);

  // The actions, each sent by the control of its option; the sender does not matter.
  void changeColorModeOption(const Object *) { changeSelection(colorModeSelection); }
  void changeBrightnessOption(const Object *) { changeValue(brightnessValue); }
  void changeContrastOption(const Object *) { changeValue(contrastValue); }
  void changeSaturationOption(const Object *) { changeValue(saturationValue); }
  void changeGammaOption(const Object *) { changeValue(gammaValue); }
  void changeRedOption(const Object *) { changeValue(redValue); }
  void changeGreenOption(const Object *) { changeValue(greenValue); }
  void changeBlueOption(const Object *) { changeValue(blueValue); }

  Outlet<PopUpButton> colorModePopUp;
  Outlet<TextField> brightnessLabel;
  Outlet<Slider> brightnessSlider;
  Outlet<TextField> contrastLabel;
  Outlet<Slider> contrastSlider;
  Outlet<TextField> saturationLabel;
  Outlet<Slider> saturationSlider;
  Outlet<TextField> gammaLabel;
  Outlet<Slider> gammaSlider;
  Outlet<TextField> redLabel;
  Outlet<Slider> redSlider;
  Outlet<TextField> greenLabel;
  Outlet<Slider> greenSlider;
  Outlet<TextField> blueLabel;
  Outlet<Slider> blueSlider;

  std::unique_ptr<ChoiceList> colorModeChoices;

  ppd_option_t *colorModeOption = nullptr;
  ppd_option_t *brightnessOption = nullptr;
  ppd_option_t *contrastOption = nullptr;
  ppd_option_t *saturationOption = nullptr;
  ppd_option_t *gammaOption = nullptr;
  ppd_option_t *redOption = nullptr;
  ppd_option_t *greenOption = nullptr;
  ppd_option_t *blueOption = nullptr;

  PDEChoice *colorModeSelection = nullptr;

  int brightnessValue = 0;
  int contrastValue = 0;
  int saturationValue = 0;
  double gammaValue = 0;
  int redValue = 0;
  int greenValue = 0;
  int blueValue = 0;
};

}  // namespace kwopde
