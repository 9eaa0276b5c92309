#include "host/MarkableChoice.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kwopde::host {

namespace {

constexpr std::string_view kCustomPrefix = "Custom.";

/// `number` as it was spelled, unless that does not fit a field of the PPD's records.
std::string numberText(std::string_view spelled, double number) {
  if (spelled.starts_with('+')) spelled.remove_prefix(1);
  return spelled.size() < PPD_MAX_NAME ? std::string(spelled) : fmt::format("{}", number);
}

}  // namespace

std::optional<double> wholeNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (read.ec != std::errc() || read.ptr != text.data() + text.size() || !std::isfinite(number))
    return {};
  return number;
}

std::optional<std::string_view> customNumber(std::string_view keyword) {
  if (!keyword.starts_with(kCustomPrefix)) return {};
  return keyword.substr(kCustomPrefix.size());
}

std::string MarkableChoice::keyword() const {
  return number.empty() ? choice->choice : fmt::format("{}{}", kCustomPrefix, number);
}

std::optional<CustomLimits> customLimits(ppd_file_t *ppd, const ppd_option_t &option) {
  ppd_coption_t *custom = ppdFindCustomOption(ppd, option.keyword);
  if (!custom || cupsArrayCount(custom->params) != 1) return {};
  const ppd_cparam_t *parameter = ppdFirstCustomParam(custom);
  const ppd_cplimit_t &minimum = parameter->minimum;
  const ppd_cplimit_t &maximum = parameter->maximum;
  switch (parameter->type) {
    case PPD_CUSTOM_INT:
      return CustomLimits{double(minimum.custom_int), double(maximum.custom_int), true};
    case PPD_CUSTOM_REAL:
      return CustomLimits{minimum.custom_real, maximum.custom_real, false};
    case PPD_CUSTOM_POINTS:
      return CustomLimits{minimum.custom_points, maximum.custom_points, false};
    default:
      return {};
  }
}

std::optional<NumberRange> numberRange(ppd_file_t *ppd, const ppd_option_t &option) {
  std::optional<NumberRange> range;
  const auto include = [&](double minimum, double maximum) {
    range = range
                ? NumberRange{std::min(range->minimum, minimum), std::max(range->maximum, maximum)}
                : NumberRange{minimum, maximum};
  };
  for (int i = 0; i < option.num_choices; ++i) {
    const std::string_view keyword = option.choices[i].choice;
    if (keyword == kCustom) continue;
    const auto number = wholeNumber(keyword);
    if (!number) return {};
    include(*number, *number);
  }
  if (const auto limits = customLimits(ppd, option)) include(limits->minimum, limits->maximum);
  return range;
}

std::optional<MarkableChoice> findMarkable(ppd_file_t *ppd, ppd_option_t &option,
                                           const std::string &requested) {
  const auto asked = customNumber(requested);
  const std::string_view text = asked.value_or(requested);
  const auto number = wholeNumber(text);
  if (!asked) {
    if (ppd_choice_t *listed = ppdFindChoice(&option, requested.c_str()))
      return MarkableChoice{listed, {}};
    for (int i = 0; number && i < option.num_choices; ++i)
      if (wholeNumber(option.choices[i].choice) == number)
        return MarkableChoice{&option.choices[i], {}};
  }
  ppd_choice_t *const custom = ppdFindChoice(&option, kCustom);
  const auto limits = customLimits(ppd, option);
  if (!custom || !limits || !number) return {};
  // The library keeps limits as float, so that is how the number meets them.
  const auto rounded = static_cast<float>(*number);
  if (rounded < static_cast<float>(limits->minimum) ||
      rounded > static_cast<float>(limits->maximum) ||
      (limits->integral && std::trunc(*number) != *number))
    return {};
  return MarkableChoice{custom, numberText(text, *number)};
}

}  // namespace kwopde::host
