#include "check/PpdLines.h"

#include <stdio.h>  // getline

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <sstream>

#include "host/MarkableChoice.h"

namespace kwopde::check {

namespace {

constexpr bool isLineEnd(char c) {
  return c == '\n' || c == '\r';
}

constexpr bool isBlank(char c) {
  return c == ' ' || c == '\t' || isLineEnd(c);
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// Returns what stands before the first byte that is an end, and leaves the rest in `rest`.
template <class IsEnd>
std::string_view take(std::string_view &rest, IsEnd isEnd) {
  const auto end = std::find_if(rest.begin(), rest.end(), isEnd);
  const auto taken = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
  rest.remove_prefix(taken.size());
  return taken;
}

/// Returns a text with its hexadecimal parts, "<C3A9>", as the bytes that they stand for.
std::string decoded(std::string_view text) {
  if (text.find('<') == text.npos && text.find('>') == text.npos) return std::string(text);
  constexpr std::string_view kDigits = "0123456789abcdefABCDEF";
  std::string bytes;
  int half = -1;
  bool isHex = false;
  for (const char c : text) {
    if (c == '<' || c == '>') {
      isHex = c == '<';
      half = -1;
    } else if (!isHex) {
      bytes += c;
    } else if (const auto place = kDigits.find(c); place != kDigits.npos) {
      const int digit = static_cast<int>(place < 16 ? place : place - 6);
      if (half >= 0) bytes += static_cast<char>(half * 16 + digit);
      half = half >= 0 ? -1 : digit;
    }
  }
  return bytes;
}

/// "*keyword option/text: value", where all but the keyword may be missing.
struct Statement {
  std::string_view keyword;
  std::string_view option;
  std::string_view text;
  std::string_view value;  // without its quotes

  explicit Statement(std::string_view line) {
    keyword = take(line, [](char c) { return c == ':' || isBlank(c); });
    option = trimmed(take(line, [](char c) { return c == ':' || c == '/'; }));
    if (line.starts_with('/')) {
      line.remove_prefix(1);
      text = trimmed(take(line, [](char c) { return c == ':'; }));
    }
    if (!line.empty()) line.remove_prefix(1);
    value = trimmed(line);
    if (!value.starts_with('"')) return;
    value.remove_prefix(1);
    value = value.substr(0, value.find('"'));
  }

  std::string translation() const { return decoded(text.empty() ? value : text); }
};

/// Reads statements, whose quoted values may go over several lines; the ends of lines are those of
/// any system.
class Reader {
public:
  /// `file` stays the caller's.
  explicit Reader(std::FILE *file) : file_(file) {}

  /// Puts the next statement, without its star, into `statement`, and its line into `line`.
  /// Returns false at the end.
  bool next(std::string &statement, int &line) {
    while (readLine(statement, line))
      if (statement.starts_with('*') && !statement.starts_with("*%")) {
        statement.erase(0, 1);
        return true;
      }
    return false;
  }

private:
  /// Reads a line, and those after it while a value's quote is open.
  bool readLine(std::string &text, int &line) {
    text.clear();
    line = line_ + 1;
    bool hasValue = false;
    bool isQuoted = false;
    for (std::string_view part; readPart(part);) {
      text += part;
      if (text.starts_with("*%")) return true;
      const auto value = hasValue ? 0 : part.find(':');
      hasValue = value != part.npos;
      for (auto quote = part.find('"', value); quote != part.npos;
           quote = part.find('"', quote + 1))
        isQuoted = !isQuoted;
      if (!isQuoted) return true;
      text += '\n';
    }
    return !text.empty();
  }

  /// Reads what stands before the next end of a line; it is there until the next call.
  bool readPart(std::string_view &part) {
    if (rest_.empty()) {
      char *buffer = buffer_.release();
      const auto size = getline(&buffer, &capacity_, file_);
      buffer_.reset(buffer);
      if (size < 0) return false;
      rest_ = {buffer, static_cast<std::size_t>(size)};
    }
    part = take(rest_, isLineEnd);
    rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : std::min<std::size_t>(rest_.size(), 1));
    ++line_;
    return true;
  }

  struct Free {
    void operator()(char *memory) const { std::free(memory); }
  };

  std::unique_ptr<char, Free> buffer_;
  std::size_t capacity_ = 0;
  std::string_view rest_;  // of the buffer
  std::FILE *file_;
  int line_ = 0;
};

bool skip(std::string_view &text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

std::string_view withoutStar(std::string_view key) {
  skip(key, "*");
  return key;
}

bool isConstraint(std::string_view keyword) {
  return keyword == "UIConstraints" || keyword == "NonUIConstraints" ||
         keyword == "cupsUIConstraints" || keyword == "cupsUIResolver";
}

/// Returns the language of a keyword such as "pt_BR.printFinish", and leaves the rest in it.
std::string_view takeLanguage(std::string_view &keyword) {
  const auto point = keyword.find('.');
  if (point == keyword.npos) return {};
  const auto language = keyword.substr(0, point);
  keyword.remove_prefix(point + 1);
  return language;
}

/// Reads "*printFinish Matte *CustompageScale True *colorMode".
std::vector<host::OptionChoice> membersOf(std::string_view value) {
  std::vector<host::OptionChoice> members;
  std::istringstream words{std::string(value)};
  for (std::string word; words >> word;)
    if (word.starts_with('*'))
      members.push_back({word.substr(1), {}});
    else if (!members.empty())
      members.back().choice = word;
  constexpr std::string_view kCustom = host::kCustom;
  for (auto &[key, choice] : members)
    if (isSameKey(choice, "True") && key.size() > kCustom.size() &&
        isSameKey(std::string_view(key).substr(0, kCustom.size()), kCustom)) {
      key.erase(0, kCustom.size());
      choice = kCustom;
    }
  return members;
}

}  // namespace

bool KeywordLess::operator()(std::string_view a, std::string_view b) const {
  const auto inLowerCase = [](char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c; };
  const std::size_t shorter = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < shorter; ++i) {
    if (a[i] == b[i]) continue;
    const auto one = inLowerCase(a[i]);
    const auto other = inLowerCase(b[i]);
    if (one != other) return one < other;
  }
  return a.size() < b.size();
}

std::string_view PpdLines::Option::asWritten(std::string_view keyword) const {
  const bool isRenamed = keyword.starts_with('_') && !choices.contains(keyword);
  return keyword.substr(isRenamed ? 1 : 0);
}

const PpdLines::Choice *PpdLines::Option::choice(std::string_view keyword) const {
  const auto found = choices.find(keyword);
  return found == choices.end() ? nullptr : &found->second;
}

PpdLines::PpdLines(std::FILE *file, const KeywordSet &keys,
                   const std::function<void(const ConstraintLine &)> &visit) {
  for (const std::string &key : keys) options_[key];
  if (std::fseek(file, 0, SEEK_SET) != 0) return;
  Reader reader(file);
  std::string text;
  for (int line = 0; reader.next(text, line);) {
    const Statement statement(text);
    std::string_view keyword = statement.keyword;
    Option *option = nullptr;
    const auto isAbout = [&](std::string_view key) { return (option = find(key)) != nullptr; };
    if (isConstraint(keyword)) {
      const ConstraintLine constraint{line, keyword == "cupsUIResolver",
                                      membersOf(statement.value)};
      if (std::any_of(constraint.members.begin(), constraint.members.end(),
                      [&](const auto &member) { return isAbout(member.key); }))
        visit(constraint);
    } else if (keyword == "OpenUI" || keyword == "JCLOpenUI") {
      if (!isAbout(withoutStar(statement.option))) continue;
      option->opened.push_back(line);
      option->titleLength = std::max(option->titleLength, decoded(statement.text).size());
    } else if (isAbout(keyword)) {
      Choice &choice = option->choices[std::string(statement.option)];
      if (choice.lines.empty()) choice.textLength = decoded(statement.text).size();
      choice.lines.push_back(line);
    } else if (skip(keyword, "Default")) {
      if (isAbout(keyword)) option->defaultLine = line;
    } else if (skip(keyword, "Custom")) {
      if (isAbout(keyword)) option->customLine = line;
    } else if (const auto language = takeLanguage(keyword); !language.empty()) {
      const bool isTitle = keyword == "Translation";
      if (isAbout(isTitle ? statement.option : keyword))
        option->translations.push_back({std::string(language),
                                        std::string(isTitle ? "" : statement.option),
                                        statement.translation(), line});
    }
  }
}

PpdLines::Option *PpdLines::find(std::string_view key) {
  const auto option = options_.find(key);
  return option == options_.end() ? nullptr : &option->second;
}

const PpdLines::Option &PpdLines::of(std::string_view key) const {
  static const Option nothing;
  const auto option = options_.find(key);
  return option == options_.end() ? nothing : option->second;
}

}  // namespace kwopde::check
