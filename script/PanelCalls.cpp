#include "script/PanelCalls.h"

#include <fmt/format.h>

#include <algorithm>

namespace kwopde::script {

namespace {

using Words = std::vector<Word>;

std::string panelView(Panel &panel, const Words &) {
  const View *view = panel.panelView();
  return view ? fmt::format("<{}>", view->className()) : "nil";
}

std::string panelName(Panel &panel, const Words &) {
  const std::string *name = panel.panelName();
  return name ? quoted(*name) : "nil";
}

std::string panelKind(Panel &panel, const Words &) {
  return quoted(panel.panelKind());
}

std::string supportedPPDOptionKeys(Panel &panel, const Words &) {
  std::vector<std::string> keys;
  for (const std::string &key : panel.supportedPPDOptionKeys()) keys.push_back(quoted(key));
  return fmt::format("[{}]", fmt::join(keys, ", "));
}

std::string willShow(Panel &panel, const Words &) {
  panel.willShow();
  return "void";
}

std::string shouldHide(Panel &panel, const Words &) {
  return yesOrNo(panel.shouldHide());
}

std::string shouldPrint(Panel &panel, const Words &) {
  return yesOrNo(panel.shouldPrint());
}

std::string shouldShowHelp(Panel &panel, const Words &) {
  return yesOrNo(panel.shouldShowHelp());
}

std::string optionDidChange(Panel &panel, const Words &words) {
  panel.PPDOptionKeyValueDidChange(pointerTo(words[1]), pointerTo(words[2]));
  return "void";
}

std::string restoreValues(Panel &panel, const Words &) {
  return yesOrNo(panel.restoreValuesAndReturnError(nullptr));
}

std::string saveValues(Panel &panel, const Words &) {
  return yesOrNo(panel.saveValuesAndReturnError(nullptr));
}

std::string summaryInfo(Panel &panel, const Words &) {
  return panel.summaryInfo()->description();
}

std::string getNonPPDSettings(Panel &panel, const Words &) {
  panel.getNonPPDSettingsFromPrintSettings();
  return "void";
}

std::string writeNonPPDSettings(Panel &panel, const Words &) {
  panel.writeNonPPDSettingsToPrintSettings();
  return "void";
}

constexpr PanelCall kCalls[] = {
    {"panelView", 0, panelView},
    {"panelName", 0, panelName},
    {"panelKind", 0, panelKind},
    {"supportedPPDOptionKeys", 0, supportedPPDOptionKeys},
    {"willShow", 0, willShow, "void"},
    {"shouldHide", 0, shouldHide, "YES"},
    {"shouldPrint", 0, shouldPrint, "YES"},
    {"shouldShowHelp", 0, shouldShowHelp, "YES"},
    {"PPDOptionKeyValueDidChange", 2, optionDidChange, "void"},
    {"restoreValuesAndReturnError", 0, restoreValues, "YES"},
    {"saveValuesAndReturnError", 0, saveValues, "YES"},
    {"summaryInfo", 0, summaryInfo},
    {"getNonPPDSettingsFromPrintSettings", 0, getNonPPDSettings, "void"},
    {"writeNonPPDSettingsToPrintSettings", 0, writeNonPPDSettings, "void"},
};

}  // namespace

std::span<const PanelCall> panelCalls() {
  return kCalls;
}

const PanelCall *findPanelCall(std::string_view name) {
  const auto *found = std::find_if(std::begin(kCalls), std::end(kCalls),
                                   [&](const PanelCall &call) { return call.name == name; });
  return found == std::end(kCalls) ? nullptr : found;
}

}  // namespace kwopde::script
