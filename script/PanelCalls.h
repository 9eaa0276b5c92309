// The operations of the contract by name, for those who drive panels by scripts or at random.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Panel.h"
#include "script/Script.h"

namespace kwopde::script {

struct PanelCall {
  std::string_view name;  // "shouldHide"
  std::size_t words;      // how many arguments follow the name

  /// Calls the operation of `panel` with the words behind the name, which there are enough of.
  /// Returns its result as a transcript shows it.
  std::string (*call)(Panel &panel, const std::vector<Word> &words);

  /// The result that every call has; empty when it depends.
  std::string_view result = {};
};

/// Returns every operation that a host may call, in the order of the contract.
std::span<const PanelCall> panelCalls();

/// Returns the one called `name`; null when there is none.
const PanelCall *findPanelCall(std::string_view name);

}  // namespace kwopde::script
