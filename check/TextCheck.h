// Whether people can read the texts of panels, and tell them apart, in every language of a PPD.
#pragma once

#include <cups/ppd.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "check/Findings.h"
#include "check/PpdLines.h"
#include "platform/PanelInspector.h"

namespace kwopde::check {

/// Texts that stand side by side, such as the items of a menu, in the PPD's own language (an empty
/// name) and in others. What a language does not translate is shown as in its general one, "pt" for
/// "pt_BR", or else in the PPD's own.
class Texts {
public:
  struct Text {
    std::string owner;  // a keyword
    std::string text;
    int line;
  };

  /// The first text of an owner in a language counts.
  void add(std::string_view language, Text text);

  /// Calls `visit` for every text that is shown for another owner as well.
  using Visit =
      std::function<void(const std::string &language, const Text &text, const Text &other)>;
  void visitEqual(const Visit &visit) const;

private:
  struct Language {
    std::vector<Text> texts;
    KeywordMap<std::size_t> byOwner;                                   // places among them
    std::unordered_map<std::string, std::vector<std::size_t>> byText;  // the same, in order
  };

  /// The languages that texts are looked for in, where this one has them: itself first.
  std::vector<const Language *> shownIn(const std::string &language) const;
  const Text *otherWith(const Text &text, const std::vector<const Language *> &shown) const;

  std::map<std::string, Language> languages_;
};

/// Checks the title of an option and the texts of its choices.
void checkTexts(const ppd_option_t &option, const PanelOption &row, const PpdLines::Option &lines,
                Findings &findings);

/// Checks that the summary of a panel, whose options are `rows`, tells them apart. It has a line
/// for every number, also for one that the PPD does not have.
void checkTitles(ppd_file_t *ppd, const std::vector<PanelOption> &rows, const PpdLines &lines,
                 Findings &findings);

}  // namespace kwopde::check
