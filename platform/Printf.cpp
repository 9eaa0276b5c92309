#include "platform/Printf.h"

#include <fmt/printf.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <type_traits>

#include "platform/Numbers.h"

namespace kwopde {

namespace {

/// A printf conversion: "%-8.3lf" has flags "-", width 8, precision 3 and conversion 'f'.
struct Conversion {
  static constexpr int kNone = -1;
  static constexpr int kFromArgument = -2;
  /// Wider fields are cut to this: a text of the PPD may ask for any width.
  static constexpr int kWidest = 1000;

  std::string_view flags;
  int width = kNone;
  int precision = kNone;
  char conversion = 0;

  bool isPlain() const { return flags.empty() && width == kNone && precision == kNone; }
};

/// Reads a width or precision at the start of `rest` and takes it off.
int takeCount(std::string_view &rest) {
  if (rest.starts_with('*')) {
    rest.remove_prefix(1);
    return Conversion::kFromArgument;
  }
  const auto digits = std::min(rest.find_first_not_of("0123456789"), rest.size());
  const int count = digits ? std::min(leadingInteger(rest.substr(0, digits)), Conversion::kWidest)
                           : Conversion::kNone;
  rest.remove_prefix(digits);
  return count;
}

/// Reads the conversion after a "%" and takes it off `rest`; none, with nothing taken, when it is
/// not one.
std::optional<Conversion> takeConversion(std::string_view &rest) {
  std::string_view ahead = rest;
  Conversion found;
  found.flags = ahead.substr(0, ahead.find_first_not_of("-+ #0'"));
  ahead.remove_prefix(found.flags.size());
  found.width = takeCount(ahead);
  if (ahead.starts_with('.')) {
    ahead.remove_prefix(1);
    found.precision = takeCount(ahead);
    if (found.precision == Conversion::kNone) found.precision = 0;
  }
  ahead.remove_prefix(std::min(ahead.find_first_not_of("hlqLjzt"), ahead.size()));
  if (ahead.empty() || !std::strchr("@diouxXcsSCpfFeEgGaAn%", ahead.front())) return {};
  found.conversion = ahead.front();
  ahead.remove_prefix(1);
  rest = ahead;
  return found;
}

/// Fills a format with arguments, in order.
class Expansion {
public:
  Expansion(std::string &out, std::span<const PrintfArgument> arguments)
      : out_(out), arguments_(arguments) {}

  void append(std::string_view format) {
    for (;;) {
      const auto percent = format.find('%');
      out_ += format.substr(0, percent);
      if (percent == format.npos) return;
      std::string_view rest = format.substr(percent + 1);
      const auto conversion = takeConversion(rest);
      if (!conversion || !append(*conversion)) {
        rest = format.substr(percent + 1);
        out_ += '%';
      }
      format = rest;
    }
  }

private:
  /// False, with nothing written and nothing taken, when the arguments do not reach.
  bool append(Conversion conversion) {
    if (conversion.conversion == '%') {
      out_ += '%';
      return true;
    }
    const auto untouched = arguments_;
    std::string flags(conversion.flags);
    if (!fromArgument(conversion.width) || !fromArgument(conversion.precision) ||
        arguments_.empty()) {
      arguments_ = untouched;
      return false;
    }
    if (conversion.width <
        Conversion::kNone) {  // a negative width from an argument: left-justified
      flags += '-';
      conversion.width = -conversion.width;
    }
    conversion.flags = flags;
    std::visit([&](auto value) { append(conversion, value); }, arguments_.front().value());
    arguments_ = arguments_.subspan(1);
    return true;
  }

  bool fromArgument(int &count) {
    if (count != Conversion::kFromArgument) return true;
    if (arguments_.empty()) return false;
    const auto *number = std::get_if<std::int64_t>(&arguments_.front().value());
    count = number ? static_cast<int>(std::clamp<std::int64_t>(*number, -Conversion::kWidest,
                                                               Conversion::kWidest))
                   : Conversion::kNone;
    arguments_ = arguments_.subspan(1);
    return true;
  }

  template <class T>
  void append(const Conversion &conversion, T value) {
    const char kind = conversion.conversion;
    if (kind == 'n') return;
    if constexpr (std::is_arithmetic_v<T>) {
      if (std::strchr("diouxXc", kind)) {
        if constexpr (std::is_same_v<T, double>)
          appendPrintf(conversion, truncatedInteger(value));
        else if (conversion.isPlain() && (kind == 'd' || kind == 'i'))
          appendPlain(value);  // as most numbers are
        else
          appendPrintf(conversion, value);
        return;
      }
      if (std::strchr("fFeEgGaA", kind))
        return appendPrintf(conversion, static_cast<double>(value));
    } else if (kind == 'p') {
      return appendPadded(conversion, [&] { appendAddress(out_, addressOf(value)); });
    }
    appendPadded(conversion, [&] { appendPlain(value); });
  }

  /// Numbers take every flag that C knows; the library formats them.
  template <class Number>
  void appendPrintf(const Conversion &conversion, Number number) {
    std::string format = "%";
    for (const char flag : conversion.flags)
      if (flag != '\'' && format.find(flag) == format.npos) format += flag;
    if (conversion.width > 0) format += std::to_string(conversion.width);
    if (conversion.precision >= 0) format += fmt::format(".{}", conversion.precision);
    format += conversion.conversion;
    out_ += fmt::sprintf(format, number);
  }

  /// Everything else is text, cut to the precision and padded to the width.
  void appendPadded(const Conversion &conversion, auto &&write) {
    const auto start = out_.size();
    write();
    if (conversion.conversion != 'p' && conversion.precision >= 0)
      out_.resize(std::min(out_.size(), start + static_cast<std::size_t>(conversion.precision)));
    const auto width = static_cast<std::size_t>(std::max(conversion.width, 0));
    if (const auto length = out_.size() - start; length < width) {
      const bool left = conversion.flags.find('-') != std::string_view::npos;
      out_.insert(left ? out_.size() : start, width - length, ' ');
    }
  }

  void appendPlain(std::int64_t number) { fmt::format_to(std::back_inserter(out_), "{}", number); }
  void appendPlain(double number) { out_ += shortestText(number); }
  void appendPlain(const PrintfArgument::Text &text) { out_.append(text.begin, text.size); }
  void appendPlain(const void *pointer) { appendAddress(out_, pointer); }
  void appendPlain(const Object *object) {
    if (object)
      object->appendDescription(out_);
    else
      out_ += "(null)";
  }

  static const void *addressOf(const PrintfArgument::Text &text) { return text.address; }
  static const void *addressOf(const void *pointer) { return pointer; }
  static const void *addressOf(const Object *object) {
    return object ? object->address() : nullptr;
  }

  std::string &out_;
  std::span<const PrintfArgument> arguments_;
};

}  // namespace

PrintfArgument::PrintfArgument(const char *text)
    : PrintfArgument(text ? std::string_view(text) : std::string_view("(null)")) {
  std::get<Text>(value_).address = text;
}

PrintfArgument::PrintfArgument(const std::string *text)
    : PrintfArgument(text ? std::string_view(*text) : std::string_view("(null)")) {
  std::get<Text>(value_).address = text;
}

void appendPrintf(std::string &out, std::string_view format,
                  std::span<const PrintfArgument> arguments) {
  Expansion(out, arguments).append(format);
}

std::string printfText(std::string_view format, std::initializer_list<PrintfArgument> arguments) {
  std::string text;
  appendPrintf(text, format, {arguments.begin(), arguments.size()});
  return text;
}

}  // namespace kwopde
