// The list of the panel classes, for all who need it: adding a panel is adding a row.
#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "panels/PanelBase.h"

namespace kwopde {

/// The printers that a class of panels is for.
enum class Models { all, extended, others };

/// The model number of the printer with the extended media panel.
inline constexpr int kExtendedModel = 7032;

struct PanelClass {
  std::string_view name;
  Models models;

  /// Makes a panel, or null when the PPD lacks its key options; see `PanelBase::initWithCallback`.
  std::shared_ptr<PanelBase> (*initWithCallback)(const std::shared_ptr<HostCallback> &callback,
                                                 Bundle *andBundle);

  /// Returns what a panel of the class needs of a PPD.
  PanelRequirement (*requirement)();
};

/// Returns every class of panels, in the order of making.
std::span<const PanelClass> panelClasses();

/// Returns what each of them needs, in this order.
std::vector<PanelRequirement> panelRequirements();

}  // namespace kwopde
