#include "panels/PanelClasses.h"

#include "panels/ColorPDE.h"
#include "panels/Media7032PDE.h"
#include "panels/MediaPDE.h"
#include "panels/SharpenPDE.h"

namespace kwopde {

namespace {

template <class P>
PanelClass row(std::string_view name, Models models) {
  return {name, models,
          [](const std::shared_ptr<HostCallback> &callback,
             Bundle *bundle) -> std::shared_ptr<PanelBase> {
            return PanelBase::initWithCallback<P>(callback, bundle);
          },
          [] { return P().requirement(); }};
}

}  // namespace

std::span<const PanelClass> panelClasses() {
  static const PanelClass classes[] = {
      row<MediaPDE>("MediaPDE", Models::others),
      row<Media7032PDE>("Media7032PDE", Models::extended),
      row<ColorPDE>("ColorPDE", Models::all),
      row<SharpenPDE>("SharpenPDE", Models::all),
  };
  return classes;
}

std::vector<PanelRequirement> panelRequirements() {
  std::vector<PanelRequirement> requirements;
  for (const PanelClass &panelClass : panelClasses()) {
    requirements.push_back(panelClass.requirement());
    if (panelClass.models == Models::extended) requirements.back().model = kExtendedModel;
  }
  return requirements;
}

}  // namespace kwopde
