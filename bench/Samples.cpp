#include "bench/Samples.h"

#include <fmt/format.h>

#include <cstdio>

#include "platform/PanelInspector.h"

namespace kwopde::bench {

const std::string kSample = KWOPDE_SOURCE_FOLDER "/resources/ppd/kwo-7032.ppd";

Ppd openPpd(const std::string &path) {
  Ppd ppd(ppdOpenFile(path.c_str()));
  ppdMarkDefaults(ppd.get());
  return ppd;
}

host::Stream ppdFile(const std::string &options) {
  host::Stream file(std::tmpfile());
  fmt::print(file.get(),
             "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n"
             "*LanguageEncoding: UTF-8\n*LanguageVersion: English\n{}",
             options);
  static_cast<void>(std::fseek(file.get(), 0, SEEK_SET));
  return file;
}

std::string optionText(const std::string &key, int count) {
  std::string text = fmt::format("*OpenUI *{0}: PickOne\n*Default{0}: C0\n", key);
  for (int i = 0; i < count; ++i)
    text += fmt::format("*{} C{}/Choice number {:06}: \"\"\n", key, i, i);
  return text + fmt::format("*CloseUI: *{}\n", key);
}

Ppd ppdWithChoices(int count) {
  const host::Stream file = ppdFile(optionText("printQuality", count));
  Ppd ppd(ppdOpen(file.get()));
  ppdMarkDefaults(ppd.get());
  return ppd;
}

headless::Module &module() {
  static headless::Module it;
  return it;
}

void wholeSession(const std::shared_ptr<HostCallback> &host) {
  const auto bundle = module().bundle();
  const auto plugIn = module().makePlugIn();
  headless::UserInput user;
  plugIn->initWithBundle(bundle.get());
  const std::string type(kPrinterModuleTypeIDStr);
  const PanelList &panels = *plugIn->PDEPanelsForType(&type, host);
  for (const auto &panel : panels) panel->restoreValuesAndReturnError(nullptr);
  int picks = 20;
  for (const auto &panel : panels) {
    panel->panelView();
    panel->willShow();
  }
  while (picks > 0)
    for (const auto &panel : panels)
      for (const PanelControl &control : controlsOf(*panel))
        if (auto *popUp = dynamic_cast<PopUpButton *>(control.control); popUp && picks > 0)
          user.pick(*popUp, picks-- % 2);
  for (const auto &panel : panels) {
    panel->summaryInfo();
    panel->shouldHide();
    panel->saveValuesAndReturnError(nullptr);
  }
}

}  // namespace kwopde::bench
