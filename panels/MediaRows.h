// The rows of the options that both media panels have. `P` is the panel class, whose members have
// the same names.
#pragma once

#include "panels/PanelBase.h"

namespace kwopde {

template <class P>
PopUpRow printQualityRow(P &panel) {
  return {
      .key = "printQuality",
      .isKey = true,
      .popUp = {"printQualityPopUp", &panel.printQualityPopUp},
      .choices = panel.printQualityChoices,
      .option = panel.printQualityOption,
      .selection = panel.printQualitySelection,
      .action = {"changePrintQualityOption:", &P::changePrintQualityOption},
      .notSupported = "Print quality option not supported!",
      .disabling = "disabling print quality",
      .notFound = "Print quality selection not found!",
  };
}

template <class P>
PopUpRow printFinishRow(P &panel) {
  return {
      .key = "printFinish",
      .isKey = true,
      .popUp = {"printFinishPopUp", &panel.printFinishPopUp},
      .choices = panel.printFinishChoices,
      .option = panel.printFinishOption,
      .selection = panel.printFinishSelection,
      .action = {"changePrintFinishOption:", &P::changePrintFinishOption},
      .notSupported = "Print finish option not supported!",
      .disabling = "disabling print finsih",  // kept: log readers match this spelling
      .notFound = "Print finish selection not found!",
  };
}

template <class P>
PopUpRow rotateImageRow(P &panel) {
  return {
      .key = "rotateImage",
      .popUp = {"rotateImagePopUp", &panel.rotateImagePopUp},
      .choices = panel.rotateImageChoices,
      .option = panel.rotateImageOption,
      .selection = panel.rotateImageSelection,
      .action = {"changeRotateImageOption:", &P::changeRotateImageOption},
      .notSupported = "Rotate image option not supported!",
      .disabling = "disabling rotate image",
      .notFound = "Rotate image selection not found!",
  };
}

template <class P>
PopUpRow mirrorImageRow(P &panel) {
  return {
      .key = "mirrorImage",
      .popUp = {"mirrorImagePopUp", &panel.mirrorImagePopUp},
      .choices = panel.mirrorImageChoices,
      .option = panel.mirrorImageOption,
      .selection = panel.mirrorImageSelection,
      .action = {"changeMirrorImageOption:", &P::changeMirrorImageOption},
      .notSupported = "Mirror image option not supported!",
      .disabling = "disabling mirror image",
      .notFound = "Mirror image selection not found!",
  };
}

template <class P>
ValueRow pageScaleRow(P &panel) {
  return {
      .key = "pageScale",
      .option = panel.pageScaleOption,
      .value = &panel.pageScaleValue,
      .initialValue = 100,
      .field = {"pageScaleEdit", &panel.pageScaleEdit},
      .fieldFormat = "%d %%",
      .summaryKey = "Scale",
      .summaryFormat = "%d %%",
      .missing = MissingValue::isDisabled,
      .notSupported = "Page scale option not supported!",
  };
}

}  // namespace kwopde
