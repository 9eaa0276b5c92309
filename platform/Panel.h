// The contract between a print dialog and a panel of the extension.
//
// The life of a panel, as a host drives it:
//   1. PlugIn::PDEPanelsForType makes it; its PPD is the host's from now on.
//   2. restoreValuesAndReturnError    it reads what the PPD has marked.
//   3. panelName, panelKind, supportedPPDOptionKeys, panelView, in any order.
//   4. willShow                       its view is about to be seen, for the first time or again.
//   5. PPDOptionKeyValueDidChange     the host marked something by itself (at any time).
//   6. shouldHide, shouldPrint        it reads its number fields and asks the host to mark them.
//      saveValuesAndReturnError       it asks the host to mark what it holds, reading no field.
//      summaryInfo                    what it holds, for the dialog's summary.
//   7. The plug-in is dropped, and the panel with it.
// A host may call any of them in any order and as often as it likes: before the first willShow no
// control is touched, and nothing here fails. All calls come from the host's main thread.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Controls.h"
#include "platform/Dictionary.h"
#include "platform/Object.h"

namespace kwopde {

/// An error that an operation could report; none of ours does.
class Error;

/// A control that a panel's interface file is to connect.
struct PanelControl {
  std::string_view outlet;  // "printQualityPopUp"
  View *control;            // borrowed, valid as long as the panel's view; null while unconnected
};

/// An option that a panel handles.
struct PanelOption {
  enum class Kind { choice, integer, real };

  std::string key;
  Kind kind;
  std::string_view slider;  // the outlet of its slider; empty when it has none
  std::string_view action;  // what its control sends; empty when it sends nothing
};

/// What a class of panels needs of a PPD.
struct PanelRequirement {
  std::string_view className;
  std::vector<std::string> anyOf;  // keywords; without all of them the panel is refused
};

class Panel : public Object {
public:
  /// The panel's view, loaded on the first call and owned by the panel. Null when its interface
  /// file is missing or broken; the next call tries again.
  virtual View *panelView() = 0;

  /// The panel's title in the user's language, owned by the panel; null without a bundle.
  virtual const std::string *panelName() = 0;

  /// Tells the kinds of panels apart; the same text in every language.
  virtual std::string_view panelKind() = 0;

  /// Keywords of the panel's options that the PPD has, in the panel's order. The list is made once
  /// and stays valid even when the panel is gone.
  virtual const std::vector<std::string> &supportedPPDOptionKeys() = 0;

  virtual void willShow() = 0;

  /// Always true: no panel keeps the dialog from hiding it, from printing or from showing help.
  virtual bool shouldHide() = 0;
  virtual bool shouldPrint() = 0;
  virtual bool shouldShowHelp() = 0;

  /// The host says that it marked `ppdChoice` of the option `key`. The panel stores it and shows it
  /// the next time it refreshes its controls. Null arguments and foreign keys change nothing.
  virtual void PPDOptionKeyValueDidChange(const std::string *key, const std::string *ppdChoice) = 0;

  /// Always true; `error` may be null and is never written.
  virtual bool restoreValuesAndReturnError(Error **error) = 0;
  virtual bool saveValuesAndReturnError(Error **error) = 0;

  /// Title and value, as shown to people, of every setting that has a value. Never null.
  virtual std::shared_ptr<const Dictionary> summaryInfo() = 0;

  /// Settings that are no PPD options: there are none, so both do nothing.
  virtual void getNonPPDSettingsFromPrintSettings() = 0;
  virtual void writeNonPPDSettingsToPrintSettings() = 0;

  // For tools that drive or inspect a dialog; not traced.

  /// Every option that the panel handles, whether the PPD has it or not, in the panel's order.
  virtual std::vector<PanelOption> options() const = 0;

  /// Every control that the panel knows, sorted by outlet.
  virtual std::vector<PanelControl> controls() const = 0;
};

}  // namespace kwopde
