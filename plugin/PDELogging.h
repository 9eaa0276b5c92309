// The diagnostic trace: one line a call, indented by call depth, so that the log of a print dialog
// reads as a call tree.
#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "platform/Controls.h"
#include "platform/LogSink.h"
#include "platform/Object.h"

namespace kwopde {

/// One argument of a trace line, typed, so that a conversion that does not fit it prints it as it
/// is instead of reading something else. It borrows what it names.
class TraceArgument {
public:
  struct Text {  // a C string or a string object
    const char *begin;
    std::size_t size;
    const void *address;
  };
  using Value = std::variant<std::int64_t, double, Text, const Object *, const void *>;

  TraceArgument(std::integral auto number) : value_(static_cast<std::int64_t>(number)) {}
  TraceArgument(double number) : value_(number) {}
  TraceArgument(const char *text);
  TraceArgument(std::string_view text) : value_(Text{text.data(), text.size(), text.data()}) {}
  TraceArgument(const std::string &text) : TraceArgument(std::string_view(text)) {}
  TraceArgument(const std::string *text);
  TraceArgument(const std::optional<std::string> &text) : TraceArgument(text ? &*text : nullptr) {}
  TraceArgument(const Object *object) : value_(object) {}
  TraceArgument(const void *pointer) : value_(pointer) {}
  template <std::derived_from<Object> T>
  TraceArgument(const std::shared_ptr<T> &object)
      : value_(static_cast<const Object *>(object.get())) {}
  template <class T>
  TraceArgument(const Outlet<T> &outlet) : value_(static_cast<const Object *>(outlet.get())) {}

  const Value &value() const { return value_; }

private:
  Value value_;
};

/// The entry line of a call, at the caller's depth; what follows is one level deeper. `self` is the
/// object whose method runs, and `format` a printf format that also knows %@ (an object's
/// description, or a string). Null objects and strings print as "(null)", null pointers as "0x0".
///
/// The object's description becomes part of the format before the arguments are filled in: a "%" in
/// it (a PPD text can hold one) acts as a conversion. A conversion that is unknown, or for which no
/// argument is left, prints as it stands; one whose argument is of another type prints it as %@
/// would; %n prints nothing.
void PDEProlog(const Object *self, std::string_view format,
               std::initializer_list<TraceArgument> arguments = {});

/// The exit line, back at the depth of the entry line. Every path out of a call writes exactly one.
void PDEEpilog(const Object *self, std::string_view format,
               std::initializer_list<TraceArgument> arguments = {});

/// A free line at the present depth; without an object it is not indented.
void PDELog(const Object *self, std::string_view format,
            std::initializer_list<TraceArgument> arguments = {});

/// Where lines go from now on; borrowed. Null stands for the system log.
void setTraceSink(LogSink *sink);

}  // namespace kwopde
