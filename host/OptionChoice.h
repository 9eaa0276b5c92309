// An option and one of its choices, by keyword.
#pragma once

#include <strings.h>

#include <string>
#include <string_view>

namespace kwopde::host {

/// An option's keyword and the keyword of a choice; a custom value is "Custom.NUMBER".
struct OptionChoice {
  std::string key;
  std::string choice;
};

/// Returns whether two keywords are of one option: letter case does not tell them apart.
inline bool isSameKey(std::string_view a, std::string_view b) {
  return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

/// The keywords that choose nothing: a constraint that names no choice is about all others (a PPD
/// rule).
inline constexpr std::string_view kNothing[] = {"None", "Off", "False"};

/// Returns whether the keyword `choice` is one of them, in any letter case.
inline bool choosesNothing(std::string_view choice) {
  for (const std::string_view nothing : kNothing)
    if (isSameKey(choice, nothing)) return true;
  return false;
}

}  // namespace kwopde::host
