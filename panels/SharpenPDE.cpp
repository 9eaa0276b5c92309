#include "panels/SharpenPDE.h"

namespace kwopde {

namespace {

constexpr PopUpRow kPopUps[] = {{
    .key = "sharpnessEnabled",
    .popUp = {"enableFilterPopUp", bind(&SharpenPDE::enableFilterPopUp)},
    .choices = bind(&SharpenPDE::enableFilterChoices),
    .option = bind(&SharpenPDE::enableFilterOption),
    .selection = bind(&SharpenPDE::enableFilterSelection),
    .action = "changeEnableFilterOption:",
    .notSupported = "Enable filter option not supported!",
    .disabling = "disabling enable filter",
    .notFound = "Enable filter selection not found!",
}};

constexpr ValueRow kValues[] = {
    {
        .key = "sharpnessAmount",
        .option = bind(&SharpenPDE::amountOption),
        .value = bind(&SharpenPDE::amountValue),
        .field = {"amountLabel", bind(&SharpenPDE::amountLabel)},
        .slider = {"amountSlider", bind(&SharpenPDE::amountSlider)},
        .action = "changeAmountOption:",
        .summaryKey = "Amount",
        .summaryFormat = "%d %%",
        .notSupported = "Amount option not supported!",
    },
    {
        .key = "sharpnessRadius",
        .option = bind(&SharpenPDE::radiusOption),
        .value = bind(&SharpenPDE::radiusValue),
        .field = {"radiusLabel", bind(&SharpenPDE::radiusLabel)},
        .slider = {"radiusSlider", bind(&SharpenPDE::radiusSlider)},
        .action = "changeRadiusOption:",
        .summaryKey = "Radius",
        .summaryFormat = "%d",
        .notSupported = "Radius option not supported!",
    },
    {
        .key = "sharpnessThreshold",
        .option = bind(&SharpenPDE::thresholdOption),
        .value = bind(&SharpenPDE::thresholdValue),
        .field = {"thresholdLabel", bind(&SharpenPDE::thresholdLabel)},
        .slider = {"thresholdSlider", bind(&SharpenPDE::thresholdSlider)},
        .action = "changeThresholdOption:",
        .summaryKey = "Threshold",
        .summaryFormat = "%d",
        .notSupported = "Threshold option not supported!",
    },
};

constexpr PanelTraits kTraits{
    .className = "SharpenPDE",
    .interfaceFile = "SharpenPDE",
    .nameKey = "SharpenPanelName",
    .kind = KWOPDE_KIND_PREFIX ".sharpenkind",
    .popUps = kPopUps,
    .values = kValues,
    .captions = {},
    .keyOptions = 1,
    .panelViewEntry = "panelView:(%@)",
    .saving = nullptr,
    .updateUIEntry = "updateUI:",
    .querySettingsFromUIExit = "querySettingsFromUI:",
    .request = nullptr,
    .noMarkedChoice = "currentChoice:nil",
};

}  // namespace

SharpenPDE::SharpenPDE() : PanelBase(kTraits) {}

}  // namespace kwopde
