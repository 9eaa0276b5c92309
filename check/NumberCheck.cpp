#include "check/NumberCheck.h"

#include <fmt/format.h>

#include <cmath>
#include <map>
#include <optional>
#include <utility>

#include "host/MarkableChoice.h"
#include "platform/Numbers.h"

namespace kwopde::check {

namespace {

using Kind = PanelOption::Kind;
using Severity = Finding::Severity;

constexpr ChoiceFault kOtherNumber{Severity::error, "the text of ",
                                   " reads as {}, and panels show and save what they read",
                                   "write the number itself as the text"};
constexpr ChoiceFault kNoNumber{
    Severity::error, "",
    " cannot be saved: the panel asks for a number, here {}, and the keyword is none",
    "write the number itself as the keyword"};
constexpr ChoiceFault kNotSaved{Severity::error, "",
                                " cannot be saved: the panel asks for {}, which is not listed",
                                "list what the panel asks for, or add *Custom{}"};
constexpr ChoiceFault kSavedAsOther{Severity::warning, "",
                                    " would be saved as {}, since panels cut numbers to hundredths",
                                    "list hundredths only"};
constexpr ChoiceFault kSameNumber{Severity::warning, "",
                                  " is the same number as {}, and only one of them can be saved",
                                  "list the number once"};

/// What a panel reads from the text of a marked choice.
double numberShown(Kind kind, const std::string &text) {
  return kind == Kind::integer ? leadingInteger(text) : atofInCLocale(text.c_str());
}

/// The keyword that a panel asks for.
std::string keywordOf(Kind kind, double number) {
  return kind == Kind::integer ? fmt::format("{}", std::lround(number))
                               : fmt::format("{:.6f}", number);
}

double numberSaved(Kind kind, double shown) {
  return kind == Kind::integer ? shown : cutToHundredths(shown);
}

/// The numbers that an option takes.
class Numbers {
public:
  explicit Numbers(const std::optional<host::CustomLimits> &limits) : limits_(limits) {}

  /// Takes a listed one. Returns the keyword that it was listed with before; null when it is new.
  const std::string *list(double number, const std::string &keyword) {
    const auto [place, isNew] = listed_.try_emplace(number, keyword);
    return isNew ? nullptr : &place->second;
  }

  bool take(double number) const {
    return listed_.contains(number) || (limits_ && host::isWithin(*limits_, number));
  }

  bool isEmpty() const { return listed_.empty() && !limits_; }

private:
  std::map<double, std::string> listed_;  // and the keywords
  std::optional<host::CustomLimits> limits_;
};

/// Every number that the slider can reach has to be listed or inside the custom limits.
void checkReach(const Numbers &numbers, const PanelOption &row, const Slider &slider,
                const PpdLines::Option &lines, Findings &findings) {
  // Real values are cut to hundredths.
  const int perUnit = row.kind == Kind::integer ? 1 : 100;
  const auto first = std::lround(slider.minValue() * perUnit);
  const auto last = std::lround(slider.maxValue() * perUnit);
  int missing = 0;
  std::string example;
  for (auto n = first; n <= last; ++n) {
    const double number = static_cast<double>(n) / perUnit;  // what its keyword reads as
    if (!numbers.take(number) && missing++ == 0) example = keywordOf(row.kind, number);
  }
  if (missing > 0)
    findings.add({Severity::warning, row.key, lines.line(),
                  fmt::format("its slider reaches {} numbers that it does not take, {} for one",
                              missing, example),
                  fmt::format("list them, or {} *Custom{}",
                              lines.customLine > 0 ? "take them with" : "add", row.key)});
}

/// Says why custom values are not taken that the file has. `custom` is the choice that stands for
/// them; null when the CUPS library made none.
void checkCustom(ppd_file_t *ppd, const ppd_option_t &option, const PanelOption &row,
                 const ppd_choice_t *custom, const PpdLines::Option &lines, Findings &findings) {
  if (!ppdFindCustomOption(ppd, option.keyword)) return;
  if (custom)
    findings.add(
        {Severity::warning, row.key, lines.customLine,
         "its custom value is no number, so no number beyond the listed ones is saved",
         fmt::format("give *ParamCustom{} one parameter, int or real, with a minimum and a "
                     "maximum above it",
                     row.key)});
  else
    findings.add({Severity::warning, row.key, lines.customLine,
                  "its custom values are not taken, since they stand before *CloseUI",
                  fmt::format("move *Custom{0} behind *CloseUI: *{0}", row.key)});
}

}  // namespace

void checkNumberText(const ppd_choice_t &choice, const std::string &text, const PanelOption &row,
                     const FaultyChoice &place, Findings &findings) {
  const auto meant = host::wholeNumber(choice.choice);
  const double shown = numberShown(row.kind, text);
  if (!meant || *meant == shown) return;
  FaultyChoice faulty = place;
  faulty.detail = fmt::format("{}", shown);
  findings.add(kOtherNumber, faulty);
}

void checkNumbers(ppd_file_t *ppd, ppd_option_t &option, const PanelOption &row,
                  const Slider *slider, const PpdLines::Option &lines, Findings &findings) {
  const ppd_choice_t *const custom = ppdFindChoice(&option, host::kCustom);
  auto limits = host::customLimits(ppd, option);
  if (!custom || (limits && limits->minimum > limits->maximum)) limits.reset();
  if (!limits) checkCustom(ppd, option, row, custom, lines, findings);

  const auto tell = [&](const ChoiceFault &fault, std::string_view keyword, std::string detail) {
    findings.add(fault, {row.key, keyword, lines.lineOf(keyword), std::move(detail)});
  };
  Numbers numbers(limits);
  std::vector<std::pair<const ppd_choice_t *, double>> listed;
  for (int i = 0; i < option.num_choices; ++i) {
    const ppd_choice_t &choice = option.choices[i];
    if (&choice == custom) continue;
    const std::string_view keyword = lines.asWritten(choice.choice);
    const auto number = host::wholeNumber(keyword);
    if (!number) {
      const double saved = numberSaved(row.kind, numberShown(row.kind, choice.text));
      tell(kNoNumber, keyword, keywordOf(row.kind, saved));
      continue;
    }
    listed.emplace_back(&choice, *number);
    const std::string *before = numbers.list(*number, choice.choice);
    if (!before || host::isSameKey(*before, choice.choice)) continue;  // told elsewhere
    tell(kSameNumber, keyword, *before);
  }
  for (const auto &[choice, number] : listed) {
    if (numberShown(row.kind, choice->text) != number) continue;  // told with the texts
    const double saved = numberSaved(row.kind, number);
    const bool isHundredth = std::abs(std::round(number * 100) - number * 100) < 1e-6;
    if (!numbers.take(saved))
      tell(kNotSaved, choice->choice, keywordOf(row.kind, saved));
    else if (!isHundredth)
      tell(kSavedAsOther, choice->choice, keywordOf(row.kind, saved));
  }
  if (slider && !numbers.isEmpty()) checkReach(numbers, row, *slider, lines, findings);
}

}  // namespace kwopde::check
