#include "panels/ColorPDE.h"

#include "plugin/PDELogging.h"

namespace kwopde {

namespace {

constexpr PanelTraits kColorTraits{
    .className = "ColorPDE",
    .word = "color",
    .interfaceFile = "ColorPDE",
    .nameKey = "ColorPanelName",
    .kind = KWOPDE_KIND_PREFIX ".colorkind",
    .panelViewEntry = "panelView:(%@)",
    .saving = nullptr,
    .updateUIEntry = "updateUI:",
    .querySettingsFromUIExit = "querySettingsFromUI:",
    .request = nullptr,
    .noMarkedChoice = "ppdFindMarkedChoice:nil",
};

}  // namespace

ColorPDE::ColorPDE()
    : PanelBase({
          .traits = kColorTraits,
          .popUps = {{
              .key = "colorMode",
              .isKey = true,
              .popUp = {"colorModePopUp", &colorModePopUp},
              .choices = colorModeChoices,
              .option = colorModeOption,
              .selection = colorModeSelection,
              .action = {"changeColorModeOption:", &ColorPDE::changeColorModeOption},
              .notSupported = "Color mode option not supported!",
              .disabling = "disabling color mode",
              .notFound = "Color mode selection not found!",
          }},
          .values =
              {
                  {
                      .key = "imageBrightness",
                      .option = brightnessOption,
                      .value = &brightnessValue,
                      .field = {"brightnessLabel", &brightnessLabel},
                      .slider = {"brightnessSlider", &brightnessSlider},
                      .action = {"changeBrightnessOption:", &ColorPDE::changeBrightnessOption},
                      .summaryKey = "Brightness",
                      .summaryFormat = "%d",
                      .notSupported = "Brightness option not supported!",
                  },
                  {
                      .key = "imageContrast",
                      .option = contrastOption,
                      .value = &contrastValue,
                      .field = {"contrastLabel", &contrastLabel},
                      .slider = {"contrastSlider", &contrastSlider},
                      .action = {"changeContrastOption:", &ColorPDE::changeContrastOption},
                      .summaryKey = "Contrast",
                      .summaryFormat = "%d",
                      .notSupported = "Contrast option not supported!",
                  },
                  {
                      .key = "imageSaturation",
                      .option = saturationOption,
                      .value = &saturationValue,
                      .field = {"saturationLabel", &saturationLabel},
                      .slider = {"saturationSlider", &saturationSlider},
                      .action = {"changeSaturationOption:", &ColorPDE::changeSaturationOption},
                      .summaryKey = "Saturation",
                      .summaryFormat = "%d",
                      .notSupported = "Saturation option not supported!",
                  },
                  {
                      .key = "imageGamma",
                      .option = gammaOption,
                      .value = &gammaValue,
                      .field = {"gammaLabel", &gammaLabel},
                      .slider = {"gammaSlider", &gammaSlider},
                      .action = {"changeGammaOption:", &ColorPDE::changeGammaOption},
                      .summaryKey = "Gamma",
                      .summaryFormat = "%.2lf",
                      .notSupported = "Gamma option not supported!",
                  },
                  {
                      .key = "colorRed",
                      .option = redOption,
                      .value = &redValue,
                      .field = {"redLabel", &redLabel},
                      .slider = {"redSlider", &redSlider},
                      .action = {"changeRedOption:", &ColorPDE::changeRedOption},
                      .summaryKey = "Red",
                      .summaryFormat = "%d",
                      .notSupported = "Red option not supported!",
                  },
                  {
                      .key = "colorGreen",
                      .option = greenOption,
                      .value = &greenValue,
                      .field = {"greenLabel", &greenLabel},
                      .slider = {"greenSlider", &greenSlider},
                      .action = {"changeGreenOption:", &ColorPDE::changeGreenOption},
                      .summaryKey = "Green",
                      .summaryFormat = "%d",
                      .notSupported = "Green option not supported!",
                  },
                  {
                      .key = "colorBlue",
                      .option = blueOption,
                      .value = &blueValue,
                      .field = {"blueLabel", &blueLabel},
                      .slider = {"blueSlider", &blueSlider},
                      .action = {"changeBlueOption:", &ColorPDE::changeBlueOption},
                      .summaryKey = "Blue",
                      .summaryFormat = "%d",
                      .notSupported = "Blue option not supported!",
                  },
              },
      }) {}

void ColorPDE::queryTextFieldFromUI(std::optional<std::string> *value, const TextField *FieldUI) {
  PDEProlog(this, "queryTextFieldFromUI:(%@)", {static_cast<const Object *>(FieldUI)});
  *value = FieldUI ? FieldUI->stringValue() : std::string();
  PDEEpilog(this, "queryTextFieldFromUI:(%@)", {*value});
}

}  // namespace kwopde
