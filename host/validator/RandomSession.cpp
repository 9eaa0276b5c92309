#include "host/validator/RandomSession.h"

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <random>
#include <sstream>
#include <vector>

#include "host/PpdSession.h"
#include "host/ScriptRunner.h"
#include "host/validator/TraceDepth.h"

namespace kwopde::host {

namespace {

constexpr int kCommands = 50;  // a session

constexpr std::string_view kPanels[] = {"media", "color", "sharpen"};
constexpr std::string_view kCalls[] = {"panelView",
                                       "willShow",
                                       "willShow",
                                       "shouldHide",
                                       "shouldPrint",
                                       "summaryInfo",
                                       "panelName",
                                       "supportedPPDOptionKeys",
                                       "panelKind",
                                       "shouldShowHelp",
                                       "restoreValuesAndReturnError",
                                       "saveValuesAndReturnError"};
constexpr std::string_view kPopUps[] = {"media.printQualityPopUp", "media.printFinishPopUp",
                                        "media.matteLevelPopUp",   "media.dustRemovalPopUp",
                                        "media.rotateImagePopUp",  "media.mirrorImagePopUp",
                                        "color.colorModePopUp",    "sharpen.enableFilterPopUp"};
constexpr std::string_view kSliders[] = {
    "color.brightnessSlider", "color.contrastSlider", "color.saturationSlider",
    "color.gammaSlider",      "color.redSlider",      "color.blueSlider",
    "sharpen.amountSlider",   "sharpen.radiusSlider", "sharpen.thresholdSlider"};
constexpr std::string_view kFields[] = {"media.pageScaleEdit", "color.gammaLabel",
                                        "color.greenLabel", "sharpen.amountLabel",
                                        "media.matteLevelLabel"};
constexpr std::string_view kKeys[] = {
    "printQuality", "printFinish", "matteLevel",      "pageScale", "imageGamma",
    "colorMode",    "colorRed",    "sharpnessAmount", "nil",       "unknown"};
constexpr std::string_view kChoices[] = {"Draft", "Matte", "85",    "1.780000", "-7",
                                         "nil",   "\"\"",  "Sepia", "%n%s%@",   "99999999999"};
constexpr std::string_view kTexts[] = {"85",    "\"120 %\"", "abc",         "\"\"", "-5",
                                       "1e999", "%n%@%s",    "99999999999", "1.789"};

class Generator {
public:
  explicit Generator(std::uint64_t seed) : random_(seed) {}

  std::string script() {
    std::string lines = "plugin.initWithBundle\nplugin.PDEPanelsForType\n";
    for (int i = 0; i < kCommands; ++i) lines += command() + "\n";
    return lines;
  }

private:
  // The library's distributions differ from one to another; this does not.
  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  template <std::size_t N>
  std::string_view one(const std::string_view (&words)[N]) {
    return words[below(N)];
  }

  std::string command() {
    const int what = below(100);
    if (what < 45) return fmt::format("{}.{}", one(kPanels), one(kCalls));
    if (what < 60) return fmt::format("pick {} {}", one(kPopUps), below(6));
    if (what < 70) return fmt::format("slide {} {}", one(kSliders), below(1200) / 4.0 - 100);
    if (what < 80) return fmt::format("type {} {}", one(kFields), one(kTexts));
    if (what < 88)
      return fmt::format("{}.PPDOptionKeyValueDidChange {} {}", one(kPanels), one(kKeys),
                         one(kChoices));
    if (what < 94) return fmt::format("mark {} {}", one(kKeys), one(kChoices));
    if (what < 97) return fmt::format("refuse {}", below(3) == 0 ? "on" : "off");
    if (what < 98) return "plugin.PDEPanelsForType";
    if (what < 99) return fmt::format("plugin.PDEPanelsForType {}", one(kChoices));
    return fmt::format("controls {}", one(kPanels));
  }

  std::mt19937_64 random_;
};

void checkPopUps(const PanelList *panels, PpdSession &session, bool afterPick,
                 std::string_view picked) {
  if (!panels) return;
  for (const auto &panel : *panels) {
    const auto options = panel->options();
    for (const PanelControl &control : panel->controls()) {
      auto *popUp = dynamic_cast<PopUpButton *>(control.control);
      if (!popUp || !popUp->menu()) continue;
      const int index = popUp->indexOfSelectedItem();
      const MenuItem *item = popUp->menu()->itemAtIndex(index);
      if (index != -1 && !item)
        throw CheckFailed(fmt::format("{} shows an item that it does not have", control.outlet));
      if (!afterPick || control.outlet != picked || !item) continue;
      const std::string key(control.outlet.substr(0, control.outlet.size() - 5));
      const ppd_choice_t *marked = ppdFindMarkedChoice(session.ppdFile(), key.c_str());
      if (marked && item->title != marked->text)
        throw CheckFailed(fmt::format("{} does not show what is marked after a pick", picked));
    }
  }
}

}  // namespace

std::string randomScript(std::uint64_t seed) {
  return Generator(seed).script();
}

int runSession(const Subject &subject, const std::string &script, std::ostream &log) {
  auto session = std::make_shared<PpdSession>(PpdFile::open(subject.ppd));
  TraceDepth trace;
  std::ostream nowhere(nullptr);
  ScriptRunner runner(subject.module, session, subject.user, nowhere, nowhere);
  subject.module.setLogSink(&trace);
  std::istringstream lines(script);
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    log << line << '\n' << std::flush;
    std::istringstream command(line);
    const bool wasRun = runner.run(command);
    if (trace.depth() != 0)
      throw CheckFailed(fmt::format("the trace is left at depth {} by: {}", trace.depth(), line));
    const bool isPick = line.starts_with("pick ");
    const auto point = line.find('.');
    checkPopUps(runner.panels(), *session, wasRun && isPick,
                isPick ? std::string_view(line).substr(point + 1, line.rfind(' ') - point - 1)
                       : std::string_view());
  }
  subject.module.setLogSink(nullptr);
  return count;
}

}  // namespace kwopde::host
