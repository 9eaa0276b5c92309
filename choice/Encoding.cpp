#include "choice/Encoding.h"

#include <utf8.h>

#include <algorithm>
#include <cstring>

namespace kwopde {

std::optional<std::string> stringFromBytes(const char *bytes, std::size_t capacity,
                                           Encoding encoding) {
  if (!bytes) return {};
  std::string text(bytes, strnlen(bytes, capacity));
  const bool valid = encoding == Encoding::utf8 ? utf8::is_valid(text.begin(), text.end())
                                                : std::all_of(text.begin(), text.end(), [](char c) {
                                                    return static_cast<unsigned char>(c) < 0x80;
                                                  });
  if (!valid) return {};
  return text;
}

}  // namespace kwopde
