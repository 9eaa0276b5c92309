#include "panels/ColorPDE.h"

#include "plugin/PDELogging.h"

namespace kwopde {

namespace {

constexpr PopUpRow kPopUps[] = {{
    .key = "colorMode",
    .popUp = {"colorModePopUp", bind(&ColorPDE::colorModePopUp)},
    .choices = bind(&ColorPDE::colorModeChoices),
    .option = bind(&ColorPDE::colorModeOption),
    .selection = bind(&ColorPDE::colorModeSelection),
    .action = "changeColorModeOption:",
    .notSupported = "Color mode option not supported!",
    .disabling = "disabling color mode",
    .notFound = "Color mode selection not found!",
}};

constexpr ValueRow kValues[] = {
    {
        .key = "imageBrightness",
        .option = bind(&ColorPDE::brightnessOption),
        .value = bind(&ColorPDE::brightnessValue),
        .field = {"brightnessLabel", bind(&ColorPDE::brightnessLabel)},
        .slider = {"brightnessSlider", bind(&ColorPDE::brightnessSlider)},
        .action = "changeBrightnessOption:",
        .summaryKey = "Brightness",
        .summaryFormat = "%d",
        .notSupported = "Brightness option not supported!",
    },
    {
        .key = "imageContrast",
        .option = bind(&ColorPDE::contrastOption),
        .value = bind(&ColorPDE::contrastValue),
        .field = {"contrastLabel", bind(&ColorPDE::contrastLabel)},
        .slider = {"contrastSlider", bind(&ColorPDE::contrastSlider)},
        .action = "changeContrastOption:",
        .summaryKey = "Contrast",
        .summaryFormat = "%d",
        .notSupported = "Contrast option not supported!",
    },
    {
        .key = "imageSaturation",
        .option = bind(&ColorPDE::saturationOption),
        .value = bind(&ColorPDE::saturationValue),
        .field = {"saturationLabel", bind(&ColorPDE::saturationLabel)},
        .slider = {"saturationSlider", bind(&ColorPDE::saturationSlider)},
        .action = "changeSaturationOption:",
        .summaryKey = "Saturation",
        .summaryFormat = "%d",
        .notSupported = "Saturation option not supported!",
    },
    {
        .key = "imageGamma",
        .option = bind(&ColorPDE::gammaOption),
        .value = bind(&ColorPDE::gammaValue),
        .field = {"gammaLabel", bind(&ColorPDE::gammaLabel)},
        .slider = {"gammaSlider", bind(&ColorPDE::gammaSlider)},
        .action = "changeGammaOption:",
        .summaryKey = "Gamma",
        .summaryFormat = "%.2lf",
        .notSupported = "Gamma option not supported!",
    },
    {
        .key = "colorRed",
        .option = bind(&ColorPDE::redOption),
        .value = bind(&ColorPDE::redValue),
        .field = {"redLabel", bind(&ColorPDE::redLabel)},
        .slider = {"redSlider", bind(&ColorPDE::redSlider)},
        .action = "changeRedOption:",
        .summaryKey = "Red",
        .summaryFormat = "%d",
        .notSupported = "Red option not supported!",
    },
    {
        .key = "colorGreen",
        .option = bind(&ColorPDE::greenOption),
        .value = bind(&ColorPDE::greenValue),
        .field = {"greenLabel", bind(&ColorPDE::greenLabel)},
        .slider = {"greenSlider", bind(&ColorPDE::greenSlider)},
        .action = "changeGreenOption:",
        .summaryKey = "Green",
        .summaryFormat = "%d",
        .notSupported = "Green option not supported!",
    },
    {
        .key = "colorBlue",
        .option = bind(&ColorPDE::blueOption),
        .value = bind(&ColorPDE::blueValue),
        .field = {"blueLabel", bind(&ColorPDE::blueLabel)},
        .slider = {"blueSlider", bind(&ColorPDE::blueSlider)},
        .action = "changeBlueOption:",
        .summaryKey = "Blue",
        .summaryFormat = "%d",
        .notSupported = "Blue option not supported!",
    },
};

constexpr PanelTraits kTraits{
    .className = "ColorPDE",
    .interfaceFile = "ColorPDE",
    .nameKey = "ColorPanelName",
    .kind = KWOPDE_KIND_PREFIX ".colorkind",
    .popUps = kPopUps,
    .values = kValues,
    .captions = {},
    .keyOptions = 1,
    .panelViewEntry = "panelView:(%@)",
    .saving = nullptr,
    .updateUIEntry = "updateUI:",
    .querySettingsFromUIExit = "querySettingsFromUI:",
    .request = nullptr,
    .noMarkedChoice = "ppdFindMarkedChoice:nil",
};

}  // namespace

ColorPDE::ColorPDE() : PanelBase(kTraits) {}

void ColorPDE::queryTextFieldFromUI(std::optional<std::string> *value, const TextField *FieldUI) {
  PDEProlog(this, "queryTextFieldFromUI:(%@)", {static_cast<const Object *>(FieldUI)});
  *value = FieldUI ? FieldUI->stringValue() : std::string();
  PDEEpilog(this, "queryTextFieldFromUI:(%@)", {*value});
}

}  // namespace kwopde
