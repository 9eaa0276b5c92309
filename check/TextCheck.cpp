#include "check/TextCheck.h"

#include <fmt/format.h>
#include <utf8.h>

#include <algorithm>
#include <utility>

#include "check/NumberCheck.h"

namespace kwopde::check {

namespace {

using Severity = Finding::Severity;

constexpr std::size_t kMostBytes = PPD_MAX_TEXT - 1;

constexpr ChoiceFault kNotUtf8{Severity::error, "the text of ", " is not valid UTF-8",
                               "write the file in UTF-8 with *LanguageEncoding: UTF-8"};
constexpr ChoiceFault kCut{Severity::warning, "the text of ",
                           " is longer than 80 bytes, so it is shown cut, and programs that keep "
                           "to the format do not open the file",
                           "shorten the text"};
constexpr ChoiceFault kEmpty{Severity::error, "the text of ", " is empty, so nothing is shown",
                             "write a text"};
constexpr ChoiceFault kControl{Severity::error, "the text of ",
                               " has a control character, which dialogs show as they like",
                               "write letters and blanks only"};
constexpr ChoiceFault kSameText{Severity::error, "the text of ",
                                " is also that of {}, and nobody can tell them apart",
                                "give the choices different texts"};
constexpr ChoiceFault kSameTitle{Severity::error, "",
                                 " is also what the summary calls {}, so it shows one of the two",
                                 "give the two options different texts"};

bool isControl(char c) {
  return (c > 0 && c < ' ') || c == 0x7F;
}

bool isBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == text.npos;
}

/// Checks a text that the file has in `length` bytes.
void checkText(std::string_view text, std::size_t length, const FaultyChoice &place,
               Findings &findings) {
  const auto *const end = text.data() + text.size();
  const auto *const invalid = utf8::find_invalid(text.data(), end);
  // What ends within a character was cut when it was made UTF-8.
  const bool endsCut = text.size() == kMostBytes && end - invalid < 4;
  if (length > kMostBytes || (invalid != end && endsCut))
    findings.add(kCut, place);
  else if (invalid != end)
    findings.add(kNotUtf8, place);
  if (isBlank(text))
    findings.add(kEmpty, place);
  else if (std::any_of(text.begin(), text.end(), isControl))
    findings.add(kControl, place);
}

}  // namespace

void Texts::add(std::string_view name, Text text) {
  Language &language = languages_[std::string(name)];
  const auto place = language.texts.size();
  if (!language.byOwner.try_emplace(text.owner, place).second) return;
  language.byText[text.text].push_back(place);
  language.texts.push_back(std::move(text));
}

std::vector<const Texts::Language *> Texts::shownIn(const std::string &language) const {
  std::vector<const Language *> shown;
  for (const auto &name : {language, language.substr(0, language.find('_')), std::string()}) {
    const auto found = languages_.find(name);
    if (found != languages_.end() && (shown.empty() || shown.back() != &found->second))
      shown.push_back(&found->second);
  }
  return shown;
}

const Texts::Text *Texts::otherWith(const Text &text,
                                    const std::vector<const Language *> &shown) const {
  for (auto from = shown.begin(); from != shown.end(); ++from) {
    const auto same = (*from)->byText.find(text.text);
    if (same == (*from)->byText.end()) continue;
    for (const std::size_t place : same->second) {
      const Text &other = (*from)->texts[place];
      if (&other == &text) break;  // the later ones tell of this one
      const bool isShown = std::none_of(shown.begin(), from, [&](const Language *before) {
        return before->byOwner.contains(other.owner);
      });
      if (isShown) return &other;
    }
  }
  return nullptr;
}

void Texts::visitEqual(const Visit &visit) const {
  for (const auto &[name, language] : languages_) {
    const auto shown = shownIn(name);
    for (const Text &text : language.texts)
      if (const Text *other = otherWith(text, shown)) visit(name, text, *other);
  }
}

void checkTexts(const ppd_option_t &option, const PanelOption &row, const PpdLines::Option &lines,
                Findings &findings) {
  checkText(option.text, lines.titleLength, {row.key, {}, lines.line()}, findings);
  const bool isMenu = row.kind == PanelOption::Kind::choice;
  Texts texts;
  const bool isTranslated =
      std::any_of(lines.translations.begin(), lines.translations.end(),
                  [](const PpdLines::Translation &given) { return !given.choice.empty(); });
  KeywordMap<const ppd_choice_t *> choices;
  const auto add = [&](const ppd_choice_t &choice, std::string_view text, std::size_t length,
                       const FaultyChoice &place) {
    checkText(text, length, place, findings);
    if (isMenu)
      texts.add(place.language,
                {choice.choice, std::string(text.substr(0, kMostBytes)), place.line});
    else if (!isBlank(text))
      checkNumberText(choice, std::string(text), row, place, findings);
  };
  for (int i = 0; i < option.num_choices; ++i) {
    const ppd_choice_t &choice = option.choices[i];
    const std::string_view keyword = lines.asWritten(choice.choice);
    if (isTranslated) choices.try_emplace(std::string(keyword), &choice);
    const auto *given = lines.choice(keyword);
    add(choice, choice.text, given ? given->textLength : 0,
        {row.key, keyword, lines.lineOf(given)});
  }
  for (const auto &[language, keyword, text, line] : lines.translations) {
    const FaultyChoice place{row.key, keyword, line, {}, language};
    if (keyword.empty())
      checkText(text, text.size(), place, findings);
    else if (const auto choice = choices.find(keyword); choice != choices.end())
      add(*choice->second, text, text.size(), place);
  }
  texts.visitEqual(
      [&](const std::string &language, const Texts::Text &text, const Texts::Text &other) {
        findings.add(kSameText, {row.key, text.owner, text.line, other.owner, language});
      });
}

void checkTitles(ppd_file_t *ppd, const std::vector<PanelOption> &rows, const PpdLines &lines,
                 Findings &findings) {
  Texts titles;
  // The summary calls a number by a name of its own, in every language.
  for (const PanelOption &row : rows)
    if (row.kind != PanelOption::Kind::choice)
      titles.add({}, {row.key, std::string(row.summary), lines.of(row.key).line()});
  for (const PanelOption &row : rows) {
    const ppd_option_t *option = ppdFindOption(ppd, row.key.c_str());
    if (!option || row.kind != PanelOption::Kind::choice) continue;
    titles.add({}, {row.key, option->text, lines.of(row.key).line()});
    for (const auto &[language, choice, text, line] : lines.of(row.key).translations)
      if (choice.empty()) titles.add(language, {row.key, text, line});
  }
  titles.visitEqual(
      [&](const std::string &language, const Texts::Text &title, const Texts::Text &other) {
        findings.add(kSameTitle, {title.owner,
                                  {},
                                  title.line,
                                  fmt::format("{}, \"{}\"", other.owner, title.text),
                                  language});
      });
}

}  // namespace kwopde::check
