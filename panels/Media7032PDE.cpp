#include "panels/Media7032PDE.h"

#include "panels/MediaRows.h"

namespace kwopde {

namespace {

constexpr PanelTraits kMedia7032Traits{
    .className = "Media7032PDE",
    .word = "media",
    .interfaceFile = "Media7032PDE",
    .nameKey = "MediaPanelName",
    .kind = KWOPDE_KIND_PREFIX ".media7032kind",
    .panelViewEntry = "panelView:",
    .saving = nullptr,
    .updateUIEntry = "updateUI:",
    .querySettingsFromUIExit = "querySettingsFromUI:",
    .request = "Request: %@",
    .noMarkedChoice = "currentChoice:nil",
};

}  // namespace

Media7032PDE::Media7032PDE()
    : PanelBase({
          .traits = kMedia7032Traits,
          .popUps =
              {
                  printQualityRow(*this),
                  printFinishRow(*this),
                  {
                      .key = "matteLevel",
                      .popUp = {"matteLevelPopUp", &matteLevelPopUp},
                      .choices = matteLevelChoices,
                      .option = matteLevelOption,
                      .selection = matteLevelSelection,
                      .action = {"changeMatteLevelOption:", &Media7032PDE::changeMatteLevelOption},
                      .notSupported = "Matte level option not supported!",
                      .disabling = "disabling matte level",
                      .notFound = "Matte level selection not found!",
                  },
                  {
                      .key = "dustRemoval",
                      .popUp = {"dustRemovalPopUp", &dustRemovalPopUp},
                      .choices = dustRemovalChoices,
                      .option = dustRemovalOption,
                      .selection = dustRemovalSelection,
                      .action = {"changeDustRemovalOption:",
                                 &Media7032PDE::changeDustRemovalOption},
                      .notSupported = "Dust removal option not supported!",
                      .disabling = "disabling dust removal",
                      .notFound = "Dust removal selection not found!",
                  },
                  rotateImageRow(*this),
                  mirrorImageRow(*this),
              },
          .values = {pageScaleRow(*this)},
          .captions = {{"matteLevelLabel", &matteLevelLabel}},
      }) {}

}  // namespace kwopde
