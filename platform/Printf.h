// printf with typed arguments: it prints the wrong thing at worst, and never reads past them.
#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "platform/Object.h"

namespace kwopde {

/// One argument of a format. It carries its type, so that a conversion that does not fit prints it
/// as it is instead of reading something else. It borrows what it names.
class PrintfArgument {
public:
  struct Text {  // a C string or a string object
    const char *begin;
    std::size_t size;
    const void *address;
  };
  using Value = std::variant<std::int64_t, double, Text, const Object *, const void *>;

  PrintfArgument(std::integral auto number) : value_(static_cast<std::int64_t>(number)) {}
  PrintfArgument(double number) : value_(number) {}
  PrintfArgument(const char *text);
  PrintfArgument(std::string_view text) : value_(Text{text.data(), text.size(), text.data()}) {}
  PrintfArgument(const std::string &text) : PrintfArgument(std::string_view(text)) {}
  PrintfArgument(const std::string *text);
  PrintfArgument(const std::optional<std::string> &text)
      : PrintfArgument(text ? &*text : nullptr) {}
  PrintfArgument(const Object *object) : value_(object) {}
  PrintfArgument(const void *pointer) : value_(pointer) {}
  template <std::derived_from<Object> T>
  PrintfArgument(const std::shared_ptr<T> &object)
      : value_(static_cast<const Object *>(object.get())) {}

  const Value &value() const { return value_; }

private:
  Value value_;
};

/// Appends `format`, filled with `arguments` in order. The conversions are C's, and %@ for an
/// object's description or a string. Null objects and strings print as "(null)", null pointers as
/// "0x0". A conversion that is unknown, or for which no argument is left, prints as it stands; one
/// whose argument is of another type prints it as %@ would; %n prints nothing. The locale has no
/// say.
void appendPrintf(std::string &out, std::string_view format,
                  std::span<const PrintfArgument> arguments);

/// Returns `format`, filled the same way.
std::string printfText(std::string_view format, std::initializer_list<PrintfArgument> arguments);

}  // namespace kwopde
