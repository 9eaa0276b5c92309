#include "platform/Numbers.h"

#include <locale.h>  // newlocale, strtod_l

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace kwopde {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

struct SignedText {
  bool negative = false;
  std::string_view magnitude;  // starts with a digit or a point, or is of no use
};

SignedText splitSign(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
  SignedText result{false, text};
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    result.negative = text.front() == '-';
    result.magnitude.remove_prefix(1);
  }
  return result;
}

}  // namespace

int leadingInteger(std::string_view text) {
  const auto [negative, magnitude] = splitSign(text);
  if (magnitude.empty() || !isDigit(magnitude.front())) return 0;
  long long number = 0;
  const auto read = std::from_chars(magnitude.data(), magnitude.data() + magnitude.size(), number);
  if (read.ec != std::errc()) number = std::numeric_limits<long long>::max();
  return static_cast<int>(std::clamp<long long>(negative ? -number : number,
                                                std::numeric_limits<int>::min(),
                                                std::numeric_limits<int>::max()));
}

double leadingDouble(std::string_view text) {
  const auto [negative, magnitude] = splitSign(text);
  const std::size_t first = magnitude.starts_with('.') ? 1 : 0;
  if (magnitude.size() <= first || !isDigit(magnitude[first])) return 0;  // also "inf" and "nan"
  double number = 0;
  const auto read = std::from_chars(magnitude.data(), magnitude.data() + magnitude.size(), number);
  if (read.ec == std::errc::result_out_of_range) {
    // from_chars does not tell too large from too small; the C library does.
    number = std::min(atofInCLocale(std::string(magnitude.data(), read.ptr).c_str()),
                      std::numeric_limits<double>::max());
  }
  return negative ? -number : number;
}

double atofInCLocale(const char *text) {
  static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
  return strtod_l(text, nullptr, cLocale);
}

int truncatedInteger(double number) {
  if (std::isnan(number)) return 0;
  return static_cast<int>(std::clamp(number, double{std::numeric_limits<int>::min()},
                                     double{std::numeric_limits<int>::max()}));
}

double cutToHundredths(double number) {
  return truncatedInteger(number * 100.0) / 100.0;
}

std::string shortestText(double number) {
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return {digits.data(), end.ptr};
}

}  // namespace kwopde
