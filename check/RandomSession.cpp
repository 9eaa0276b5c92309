#include "check/RandomSession.h"

#include <fmt/format.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "check/TraceDepth.h"
#include "host/Extension.h"
#include "host/TraceTo.h"
#include "platform/PanelInspector.h"
#include "script/PanelCalls.h"
#include "script/ScriptRunner.h"

namespace kwopde::check {

namespace {

constexpr int kCommands = 50;  // a session

const std::vector<std::string> kOddKeys{"nil", "unknown"};
const std::vector<std::string> kOddChoices{"-7", "nil", "\"\"", "%n%s%@", "99999999999"};
const std::vector<std::string> kTexts{"85",    "\"120 %\"", "abc",         "\"\"", "-5",
                                      "1e999", "%n%@%s",    "99999999999", "1.789"};

class Generator {
public:
  Generator(const Vocabulary &vocabulary, std::uint64_t seed)
      : vocabulary_(vocabulary), random_(seed) {
    for (const script::PanelCall &call : script::panelCalls())
      if (call.words == 0) calls_.emplace_back(call.name);
    calls_.emplace_back("willShow");  // twice as often, since most happens to a shown panel
  }

  std::string script() {
    std::string lines = "plugin.initWithBundle\nplugin.PDEPanelsForType\n";
    // Most sessions show most panels early; the others tell what happens before.
    for (const std::string &panel : vocabulary_.panels)
      if (below(4) > 0) lines += fmt::format("{0}.panelView\n{0}.willShow\n", panel);
    for (int i = 0; i < kCommands; ++i) lines += command() + "\n";
    return lines;
  }

private:
  // The library's distributions differ from one to another; this does not.
  std::size_t below(std::size_t limit) { return random_() % limit; }
  template <class T>
  const T &one(const std::vector<T> &list) {
    return list[below(list.size())];
  }

  /// A key and a choice that often go together.
  std::string keyAndChoice() {
    if (vocabulary_.options.empty() || below(8) == 0)
      return fmt::format("{} {}", one(kOddKeys), one(kOddChoices));
    const Vocabulary::Option &option = one(vocabulary_.options);
    const bool odd = option.choices.empty() || below(3) == 0;
    return fmt::format("{} {}", option.key, one(odd ? kOddChoices : option.choices));
  }

  std::string panelCall() { return fmt::format("{}.{}", one(vocabulary_.panels), one(calls_)); }

  std::string command() {
    const auto what = below(100);
    if (what < 45) return panelCall();
    if (what < 60 && !vocabulary_.popUps.empty()) {
      const Vocabulary::PopUp &popUp = one(vocabulary_.popUps);
      return fmt::format("pick {} {}", popUp.name, below(static_cast<std::size_t>(popUp.items)));
    }
    if (what < 70 && !vocabulary_.sliders.empty())
      return fmt::format("slide {} {}", one(vocabulary_.sliders),
                         static_cast<double>(below(1200)) / 4.0 - 100);
    if (what < 80 && !vocabulary_.fields.empty())
      return fmt::format("type {} {}", one(vocabulary_.fields), one(kTexts));
    if (what < 88)
      return fmt::format("{}.PPDOptionKeyValueDidChange {}", one(vocabulary_.panels),
                         keyAndChoice());
    if (what < 94) return fmt::format("mark {}", keyAndChoice());
    if (what < 97) return fmt::format("refuse {}", below(3) == 0 ? "on" : "off");
    if (what < 98) return "plugin.PDEPanelsForType";
    if (what < 99) return fmt::format("plugin.PDEPanelsForType {}", one(kOddChoices));
    return fmt::format("controls {}", one(vocabulary_.panels));
  }

  const Vocabulary &vocabulary_;
  std::vector<std::string> calls_;
  std::mt19937_64 random_;
};

/// Holds that every pop-up shows an item it has, and that `picked` ("media.printQualityPopUp";
/// empty for none) shows what is marked.
void checkPopUps(const PanelList *panels, host::PpdSession &session, std::string_view picked) {
  if (!panels) return;
  for (const auto &panel : *panels)
    for (const PanelOption &option : optionsOf(*panel)) {
      auto *popUp = inspectorOf(*panel)->control<PopUpButton>(option.popUp);
      if (!popUp || !popUp->menu()) continue;
      const int index = popUp->indexOfSelectedItem();
      const MenuItem *item = popUp->menu()->itemAtIndex(index);
      if (index != -1 && !item)
        throw CheckFailed(
            fmt::format("{} shows item {}, which it does not have", option.popUp, index));
      if (!item || picked != fmt::format("{}.{}", wordOf(*panel), option.popUp)) continue;
      const ppd_choice_t *marked = ppdFindMarkedChoice(session.ppdFile(), option.key.c_str());
      if (marked && item->title && *item->title != marked->text)
        throw CheckFailed(fmt::format("after a pick {} shows \"{}\", and \"{}\" is marked", picked,
                                      *item->title, marked->text));
    }
}

}  // namespace

Vocabulary vocabularyOf(const Subject &subject) {
  auto session = std::make_shared<host::PpdSession>(host::PpdFile::open(subject.ppd));
  TraceDepth unheard;
  const host::TraceTo trace(subject.module, &unheard);
  host::Extension extension(subject.module, session);
  const PanelList *panels = extension.open();
  if (!panels || panels->empty())
    throw NothingToCheck(fmt::format("the module makes no panels for {}", subject.ppd));
  Vocabulary vocabulary;
  for (const auto &panel : *panels) {
    const PanelInspector *inspector = inspectorOf(*panel);
    if (!inspector) continue;
    const std::string word(inspector->word());
    vocabulary.panels.push_back(word);
    for (const PanelOption &row : inspector->options()) {
      Vocabulary::Option option{row.key, {}};
      const auto *record = ppdFindOption(session->ppdFile(), row.key.c_str());
      for (int i = 0; record && i < record->num_choices; ++i)
        option.choices.emplace_back(record->choices[i].choice);
      if (!row.popUp.empty() && record)
        vocabulary.popUps.push_back(
            {fmt::format("{}.{}", word, row.popUp), std::max(1, record->num_choices)});
      if (!row.slider.empty()) vocabulary.sliders.push_back(fmt::format("{}.{}", word, row.slider));
      if (!row.field.empty()) vocabulary.fields.push_back(fmt::format("{}.{}", word, row.field));
      vocabulary.options.push_back(std::move(option));
    }
  }
  if (vocabulary.panels.empty()) throw NothingToCheck("no panel of the module offers an inspector");
  return vocabulary;
}

std::string randomScript(const Vocabulary &vocabulary, std::uint64_t seed) {
  return Generator(vocabulary, seed).script();
}

int runSession(const Subject &subject, const std::string &script, std::ostream &log) {
  auto session = std::make_shared<host::PpdSession>(host::PpdFile::open(subject.ppd));
  TraceDepth trace;
  std::ostream nowhere(nullptr);
  script::ScriptRunner runner(subject.module, session, subject.user, nowhere, nowhere);
  const host::TraceTo tracing(subject.module, &trace);
  std::istringstream lines(script);
  int count = 0;
  for (std::string line; std::getline(lines, line);) {
    log << line << '\n' << std::flush;
    std::istringstream command(line);
    const bool wasRun = runner.run(command, "session");
    if (wasRun) ++count;
    if (trace.depth() != 0)
      throw CheckFailed(fmt::format("the trace is left at depth {} by: {}", trace.depth(), line));
    constexpr std::string_view kPick = "pick ";
    const bool picked = wasRun && line.starts_with(kPick);
    checkPopUps(runner.panels(), *session,
                picked ? std::string_view(line).substr(kPick.size(), line.rfind(' ') - kPick.size())
                       : std::string_view());
  }
  return count;
}

}  // namespace kwopde::check
