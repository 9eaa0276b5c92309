#include "platform/Object.h"

#include <array>
#include <charconv>
#include <cstdint>

namespace kwopde {

void Object::appendDescription(std::string &out) const {
  out += '<';
  out += className();
  out += ": ";
  appendAddress(out, address());
  out += '>';
}

std::string Object::description() const {
  std::string text;
  appendDescription(text);
  return text;
}

void appendAddress(std::string &out, const void *address) {
  std::array<char, 2 * sizeof(address)> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                 reinterpret_cast<std::uintptr_t>(address), 16);
  out += "0x";
  out.append(digits.data(), end.ptr);
}

void appendQuoted(std::string &out, std::string_view text) {
  out += '"';
  for (const char c : text) {
    if (c == '"' || c == '\\') out += '\\';
    out += c;
  }
  out += '"';
}

}  // namespace kwopde
