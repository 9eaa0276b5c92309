// The root of every object that the trace can name.
#pragma once

#include <string>
#include <string_view>

namespace kwopde {

class Object {
public:
  Object() = default;
  Object(const Object &) = delete;
  Object &operator=(const Object &) = delete;
  virtual ~Object() = default;

  /// Returns the name of the object's own class; never empty, valid for the process's life.
  virtual std::string_view className() const = 0;

  /// Returns the address that the trace shows for this object: its own, or that of a toolkit's
  /// object which it stands for. Never null, and the same at every call.
  virtual const void *address() const { return this; }

  /// Appends the text that stands for this object in the trace; "<ClassName: 0xADDRESS>" unless a
  /// class says more. May be called at any time, also in the middle of another trace line.
  virtual void appendDescription(std::string &out) const;

  std::string description() const;
};

/// Appends `address` as "0x" and lower-case hexadecimal digits; null is "0x0" on every platform.
void appendAddress(std::string &out, const void *address);

/// Appends `text` in double quotes, with a backslash before each quote and backslash inside.
void appendQuoted(std::string &out, std::string_view text);

}  // namespace kwopde
