#include "check/OptionCheck.h"

#include <fmt/format.h>

#include <string_view>
#include <unordered_set>

#include "host/MarkableChoice.h"

namespace kwopde::check {

namespace {

using Severity = Finding::Severity;

constexpr ChoiceFault kCustomValue{
    Severity::error, "",
    " cannot be marked, since a keyword that begins with a brace is a custom value",
    "choose another keyword"};
constexpr ChoiceFault kReadAsOther{
    Severity::warning, "",
    " cannot be asked for, since that keyword is for custom values and is read as _{}",
    "choose another keyword"};
constexpr ChoiceFault kOutside{Severity::error, "",
                               " is not offered, since it stands outside *OpenUI and *CloseUI",
                               "move it before *CloseUI: *{}"};
constexpr ChoiceFault kTwice{Severity::error, "",
                             " stands again at line {}, and only one of the two can be marked",
                             "give every choice a keyword of its own"};

void checkDefault(ppd_file_t *ppd, ppd_option_t &option, const PanelOption &row,
                  const PpdLines::Option &lines, Findings &findings) {
  const ppd_choice_t *choice = ppdFindChoice(&option, option.defchoice);
  if (!*option.defchoice)
    findings.add({Severity::error, row.key, lines.line(),
                  "it has no default, so nothing is marked, and the panel does not show what will "
                  "be printed",
                  fmt::format("add *Default{}", row.key)});
  else if (!choice)
    findings.add({Severity::error, row.key, lines.defaultLine,
                  fmt::format("its default, \"{}\", is not among its choices", option.defchoice),
                  "make a listed choice the default"});
  else if (isSameKey(choice->choice, host::kCustom) && ppdFindCustomOption(ppd, option.keyword))
    findings.add(
        {Severity::error, row.key, lines.defaultLine,
         fmt::format("its default, \"{}\", is a custom value, which the panel does not show",
                     option.defchoice),
         "make a listed choice the default"});
}

void checkKeywords(const ppd_option_t &option, const PanelOption &row,
                   const PpdLines::Option &lines, Findings &findings) {
  std::unordered_set<const PpdLines::Choice *> offered;
  for (int i = 0; i < option.num_choices; ++i) {
    const std::string_view keyword = lines.asWritten(option.choices[i].choice);
    const PpdLines::Choice *const given = lines.choice(keyword);
    FaultyChoice place{row.key, keyword, lines.lineOf(given)};
    if (keyword.starts_with('{')) findings.add(kCustomValue, place);
    if (keyword != option.choices[i].choice && row.kind == PanelOption::Kind::choice) {
      place.detail = keyword;
      findings.add(kReadAsOther, place);
    }
    if (given && !offered.insert(given).second && given->lines.size() > 1) {
      place.detail = fmt::format("{}", given->lines[1]);
      findings.add(kTwice, place);
    }
  }
  // Of an option that is defined twice, the choices of the other one are not among these.
  for (const auto &[keyword, choice] : lines.choices)
    if (lines.opened.size() == 1 && !offered.contains(&choice))
      findings.add(kOutside, {row.key, keyword, choice.lines.front()});
}

}  // namespace

void checkOption(ppd_file_t *ppd, ppd_option_t &option, const PanelOption &row,
                 const PpdLines::Option &lines, Findings &findings) {
  if (option.num_choices == 0) {
    findings.add({Severity::error, row.key, lines.line(), "it has no choices to show",
                  "list its choices, or remove it"});
    return;
  }
  if (option.ui == PPD_UI_PICKMANY)
    findings.add({Severity::error, row.key, lines.line(),
                  "it is PickMany, so what was marked before stays marked beside what is picked",
                  "make it PickOne"});
  const ppd_choice_t *custom =
      ppdFindCustomOption(ppd, option.keyword) ? ppdFindChoice(&option, host::kCustom) : nullptr;
  if (custom && row.kind == PanelOption::Kind::choice)
    findings.add(
        {Severity::error, row.key, lines.customLine,
         fmt::format("its menu has {}, which cannot be picked, since it needs a value and a "
                     "menu asks for none",
                     custom->text),
         fmt::format("remove *Custom{}", row.key)});
  checkDefault(ppd, option, row, lines, findings);
  checkKeywords(option, row, lines, findings);
}

}  // namespace kwopde::check
