#include "platform/Escaped.h"

namespace kwopde {

namespace {

constexpr char kC1Lead = '\xC2';  // of U+0080 to U+00BF in UTF-8

/// The length of the control character that `text` begins with; 0 when it begins with another.
std::size_t controlAt(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (text[0] == kC1Lead && text.size() > 1)
    return static_cast<unsigned char>(text[1]) >= 0x80 && static_cast<unsigned char>(text[1]) < 0xA0
               ? 2
               : 0;
  return (first < 0x20 && first != '\t') || first == 0x7F ? 1 : 0;
}

}  // namespace

bool isPlain(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i)
    if (controlAt(text.substr(i)) != 0) return false;
  return true;
}

void appendEscaped(std::string &out, std::string_view text) {
  constexpr const char *digits = "0123456789ABCDEF";
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t length = controlAt(text.substr(i));
    if (length == 0) {
      out += text[i];
      continue;
    }
    i += length - 1;
    const auto code = static_cast<unsigned char>(text[i]);
    out += "\\x";
    out += digits[code >> 4];
    out += digits[code & 15];
  }
}

}  // namespace kwopde
