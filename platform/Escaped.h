// Text from elsewhere, made safe to show on one line.
#pragma once

#include <string>
#include <string_view>

namespace kwopde {

/// Returns whether `text` has no control characters, C1 included, other than tabs.
bool isPlain(std::string_view text);

/// Appends `text` to `out`, with its control characters other than tabs as \x and two digits.
void appendEscaped(std::string &out, std::string_view text);

}  // namespace kwopde
