#include "panels/MediaPDE.h"

#include "panels/MediaRows.h"

namespace kwopde {

namespace {

constexpr PopUpRow tracing(PopUpRow row, const char *noSelection) {
  row.noSelection = noSelection;
  return row;
}

constexpr ValueRow tracing(ValueRow row, const char *disabling) {
  row.disabling = disabling;
  return row;
}

constexpr PopUpRow kPopUps[] = {
    tracing(kPrintQualityRow<MediaPDE>, "printQualitySelection=nil"),
    tracing(kPrintFinishRow<MediaPDE>, "printFinishSelection=nil"),
    tracing(kRotateImageRow<MediaPDE>, "rotateImageSelection=nil"),
    tracing(kMirrorImageRow<MediaPDE>, "mirrorImageSelection=nil"),
};

constexpr ValueRow kValues[] = {tracing(kPageScaleRow<MediaPDE>, "disabling page scale")};

constexpr PanelTraits kTraits{
    .className = "MediaPDE",
    .interfaceFile = "MediaPDE",
    .nameKey = "MediaPanelName",
    .kind = KWOPDE_KIND_PREFIX ".mediakind",
    .popUps = kPopUps,
    .values = kValues,
    .captions = {},
    .keyOptions = 2,
    .panelViewEntry = "panelView:",
    .saving = "...saving settings.",
    .updateUIEntry = "updateUI:[%d]",
    .querySettingsFromUIExit = "querySettingsFromUI: [%d]",
    .request = "Request: %@",
    .noMarkedChoice = "ppdFindMarkedChoice:nil",
};

}  // namespace

MediaPDE::MediaPDE() : PanelBase(kTraits) {}

}  // namespace kwopde
