#include "check/PpdCheck.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <set>
#include <utility>

#include "check/ConstraintCheck.h"
#include "check/Findings.h"
#include "check/NumberCheck.h"
#include "check/OptionCheck.h"
#include "check/PpdLines.h"
#include "check/TextCheck.h"
#include "host/Error.h"
#include "host/Extension.h"
#include "host/PpdSession.h"
#include "host/Stream.h"
#include "host/TraceTo.h"
#include "platform/Numbers.h"
#include "platform/PanelInspector.h"

namespace kwopde::check {

namespace {

using Severity = Finding::Severity;

host::PpdFile opened(std::FILE *file, const std::string &path) {
  try {
    return host::PpdFile::readAsWritten(file, path);
  } catch (const host::Error &error) {
    throw host::Error(fmt::format(
        "{}; no dialog and no server opens such a file, and cupstestppd tells more", error.what()));
  }
}

class Checker {
public:
  Checker(PlugInModule &module, const std::string &path)
      : module_(module),
        file_(host::openRepeatable(path)),
        session_(std::make_shared<host::PpdSession>(opened(file_.get(), path))),
        ppd_(session_->ppdFile()) {
    if (const ModuleInspector *inspector = inspectorOf(module))
      classes_ = inspector->requirements();
    report_.file = path;
  }

  PpdReport run() {
    const host::Untraced untraced(module_);
    host::Extension extension(module_, session_);
    const PanelList *panels = extension.open();
    if (panels)
      for (const auto &panel : *panels) meet(*panel);
    for (const PanelRequirement &panelClass : classes_)
      keys_.insert(panelClass.keys.begin(), panelClass.keys.end());

    ConstraintCheck constraints(ppd_, keys_);
    lines_.emplace(file_.get(), keys_,
                   [&](const ConstraintLine &constraint) { constraints.take(constraint); });
    if (panels)
      for (const auto &panel : *panels) checkPanel(*panel);
    constraints.report(*lines_, findings_);
    checkUnshown();
    report_.findings = findings_.take();
    return std::move(report_);
  }

private:
  ppd_option_t *optionOf(const std::string &key) const { return ppdFindOption(ppd_, key.c_str()); }

  void meet(Panel &panel) {
    report_.panels.emplace_back(panel.className());
    panel.panelView();  // it has the sliders
    for (const PanelOption &row : optionsOf(panel)) {
      keys_.insert(row.key);
      if (optionOf(row.key)) shown_.insert(row.key);
    }
  }

  void checkPanel(const Panel &panel) {
    std::vector<std::string> absent;
    for (const PanelOption &row : optionsOf(panel)) {
      ppd_option_t *option = optionOf(row.key);
      const PpdLines::Option &lines = lines_->of(row.key);
      if (!option && !lines.choices.empty())
        findings_.add({Severity::error, row.key, lines.choices.begin()->second.lines.front(),
                       "it is not offered, since its choices stand outside *OpenUI and *CloseUI",
                       fmt::format("put *OpenUI *{} before them", row.key)});
      else if (!option)
        absent.push_back(row.key);
      if (!option) continue;
      checkDefinitions(row.key, lines);
      checkOption(ppd_, *option, row, lines, findings_);
      checkTexts(*option, row, lines, findings_);
      if (row.kind != PanelOption::Kind::choice)
        checkNumbers(ppd_, *option, row, inspectorOf(panel)->control<Slider>(row.slider), lines,
                     findings_);
    }
    checkTitles(ppd_, optionsOf(panel), *lines_, findings_);
    if (!absent.empty())
      note(fmt::format("{} has controls for {}, which the PPD does not have", panel.className(),
                       fmt::join(absent, ", ")),
           "add the options that the printer has");
  }

  void note(std::string message, std::string advice) {
    findings_.add({Severity::note, {}, 0, std::move(message), std::move(advice)});
  }

  void checkDefinitions(const std::string &key, const PpdLines::Option &lines) {
    int count = 0;
    session_->ppd().forEachOption(
        [&](const ppd_option_t &option) { count += isSameKey(option.keyword, key) ? 1 : 0; });
    if (count > 1 && lines.opened.size() > 1)
      findings_.add(
          {Severity::error, key, lines.line(),
           fmt::format("it is defined again at line {}, and the panel shows one of the two",
                       lines.opened[1]),
           "define it once"});
  }

  /// Panels that do not appear, and the options of the PPD that nobody sees for that.
  void checkUnshown() {
    std::string told;  // the media panels need the same, so it is told once
    for (const PanelRequirement &needed : classes_) {
      if (std::count(report_.panels.begin(), report_.panels.end(), needed.className) > 0) continue;
      const std::string keys = fmt::format("{}", fmt::join(needed.anyOf, " or "));
      const bool isWanting =
          std::none_of(needed.anyOf.begin(), needed.anyOf.end(),
                       [this](const std::string &key) { return optionOf(key) != nullptr; });
      if (const auto unshown = takeUnshown(needed); !unshown.empty())
        tellUnshown(unshown, needed, keys);
      else if (isWanting && keys != told)
        note(fmt::format("{} does not appear, since the PPD has no {}", needed.className, keys),
             "add the option if the printer has it");
      told = keys;
    }
  }

  /// Returns the options of a class of panels that no panel shows; each of them only once.
  std::vector<std::string> takeUnshown(const PanelRequirement &panelClass) {
    std::vector<std::string> unshown;
    for (const std::string &key : panelClass.keys)
      if (optionOf(key) && shown_.insert(key).second) unshown.push_back(key);
    return unshown;
  }

  /// `keyOptions` are what brings the panel.
  void tellUnshown(const std::vector<std::string> &unshown, const PanelRequirement &needed,
                   const std::string &keyOptions) {
    const std::string others =
        unshown.size() == 1
            ? ""
            : fmt::format(", nor {}", fmt::join(unshown.begin() + 1, unshown.end(), ", "));
    const bool isOtherModel = needed.model && *needed.model != model();
    const std::string reason = isOtherModel ? fmt::format("is for model number {}", *needed.model)
                                            : fmt::format("does not appear without {}", keyOptions);
    findings_.add({Severity::error, unshown.front(), lines_->of(unshown.front()).line(),
                   fmt::format("no panel shows it{}: {} {}", others, needed.className, reason),
                   isOtherModel ? fmt::format("set *cupsModelNumber: {}", *needed.model)
                                : fmt::format("add {}", keyOptions)});
  }

  int model() const {
    const ppd_attr_t *number = ppdFindAttr(ppd_, "cupsModelNumber", nullptr);
    return number && number->value ? leadingInteger(number->value) : 0;
  }

  PlugInModule &module_;
  host::Stream file_;
  std::shared_ptr<host::PpdSession> session_;
  ppd_file_t *ppd_;
  std::vector<PanelRequirement> classes_;
  KeywordSet keys_;   // of every panel
  KeywordSet shown_;  // those of the PPD that a panel shows
  std::optional<PpdLines> lines_;
  Findings findings_;
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
