// From a requested choice to what the PPD can mark: a listed choice, a number listed in another
// spelling, or a number that the option takes as a custom value.
#pragma once

#include <cups/ppd.h>

#include <optional>
#include <string>
#include <string_view>

namespace kwopde::host {

/// The number that all of `text` is; none when it is something else. The locale has no say.
std::optional<double> wholeNumber(std::string_view text);

/// What to mark for a request.
struct MarkableChoice {
  ppd_choice_t *choice;  // the PPD's
  std::string number;    // the custom number; empty when the choice is listed

  /// As the CUPS library marks it and a job carries it: "85", "Custom.85".
  std::string keyword() const { return number.empty() ? choice->choice : "Custom." + number; }
};

/// The numbers that an option takes beyond the listed ones, both ends included.
struct CustomLimits {
  double minimum;
  double maximum;
  bool integral;
};

/// The limits of `option`'s one custom parameter; none when it has no such parameter of the types
/// int, real or points.
std::optional<CustomLimits> customLimits(ppd_file_t *ppd, const ppd_option_t &option);

/// What `requested` asks to mark; none when `option` neither lists it nor takes it as a custom
/// value. "Custom.85" asks for the custom value 85.
std::optional<MarkableChoice> findMarkable(ppd_file_t *ppd, ppd_option_t &option,
                                           const std::string &requested);

}  // namespace kwopde::host
