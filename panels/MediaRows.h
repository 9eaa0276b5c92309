// The options that both media panels have; `P` is the panel class, whose members have the same
// names.
#pragma once

#include "panels/PanelBase.h"

namespace kwopde {

template <class P>
constexpr PopUpRow kPrintQualityRow{
    .key = "printQuality",
    .popUp = {"printQualityPopUp", bind(&P::printQualityPopUp)},
    .choices = bind(&P::printQualityChoices),
    .option = bind(&P::printQualityOption),
    .selection = bind(&P::printQualitySelection),
    .action = "changePrintQualityOption:",
    .notSupported = "Print quality option not supported!",
    .disabling = "disabling print quality",
    .notFound = "Print quality selection not found!",
};

template <class P>
constexpr PopUpRow kPrintFinishRow{
    .key = "printFinish",
    .popUp = {"printFinishPopUp", bind(&P::printFinishPopUp)},
    .choices = bind(&P::printFinishChoices),
    .option = bind(&P::printFinishOption),
    .selection = bind(&P::printFinishSelection),
    .action = "changePrintFinishOption:",
    .notSupported = "Print finish option not supported!",
    .disabling = "disabling print finsih",  // kept: log readers match this spelling
    .notFound = "Print finish selection not found!",
};

template <class P>
constexpr PopUpRow kRotateImageRow{
    .key = "rotateImage",
    .popUp = {"rotateImagePopUp", bind(&P::rotateImagePopUp)},
    .choices = bind(&P::rotateImageChoices),
    .option = bind(&P::rotateImageOption),
    .selection = bind(&P::rotateImageSelection),
    .action = "changeRotateImageOption:",
    .notSupported = "Rotate image option not supported!",
    .disabling = "disabling rotate image",
    .notFound = "Rotate image selection not found!",
};

template <class P>
constexpr PopUpRow kMirrorImageRow{
    .key = "mirrorImage",
    .popUp = {"mirrorImagePopUp", bind(&P::mirrorImagePopUp)},
    .choices = bind(&P::mirrorImageChoices),
    .option = bind(&P::mirrorImageOption),
    .selection = bind(&P::mirrorImageSelection),
    .action = "changeMirrorImageOption:",
    .notSupported = "Mirror image option not supported!",
    .disabling = "disabling mirror image",
    .notFound = "Mirror image selection not found!",
};

template <class P>
constexpr ValueRow kPageScaleRow{
    .key = "pageScale",
    .option = bind(&P::pageScaleOption),
    .value = bind(&P::pageScaleValue),
    .initialValue = 100,
    .field = {"pageScaleEdit", bind(&P::pageScaleEdit)},
    .fieldFormat = "%d %%",
    .summaryKey = "Scale",
    .summaryFormat = "%d %%",
    .missing = MissingValue::isDisabled,
    .notSupported = "Page scale option not supported!",
};

}  // namespace kwopde
