#include "panels/SharpenPDE.h"

namespace kwopde {

namespace {

constexpr PanelTraits kSharpenTraits{
    .className = "SharpenPDE",
    .word = "sharpen",
    .interfaceFile = "SharpenPDE",
    .nameKey = "SharpenPanelName",
    .kind = KWOPDE_KIND_PREFIX ".sharpenkind",
    .panelViewEntry = "panelView:(%@)",
    .saving = nullptr,
    .updateUIEntry = "updateUI:",
    .querySettingsFromUIExit = "querySettingsFromUI:",
    .request = nullptr,
    .noMarkedChoice = "currentChoice:nil",
};

}  // namespace

SharpenPDE::SharpenPDE()
    : PanelBase({
          .traits = kSharpenTraits,
          .popUps = {{
              .key = "sharpnessEnabled",
              .isKey = true,
              .popUp = {"enableFilterPopUp", &enableFilterPopUp},
              .choices = enableFilterChoices,
              .option = enableFilterOption,
              .selection = enableFilterSelection,
              .action = {"changeEnableFilterOption:", &SharpenPDE::changeEnableFilterOption},
              .notSupported = "Enable filter option not supported!",
              .disabling = "disabling enable filter",
              .notFound = "Enable filter selection not found!",
          }},
          .values =
              {
                  {
                      .key = "sharpnessAmount",
                      .option = amountOption,
                      .value = &amountValue,
                      .field = {"amountLabel", &amountLabel},
                      .slider = {"amountSlider", &amountSlider},
                      .action = {"changeAmountOption:", &SharpenPDE::changeAmountOption},
                      .summaryKey = "Amount",
                      .summaryFormat = "%d %%",
                      .notSupported = "Amount option not supported!",
                  },
                  {
                      .key = "sharpnessRadius",
                      .option = radiusOption,
                      .value = &radiusValue,
                      .field = {"radiusLabel", &radiusLabel},
                      .slider = {"radiusSlider", &radiusSlider},
                      .action = {"changeRadiusOption:", &SharpenPDE::changeRadiusOption},
                      .summaryKey = "Radius",
                      .summaryFormat = "%d",
                      .notSupported = "Radius option not supported!",
                  },
                  {
                      .key = "sharpnessThreshold",
                      .option = thresholdOption,
                      .value = &thresholdValue,
                      .field = {"thresholdLabel", &thresholdLabel},
                      .slider = {"thresholdSlider", &thresholdSlider},
                      .action = {"changeThresholdOption:", &SharpenPDE::changeThresholdOption},
                      .summaryKey = "Threshold",
                      .summaryFormat = "%d",
                      .notSupported = "Threshold option not supported!",
                  },
              },
      }) {}

}  // namespace kwopde
