#include "panels/MediaPDE.h"

#include "panels/MediaRows.h"

namespace kwopde {

namespace {

PopUpRow tracing(PopUpRow row, const char *noSelection) {
  row.noSelection = noSelection;
  return row;
}

ValueRow tracing(ValueRow row, const char *disabling) {
  row.disabling = disabling;
  return row;
}

constexpr PanelTraits kMediaTraits{
    .className = "MediaPDE",
    .word = "media",
    .interfaceFile = "MediaPDE",
    .nameKey = "MediaPanelName",
    .kind = KWOPDE_KIND_PREFIX ".mediakind",
    .panelViewEntry = "panelView:",
    .saving = "...saving settings.",
    .updateUIEntry = "updateUI:[%d]",
    .querySettingsFromUIExit = "querySettingsFromUI: [%d]",
    .request = "Request: %@",
    .noMarkedChoice = "ppdFindMarkedChoice:nil",
};

}  // namespace

MediaPDE::MediaPDE()
    : PanelBase({
          .traits = kMediaTraits,
          .popUps = {tracing(printQualityRow(*this), "printQualitySelection=nil"),
                     tracing(printFinishRow(*this), "printFinishSelection=nil"),
                     tracing(rotateImageRow(*this), "rotateImageSelection=nil"),
                     tracing(mirrorImageRow(*this), "mirrorImageSelection=nil")},
          .values = {tracing(pageScaleRow(*this), "disabling page scale")},
      }) {}

}  // namespace kwopde
