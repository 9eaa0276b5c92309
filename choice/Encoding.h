// Strings made from the bytes of a PPD record.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace kwopde {

/// The string encodings, with the numbers that the trace shows for them.
enum class Encoding { unset = 0, ascii = 1, utf8 = 4 };

/// Returns the zero-terminated text in the first `capacity` bytes at `bytes` (PPD_MAX_TEXT or
/// PPD_MAX_NAME); none when `bytes` is null or not valid in `encoding`. A text that fills its field
/// has been cut, maybe in the middle of a character, and is then not valid.
std::optional<std::string> stringFromBytes(const char *bytes, std::size_t capacity,
                                           Encoding encoding);

}  // namespace kwopde
