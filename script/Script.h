// The script language of `kwopde run`, as text: docs/script.md describes it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kwopde::script {

/// A word of a command; no text stands for `nil`.
using Word = std::optional<std::string>;

/// Returns the word as an argument of the contract; null for `nil`.
inline const std::string *pointerTo(const Word &word) {
  return word ? &*word : nullptr;
}

/// Returns `answer` as a transcript shows it.
inline const char *yesOrNo(bool answer) {
  return answer ? "YES" : "NO";
}

/// Returns `text` as a transcript shows it, in double quotes.
std::string quoted(std::string_view text);

/// Returns whether `line` holds no command: it is blank or a comment.
bool isBlank(std::string_view line);

/// Returns the words of `line`, a command without its line end; none when it is blank. Throws
/// `Error` when a quoted word does not end.
std::vector<Word> splitWords(std::string_view line);

}  // namespace kwopde::script
