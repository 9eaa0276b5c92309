#include "host/MarkableChoice.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>

#include "host/CupsOptions.h"

namespace kwopde::host {

namespace {

constexpr std::string_view kCustomPrefix = "Custom.";

/// `number` as it was spelled, unless that does not fit a field of the PPD's records.
std::string numberText(std::string_view spelled, double number) {
  if (spelled.starts_with('+')) spelled.remove_prefix(1);
  return spelled.size() < PPD_MAX_NAME ? std::string(spelled) : fmt::format("{}", number);
}

/// The units of lengths, in points, as lp(1) takes them.
constexpr struct {
  std::string_view suffix;
  double points;
} kUnits[] = {{"pt", 1},         {"in", 72},        {"ft", 864},
              {"mm", 72 / 25.4}, {"cm", 72 / 2.54}, {"m", 72 / 0.0254}};

/// Returns the length that all of `text` is, in points; none when it is something else.
std::optional<double> wholeLength(std::string_view text) {
  for (const auto &unit : kUnits)
    if (text.ends_with(unit.suffix))
      if (const auto number = wholeNumber(text.substr(0, text.size() - unit.suffix.size())))
        return *number * unit.points;
  return wholeNumber(text);
}

/// Returns the limits of a parameter that is a number; none for texts.
std::optional<CustomLimits> limitsOf(const ppd_cparam_t &parameter) {
  const ppd_cplimit_t &minimum = parameter.minimum;
  const ppd_cplimit_t &maximum = parameter.maximum;
  switch (parameter.type) {
    case PPD_CUSTOM_INT:
      return CustomLimits{double(minimum.custom_int), double(maximum.custom_int), true};
    case PPD_CUSTOM_REAL:
      return CustomLimits{minimum.custom_real, maximum.custom_real, false};
    case PPD_CUSTOM_POINTS:
      return CustomLimits{minimum.custom_points, maximum.custom_points, false};
    case PPD_CUSTOM_CURVE:
    case PPD_CUSTOM_INVCURVE:
      return CustomLimits{minimum.custom_curve, maximum.custom_curve, false};
    default:
      return {};
  }
}

/// Whether the parameter takes `value`: a number inside its limits, or a text of a length inside
/// them (digits only for a passcode).
bool takes(const ppd_cparam_t &parameter, std::string_view value) {
  if (const auto limits = limitsOf(parameter)) {
    const auto number =
        parameter.type == PPD_CUSTOM_POINTS ? wholeLength(value) : wholeNumber(value);
    return number && isWithin(*limits, *number);
  }
  const auto length = static_cast<int>(value.size());
  const bool isCode = value.find_first_not_of("0123456789") == value.npos;
  return length >= parameter.minimum.custom_string && length <= parameter.maximum.custom_string &&
         (parameter.type != PPD_CUSTOM_PASSCODE || isCode);
}

/// Whether the PPD takes the paper size "300x500", in points or with a unit behind it.
bool takesPaper(const ppd_file_t *ppd, std::string_view value) {
  const auto cross = value.find('x');
  if (!ppd->variable_sizes || cross == value.npos) return false;
  const auto length = wholeLength(value.substr(cross + 1));
  const auto suffix = value.substr(std::min(value.find_last_of("0123456789") + 1, value.size()));
  const auto width = wholeLength(fmt::format("{}{}", value.substr(0, cross), suffix));
  const auto fits = [&](double side, int index) {
    return isWithin({ppd->custom_min[index], ppd->custom_max[index], false}, side);
  };
  return width && length && fits(*width, 0) && fits(*length, 1);
}

/// Whether `option` takes `value` as its custom value: "85", or with several parameters or names
/// "{Width=10 Height=20}".
bool takesCustom(ppd_file_t *ppd, const ppd_option_t &option, std::string_view value) {
  ppd_coption_t *custom = ppdFindCustomOption(ppd, option.keyword);
  if (!custom) return false;
  if (std::string_view(option.keyword) == "PageSize") return takesPaper(ppd, value);
  if (!value.starts_with('{')) {
    const ppd_cparam_t *only = ppdFirstCustomParam(custom);
    return cupsArrayCount(custom->params) == 1 && takes(*only, value);
  }
  CupsOptions values;
  values.count = cupsParseOptions(std::string(value).c_str(), 0, &values.options);
  for (int i = 0; i < values.count; ++i) {
    const ppd_cparam_t *parameter = ppdFindCustomParam(custom, values.options[i].name);
    if (!parameter || !takes(*parameter, values.options[i].value)) return false;
  }
  return values.count > 0;
}

}  // namespace

bool isWithin(const CustomLimits &limits, double number) {
  // The library keeps limits as float, so that is how the number meets them.
  const auto rounded = static_cast<float>(number);
  return rounded >= static_cast<float>(limits.minimum) &&
         rounded <= static_cast<float>(limits.maximum) &&
         (!limits.integral || std::trunc(number) == number);
}

std::optional<double> wholeNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (read.ec != std::errc() || read.ptr != text.data() + text.size() || !std::isfinite(number))
    return {};
  return number;
}

std::optional<std::string_view> customValue(std::string_view keyword) {
  if (keyword.starts_with('{')) return keyword;
  if (!keyword.starts_with(kCustomPrefix)) return {};
  return keyword.substr(kCustomPrefix.size());
}

std::optional<double> choiceNumber(std::string_view keyword) {
  return wholeNumber(customValue(keyword).value_or(keyword));
}

std::string MarkableChoice::keyword() const {
  if (custom.empty()) return choice->choice;
  return custom.starts_with('{') ? custom : fmt::format("{}{}", kCustomPrefix, custom);
}

std::optional<CustomLimits> customLimits(ppd_file_t *ppd, const ppd_option_t &option) {
  ppd_coption_t *custom = ppdFindCustomOption(ppd, option.keyword);
  if (!custom || cupsArrayCount(custom->params) != 1) return {};
  return limitsOf(*ppdFirstCustomParam(custom));
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
  ppd_choice_t *const custom = ppdFindChoice(&option, kCustom);
  if (const auto value = customValue(requested)) {
    const bool taken = custom && takesCustom(ppd, option, *value);
    return taken ? std::optional(MarkableChoice{custom, std::string(*value)}) : std::nullopt;
  }
  if (ppd_choice_t *listed = ppdFindChoice(&option, requested.c_str())) {
    // The choice that stands for custom values is none without a value.
    if (listed == custom && ppdFindCustomOption(ppd, option.keyword)) return {};
    return MarkableChoice{listed, {}};
  }
  const auto number = wholeNumber(requested);
  for (int i = 0; number && i < option.num_choices; ++i)
    if (wholeNumber(option.choices[i].choice) == number)
      return MarkableChoice{&option.choices[i], {}};
  const auto limits = customLimits(ppd, option);
  if (!custom || !limits || !number || !isWithin(*limits, *number)) return {};
  return MarkableChoice{custom, numberText(requested, *number)};
}

}  // namespace kwopde::host
