#include "script/Script.h"

#include "host/Error.h"
#include "platform/Object.h"

namespace kwopde::script {

namespace {

constexpr std::string_view kBlanks = " \t\r";

/// Reads the rest of a quoted word from `rest`, whose opening quote is gone.
std::string takeQuoted(std::string_view &rest) {
  std::string text;
  while (!rest.empty()) {
    char c = rest.front();
    rest.remove_prefix(1);
    if (c == '"') return text;
    if (c == '\\' && !rest.empty() && (rest.front() == '"' || rest.front() == '\\')) {
      c = rest.front();
      rest.remove_prefix(1);
    }
    text += c;
  }
  throw host::Error("a quoted word does not end");
}

}  // namespace

std::string quoted(std::string_view text) {
  std::string out;
  appendQuoted(out, text);
  return out;
}

bool isBlank(std::string_view line) {
  const auto start = line.find_first_not_of(kBlanks);
  return start == line.npos || line[start] == '#';
}

std::vector<Word> splitWords(std::string_view line) {
  std::vector<Word> words;
  for (;;) {
    if (isBlank(line)) return words;
    line.remove_prefix(line.find_first_not_of(kBlanks));
    std::string word;
    bool quoted = false;
    while (!line.empty() && kBlanks.find(line.front()) == kBlanks.npos) {
      const char c = line.front();
      line.remove_prefix(1);
      if (c == '"') {
        quoted = true;
        word += takeQuoted(line);
      } else {
        word += c;
      }
    }
    words.push_back(word == "nil" && !quoted ? Word() : Word(std::move(word)));
  }
}

}  // namespace kwopde::script
