// The script language of `kwopde run`, as text: docs/script.md describes it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kwopde::host {

/// A word of a command; no text stands for `nil`.
using Word = std::optional<std::string>;

/// The words of `line`, a command without its line end; none for a blank line or a comment. Throws
/// `Error` when a quoted word does not end.
std::vector<Word> splitWords(std::string_view line);

}  // namespace kwopde::host
