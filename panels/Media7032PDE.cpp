#include "panels/Media7032PDE.h"

#include "panels/MediaRows.h"

namespace kwopde {

namespace {

constexpr PopUpRow kPopUps[] = {
    kPrintQualityRow<Media7032PDE>,
    kPrintFinishRow<Media7032PDE>,
    {
        .key = "matteLevel",
        .popUp = {"matteLevelPopUp", bind(&Media7032PDE::matteLevelPopUp)},
        .choices = bind(&Media7032PDE::matteLevelChoices),
        .option = bind(&Media7032PDE::matteLevelOption),
        .selection = bind(&Media7032PDE::matteLevelSelection),
        .action = "changeMatteLevelOption:",
        .notSupported = "Matte level option not supported!",
        .disabling = "disabling matte level",
        .notFound = "Matte level selection not found!",
    },
    {
        .key = "dustRemoval",
        .popUp = {"dustRemovalPopUp", bind(&Media7032PDE::dustRemovalPopUp)},
        .choices = bind(&Media7032PDE::dustRemovalChoices),
        .option = bind(&Media7032PDE::dustRemovalOption),
        .selection = bind(&Media7032PDE::dustRemovalSelection),
        .action = "changeDustRemovalOption:",
        .notSupported = "Dust removal option not supported!",
        .disabling = "disabling dust removal",
        .notFound = "Dust removal selection not found!",
    },
    kRotateImageRow<Media7032PDE>,
    kMirrorImageRow<Media7032PDE>,
};

constexpr ValueRow kValues[] = {kPageScaleRow<Media7032PDE>};

constexpr OutletRow<TextField> kCaptions[] = {
    {"matteLevelLabel", bind(&Media7032PDE::matteLevelLabel)},
};

constexpr PanelTraits kTraits{
    .className = "Media7032PDE",
    .interfaceFile = "Media7032PDE",
    .nameKey = "MediaPanelName",
    .kind = KWOPDE_KIND_PREFIX ".media7032kind",
    .popUps = kPopUps,
    .values = kValues,
    .captions = kCaptions,
    .keyOptions = 2,  // print quality and print finish; the model's own two do not count
    .panelViewEntry = "panelView:",
    .saving = nullptr,
    .updateUIEntry = "updateUI:",
    .querySettingsFromUIExit = "querySettingsFromUI:",
    .request = "Request: %@",
    .noMarkedChoice = "currentChoice:nil",
};

}  // namespace

Media7032PDE::Media7032PDE() : PanelBase(kTraits) {}

}  // namespace kwopde
