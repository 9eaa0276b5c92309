// An option and one of its choices, by keyword.
#pragma once

#include <string>

namespace kwopde::host {

/// An option's keyword and the keyword of a choice; a custom value is "Custom.NUMBER".
struct OptionChoice {
  std::string key;
  std::string choice;
};

}  // namespace kwopde::host
