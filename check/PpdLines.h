// Where a PPD file says what about the options of panels. The CUPS library keeps no lines, and of
// the translations only those of one language.
#pragma once

#include <cstdio>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "host/OptionChoice.h"

namespace kwopde::check {

/// Orders keywords as PPDs tell them apart: letter case has no say.
struct KeywordLess {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const;
};
using KeywordSet = std::set<std::string, KeywordLess>;
template <class T>
using KeywordMap = std::map<std::string, T, KeywordLess>;

/// Returns whether two keywords are the same but for letter case.
using host::isSameKey;

/// A constraint, or a resolver of one, that names an option of interest.
struct ConstraintLine {
  int line;
  bool isResolver;
  /// What it names; an empty choice stands for every choice that chooses something.
  std::vector<host::OptionChoice> members;
};

/// Lines count from 1; 0 is a line that the file does not have.
class PpdLines {
public:
  /// A text in another language than the file's own.
  struct Translation {
    std::string language;  // "de", "pt_BR"
    std::string choice;    // a keyword; empty for the option's title
    std::string text;      // as its bytes stand
    int line;
  };
  struct Choice {
    std::vector<int> lines;      // more than one when it is given more than once
    std::size_t textLength = 0;  // bytes of the first
  };
  struct Option {
    std::vector<int> opened;  // more than one when it is defined more than once
    std::size_t titleLength = 0;
    int defaultLine = 0;
    int customLine = 0;  // of its custom values
    KeywordMap<Choice> choices;
    std::vector<Translation> translations;

    int line() const { return opened.empty() ? 0 : opened.front(); }
    /// Returns the keyword of a choice of the CUPS library as the file has it: the library reads
    /// "Custom" as "_Custom".
    std::string_view asWritten(std::string_view keyword) const;
    /// Returns the choice with a keyword; null when the file does not have it.
    const Choice *choice(std::string_view keyword) const;
    /// Returns the first line of a choice, or that of the option for null.
    int lineOf(const Choice *choice) const { return choice ? choice->lines.front() : line(); }
    int lineOf(std::string_view keyword) const { return lineOf(choice(keyword)); }
  };

  /// Reads `file`, which stays the caller's, from its beginning, and keeps what it says about the
  /// options `keys`. Every constraint that names one of them goes to `visit`.
  PpdLines(std::FILE *file, const KeywordSet &keys,
           const std::function<void(const ConstraintLine &)> &visit);

  /// Returns what the file says about an option; empty when that is nothing.
  const Option &of(std::string_view key) const;

private:
  Option *find(std::string_view key);

  KeywordMap<Option> options_;
};

}  // namespace kwopde::check
