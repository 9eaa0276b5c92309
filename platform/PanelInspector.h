// What tools may ask of a panel and of a module, beside the contract: scripts, checks, toolkits
// that make controls by themselves, and dialogs that say more than the panel does. Nothing here is
// traced. A host asks for an inspector, and does without where there is none.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Controls.h"
#include "platform/Panel.h"
#include "platform/PlugIn.h"

namespace kwopde {

/// An option that a panel handles, and the controls that belong to it, by outlet. An empty outlet
/// is a control that the option does not have.
struct PanelOption {
  enum class Kind { choice, integer, real };

  std::string key;  // "sharpnessEnabled"
  Kind kind = Kind::choice;
  std::string_view popUp = {};    // "enableFilterPopUp"; choices only
  std::string_view field = {};    // "gammaLabel"; numbers only
  std::string_view slider = {};   // "gammaSlider"; numbers only
  std::string_view action = {};   // what the pop-up or the slider sends: "changeGammaOption:"
  std::string_view summary = {};  // its key in the summary; numbers only
};

/// A control that a panel's interface file is to connect.
struct PanelControl {
  std::string_view outlet;  // "printQualityPopUp"
  View *control;            // borrowed, valid as long as the panel's view; null while unconnected
};

class PanelInspector {
public:
  PanelInspector() = default;
  PanelInspector(const PanelInspector &) = delete;
  PanelInspector &operator=(const PanelInspector &) = delete;
  virtual ~PanelInspector() = default;

  /// Returns what people and scripts call the panel; the same in every language, and for every
  /// panel that stands in for another: "media".
  virtual std::string_view word() const = 0;

  /// Returns every option that the panel handles, whether the PPD has it or not, in the panel's
  /// order.
  virtual std::vector<PanelOption> options() const = 0;

  /// Returns every control that the panel knows, sorted by outlet.
  virtual std::vector<PanelControl> controls() const = 0;

  /// Returns the control at `outlet`, borrowed; null when the panel knows no such outlet, when it
  /// is unconnected, and when it is of another kind.
  template <class Control = View>
  Control *control(std::string_view outlet) const {
    for (const PanelControl &control : controls())
      if (control.outlet == outlet) return dynamic_cast<Control *>(control.control);
    return nullptr;
  }
};

/// Returns the inspector of `panel`, which lives as long as the panel; null when it offers none.
inline const PanelInspector *inspectorOf(const Panel &panel) {
  return dynamic_cast<const PanelInspector *>(&panel);
}

/// Returns the word of `panel`; empty when it offers no inspector.
inline std::string_view wordOf(const Panel &panel) {
  const PanelInspector *inspector = inspectorOf(panel);
  return inspector ? inspector->word() : std::string_view();
}

/// Returns the options and the controls of `panel`; none when it offers no inspector.
inline std::vector<PanelOption> optionsOf(const Panel &panel) {
  const PanelInspector *inspector = inspectorOf(panel);
  return inspector ? inspector->options() : std::vector<PanelOption>();
}
inline std::vector<PanelControl> controlsOf(const Panel &panel) {
  const PanelInspector *inspector = inspectorOf(panel);
  return inspector ? inspector->controls() : std::vector<PanelControl>();
}

/// What a class of panels needs of a PPD.
struct PanelRequirement {
  std::string_view className;
  std::string_view word;           // as `PanelInspector::word`
  std::vector<std::string> anyOf;  // keywords; without all of them the panel is refused
  std::vector<std::string> keys;   // of every option that the panel handles
  std::optional<int> model;        // the one *cupsModelNumber that it is for; none for any other
};

/// What a module tells of the panels that it could make.
class ModuleInspector {
public:
  ModuleInspector() = default;
  ModuleInspector(const ModuleInspector &) = delete;
  ModuleInspector &operator=(const ModuleInspector &) = delete;
  virtual ~ModuleInspector() = default;

  /// Returns what each class of panels needs, in the order of making.
  virtual std::vector<PanelRequirement> requirements() const = 0;
};

/// Returns the inspector of `module`, which lives as long as the module; null when it offers none.
inline const ModuleInspector *inspectorOf(const PlugInModule &module) {
  return dynamic_cast<const ModuleInspector *>(&module);
}

}  // namespace kwopde
