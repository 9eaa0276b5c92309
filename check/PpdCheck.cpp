#include "check/PpdCheck.h"

#include <fmt/format.h>
#include <utf8.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <optional>

#include "host/Constraints.h"
#include "host/Extension.h"
#include "host/MarkableChoice.h"
#include "host/PpdSession.h"
#include "host/Stream.h"
#include "host/TraceTo.h"
#include "platform/Numbers.h"
#include "platform/PanelInspector.h"

namespace kwopde::check {

namespace {

using Severity = Finding::Severity;

/// Where keywords stand in a PPD file.
class LineIndex {
public:
  /// `file`, read to its end, stays the caller's.
  explicit LineIndex(std::FILE *file) {
    char *block = nullptr;
    std::size_t room = 0;
    for (int number = 1; getline(&block, &room, file) > 0; ++number) {
      // "*OpenUI *key/Text: ...", "*Defaultkey: ...", "*key choice/Text: ..."
      const std::string_view line(block);
      if (line.starts_with('*'))
        lines_.try_emplace(std::string(line.substr(0, line.find_first_of("/:\r\n"))), number);
    }
    std::free(block);
  }

  int option(const std::string &key) const { return find("*OpenUI *" + key); }
  int defaultOf(const std::string &key) const { return find("*Default" + key); }
  int choice(const std::string &key, const std::string &choice) const {
    return find("*" + key + " " + choice);
  }

private:
  int find(const std::string &start) const {
    const auto line = lines_.find(start);
    return line == lines_.end() ? 0 : line->second;
  }

  std::map<std::string, int> lines_;
};

bool isAscii(const char *text) {
  return std::all_of(text, text + std::strlen(text),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

class Checker {
public:
  Checker(PlugInModule &module, const std::string &path)
      : module_(module),
        file_(host::openRepeatable(path)),
        lines_(file_.get()),
        session_(
            std::make_shared<host::PpdSession>(host::PpdFile::readUntrimmed(file_.get(), path))) {
    report_.file = path;
  }

  PpdReport run() {
    const host::Untraced untraced(module_);
    host::Extension extension(module_, session_);
    if (const PanelList *panels = extension.open())
      for (const auto &panel : *panels) checkPanel(*panel);
    checkMissingPanels();
    std::stable_sort(report_.findings.begin(), report_.findings.end(),
                     [](const Finding &a, const Finding &b) { return a.line < b.line; });
    return std::move(report_);
  }

private:
  void find(Severity severity, const std::string &option, int line, std::string message,
            std::string advice) {
    report_.findings.push_back({severity, option, line, std::move(message), std::move(advice)});
  }

  void checkMissingPanels() {
    const ModuleInspector *inspector = inspectorOf(module_);
    if (!inspector) return;
    std::string before;  // the media panels need the same, so one note is enough
    for (const PanelRequirement &needed : inspector->requirements()) {
      const std::string keys = fmt::format("{}", fmt::join(needed.anyOf, " or "));
      const bool appears =
          std::any_of(needed.anyOf.begin(), needed.anyOf.end(), [&](const std::string &key) {
            return ppdFindOption(session_->ppdFile(), key.c_str()) != nullptr;
          });
      if (!appears && keys != before)
        find(Severity::note, {}, 0,
             fmt::format("{} does not appear, since the PPD has no {}", needed.className, keys),
             "add the option if the printer has it");
      before = keys;
    }
  }

  void checkPanel(Panel &panel) {
    report_.panels.emplace_back(panel.className());
    panel.panelView();  // it has the sliders
    std::map<std::string, std::string> titles;
    for (const PanelOption &row : optionsOf(panel)) {
      ppd_option_t *option = ppdFindOption(session_->ppdFile(), row.key.c_str());
      if (!option) {
        find(Severity::note, row.key, 0,
             fmt::format("{} has a control for it, but the PPD has no such option",
                         panel.className()),
             "add the option if the printer has it");
        continue;
      }
      checkTexts(*option);
      checkDefault(*option);
      if (row.kind != PanelOption::Kind::choice) checkNumbers(*option, row, panel);
      if (row.kind == PanelOption::Kind::choice) {
        const auto [other, isNew] = titles.try_emplace(option->text, row.key);
        if (!isNew)
          find(Severity::error, row.key, lines_.option(row.key),
               fmt::format("it has the same title as {}, \"{}\", so the summary shows one of them",
                           other->second, option->text),
               "give the two options different texts");
      }
    }
  }

  void checkText(const std::string &key, int line, const char *text, const std::string &what) {
    const std::string_view bytes(text);
    const auto *valid = utf8::find_invalid(text, text + bytes.size());
    if (valid == text + bytes.size()) return;
    if (bytes.size() == PPD_MAX_TEXT - 1 && text + bytes.size() - valid < 4)
      find(Severity::warning, key, line,
           fmt::format("{} is longer than {} bytes and cut in the middle of a character", what,
                       PPD_MAX_TEXT - 1),
           "shorten the text");
    else
      find(Severity::error, key, line, fmt::format("{} is not valid UTF-8", what),
           "write the file in UTF-8 with *LanguageEncoding: UTF-8");
  }

  void checkTexts(const ppd_option_t &option) {
    const std::string key = option.keyword;
    checkText(key, lines_.option(key), option.text, "its text");
    for (int i = 0; i < option.num_choices; ++i) {
      const ppd_choice_t &choice = option.choices[i];
      const int line = lines_.choice(key, choice.choice);
      checkText(key, line, choice.text, fmt::format("the text of {}", choice.choice));
      if (!isAscii(choice.choice))
        find(Severity::error, key, line,
             fmt::format("the keyword {} is not ASCII, so it cannot be marked", choice.choice),
             "use letters, digits and signs of ASCII in keywords");
    }
  }

  void checkDefault(ppd_option_t &option) {
    const std::string key = option.keyword;
    if (!ppdFindChoice(&option, option.defchoice)) {
      find(Severity::error, key, lines_.defaultOf(key),
           fmt::format("its default, \"{}\", is not among its choices", option.defchoice),
           "make a listed choice the default");
      return;
    }
    for (const auto &[other, choice] : session_->constraints().of(option, option.defchoice))
      find(Severity::error, key, lines_.defaultOf(key),
           fmt::format("its default, {}, conflicts with that of {}, {}", option.defchoice, other,
                       choice),
           "choose defaults that go together");
  }

  void checkNumbers(ppd_option_t &option, const PanelOption &row, const Panel &panel) {
    const bool isInteger = row.kind == PanelOption::Kind::integer;
    for (int i = 0; i < option.num_choices; ++i) {
      const ppd_choice_t &choice = option.choices[i];
      if (std::strcmp(choice.choice, host::kCustom) == 0) continue;
      const double shown = isInteger ? leadingInteger(choice.text) : atofInCLocale(choice.text);
      const double meant = isInteger ? leadingInteger(choice.choice) : leadingDouble(choice.choice);
      if (shown == meant) continue;
      find(Severity::error, row.key, lines_.choice(row.key, choice.choice),
           fmt::format("the text of {} reads as {}, and the panel shows the text", choice.choice,
                       shown),
           "write the number itself as the text");
    }
    checkReach(option, row, panel);
  }

  /// Every number that the slider can reach has to be listed or inside the custom limits.
  void checkReach(ppd_option_t &option, const PanelOption &row, const Panel &panel) {
    const auto *slider = inspectorOf(panel)->control<Slider>(row.slider);
    if (!slider) return;
    // Real values are cut to hundredths and written with six decimals.
    const int perUnit = row.kind == PanelOption::Kind::integer ? 1 : 100;
    const auto first = std::lround(slider->minValue() * perUnit);
    const auto last = std::lround(slider->maxValue() * perUnit);
    int missing = 0;
    std::string example;
    for (auto n = first; n <= last; ++n) {
      const std::string keyword = perUnit == 1
                                      ? fmt::format("{}", n)
                                      : fmt::format("{:.6f}", static_cast<double>(n) / perUnit);
      if (host::findMarkable(session_->ppdFile(), option, keyword)) continue;
      if (missing++ == 0) example = keyword;
    }
    if (missing > 0)
      find(Severity::warning, row.key, lines_.option(row.key),
           fmt::format("its slider reaches {} numbers that it does not take, {} for one", missing,
                       example),
           fmt::format("list them, or add *Custom{}", row.key));
  }

  PlugInModule &module_;
  host::Stream file_;
  LineIndex lines_;
  std::shared_ptr<host::PpdSession> session_;
  PpdReport report_;
};

}  // namespace

bool PpdReport::isClean() const {
  return std::all_of(findings.begin(), findings.end(),
                     [](const Finding &f) { return f.severity == Severity::note; });
}

PpdReport checkPpd(PlugInModule &module, const std::string &file) {
  return Checker(module, file).run();
}

std::string_view nameOf(Finding::Severity severity) {
  constexpr std::string_view kNames[] = {"note", "warning", "error"};
  return kNames[static_cast<std::size_t>(severity)];
}

}  // namespace kwopde::check
