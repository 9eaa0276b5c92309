// From a requested choice to what the PPD can mark: a listed choice, a number listed in another
// spelling, or a number that the option takes as a custom value.
#pragma once

#include <cups/ppd.h>

#include <optional>
#include <string>
#include <string_view>

namespace kwopde::host {

/// Returns the number that all of `text` is; none when it is something else. The locale has no say.
std::optional<double> wholeNumber(std::string_view text);

/// The keyword of the choice that stands for an option's custom values.
inline constexpr const char *kCustom = "Custom";

/// Returns "85" for the keyword "Custom.85", and "{A=1 B=2}" for itself; none when the keyword is
/// not of a custom value.
std::optional<std::string_view> customValue(std::string_view keyword);

/// Returns the number of a choice's keyword, "85" or "Custom.85"; none when it is of something
/// else.
std::optional<double> choiceNumber(std::string_view keyword);

/// What to mark for a request.
struct MarkableChoice {
  ppd_choice_t *choice;  // the PPD's
  std::string custom;    // the custom value, as lp(1) takes it; empty when the choice is listed

  /// Returns the keyword that the CUPS library marks and a job carries: "85", "Custom.85".
  std::string keyword() const;
};

/// The numbers that an option takes beyond the listed ones, both ends included.
struct CustomLimits {
  double minimum;
  double maximum;
  bool integral;
};

/// Returns whether `number` lies between them, and is whole where it has to be.
bool isWithin(const CustomLimits &limits, double number);

/// Returns the limits of `option`'s one custom parameter; none when it has none, several, or one
/// that is no number.
std::optional<CustomLimits> customLimits(ppd_file_t *ppd, const ppd_option_t &option);

/// Two numbers and all between them that an option may take.
struct NumberRange {
  double minimum;
  double maximum;
};

/// Returns the range of the numbers that `option` lists and takes as a custom value; none when it
/// lists anything but numbers, or nothing.
std::optional<NumberRange> numberRange(ppd_file_t *ppd, const ppd_option_t &option);

/// Returns what `requested` asks to mark; none when `option` neither lists it nor takes it as a
/// custom value. "Custom.85" asks for the custom value 85.
std::optional<MarkableChoice> findMarkable(ppd_file_t *ppd, ppd_option_t &option,
                                           const std::string &requested);

}  // namespace kwopde::host
