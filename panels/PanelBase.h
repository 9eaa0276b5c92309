// What the panels share: every operation, written once over a panel's table of options.
#pragma once

#include <cups/ppd.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "choice/Utility.h"
#include "platform/Bundle.h"
#include "platform/Controls.h"
#include "platform/HostCallback.h"
#include "platform/Panel.h"
#include "platform/PanelInspector.h"

namespace kwopde {

class PanelBase;

/// An outlet of the interface file and the member that it connects; without a member, the option
/// has no such control.
template <class Control>
struct OutletRow {
  std::string_view name = {};
  Outlet<Control> *member = nullptr;
};

/// An action of a panel class: its full name and the method that performs it.
struct ActionRow {
  using Method = void (PanelBase::*)(const Object *sender);

  ActionRow() = default;
  template <class P>
  ActionRow(std::string_view action, void (P::*performs)(const Object *sender))
      : name(action), method(static_cast<Method>(performs)) {}

  std::string_view name = {};  // "changeGammaOption:"; empty: the option's control sends none
  Method method = nullptr;
};

/// An option that a pop-up menu shows; a pick is marked at once. It refers to the panel's own
/// members.
struct PopUpRow {
  const char *key;
  /// The panel is refused when the PPD has none of the options that are key options.
  bool isKey = false;
  OutletRow<PopUpButton> popUp;
  std::unique_ptr<ChoiceList> &choices;
  ppd_option_t *&option;
  PDEChoice *&selection;
  ActionRow action;
  // Trace texts; the log's readers match them as they are spelled.
  const char *notSupported;
  const char *disabling;
  const char *notFound;
  const char *noSelection = nullptr;  // null: a missing selection is not traced
};

/// What becomes of the field of a value option that the PPD does not have.
enum class MissingValue { staysUsable, isDisabled };

/// An option that is a number; its field is the value of record, and it is marked when the panel is
/// hidden, printed or saved. It refers to the panel's own members.
struct ValueRow {
  const char *key;
  ppd_option_t *&option;
  std::variant<int *, double *> value;
  int initialValue = 0;
  OutletRow<TextField> field;
  const char *fieldFormat = nullptr;  // printf format of the field's text; null: the bare number
  OutletRow<Slider> slider = {};
  ActionRow action = {};   // the slider's
  const char *summaryKey;  // not translated
  const char *summaryFormat;
  MissingValue missing = MissingValue::staysUsable;
  const char *notSupported;
  const char *disabling = nullptr;  // null: not traced
};

/// What tells one panel class from another, besides its options.
struct PanelTraits {
  std::string_view className;
  std::string_view word;  // as people and scripts call it
  std::string_view interfaceFile;
  const char *nameKey;  // of the localized panel name
  std::string_view kind;
  // Trace texts that are the panel's own; a null one is not traced.
  const char *panelViewEntry;           // may show the interface file
  const char *saving;                   // in shouldHide and shouldPrint
  const char *updateUIEntry;            // may show hasInited
  const char *querySettingsFromUIExit;  // may show the first value
  const char *request;                  // shows the picked choice
  const char *noMarkedChoice;           // of a number's option
};

/// All that a panel class is: its traits, and its options in the panel's order.
struct PanelTable {
  const PanelTraits &traits;
  std::vector<PopUpRow> popUps;
  std::vector<ValueRow> values;
  std::vector<OutletRow<TextField>> captions = {};  // outlets that no operation uses
};

/// The vendor kind prefix; a panel's kind is this and a suffix.
#define KWOPDE_KIND_PREFIX "org.kwopde"

class PanelBase : public Panel, public PanelInspector, public InterfaceOwner {
public:
  /// Makes a panel of class `P`, or null when the PPD lacks its key options; the callback is then
  /// released again. The panel retains `callback` and `andBundle`; each may be null. `arguments`
  /// are those of P's constructor: none but for an adapter's own class.
  template <class P, class... Arguments>
  static std::shared_ptr<P> initWithCallback(const std::shared_ptr<HostCallback> &callback,
                                             Bundle *andBundle, Arguments... arguments) {
    auto panel = std::make_shared<P>(arguments...);
    if (!panel->init(callback, andBundle)) return nullptr;
    return panel;
  }

  ~PanelBase() override;

  /// Returns what the panel's class needs of a PPD.
  PanelRequirement requirement() const;

  std::string_view className() const override { return table_.traits.className; }

  // The contract with the host.
  View *panelView() override;
  const std::string *panelName() override;
  std::string_view panelKind() override;
  const std::vector<std::string> &supportedPPDOptionKeys() override;
  void willShow() override;
  bool shouldHide() override;
  bool shouldPrint() override;
  bool shouldShowHelp() override { return true; }
  void PPDOptionKeyValueDidChange(const std::string *key, const std::string *ppdChoice) override;
  bool restoreValuesAndReturnError(Error **error) override;
  bool saveValuesAndReturnError(Error **error) override;
  std::shared_ptr<const Dictionary> summaryInfo() override;
  void getNonPPDSettingsFromPrintSettings() override {}
  void writeNonPPDSettingsToPrintSettings() override {}

  // For tools.
  std::string_view word() const override { return table_.traits.word; }
  std::vector<PanelOption> options() const override;
  std::vector<PanelControl> controls() const override;

  // The contract with the interface file.
  void setOutlet(std::string_view outlet, const std::shared_ptr<View> &view) override;
  bool performAction(std::string_view action, const Object *sender) override;

  // Reading what the PPD has marked. A number is read from the text of the marked choice, not from
  // its keyword; without a marked choice the value stays as it is.
  void queryIntFromPPD(int *value, const char *forKey);
  void queryDoubleFromPPD(double *value, const char *forKey);
  void queryNSStringFromPPD(std::optional<std::string> *value, const char *forKey);
  void querySettingsFromPPD();

  /// Returns the index of the marked choice of `option`, whose keyword is `forKey`, or else of its
  /// default choice; -1 when it has neither.
  int indexOfMarkedOption(ppd_option_t *option, const char *forKey);
  void updateMarkedSelections();

  // Asking the host to mark a number, written as a choice keyword. A refusal is only traced.
  void saveIntToPPD(int value, const std::string &FieldKey);
  void saveNSStringToPPD(const std::string &value, const std::string &FieldKey);
  void saveSettingsToPPD();

  // The controls.
  void initializeUI();
  void updateUI();
  void querySettingsFromUI();

  /// Asks the host to mark what `popUp` shows as the choice of `withKey`, and reads all selections
  /// back. The picked choice when the host marks nothing, so that the panel keeps it itself; null
  /// otherwise.
  PDEChoice *selectionForPopUp(PopUpButton *popUp, const std::string &withKey);

  /// Labels the subview of the panel's view that has the tag with the title of `fromOptions`.
  void setViewTitleByTag(int tag, const ppd_option_t *fromOptions);

  /// Releases the choice lists: the first step of a panel's end, then the callback, the name and
  /// the view. A panel class calls it in its destructor, while it has them.
  void releaseChoices();

  // In the order in which the panels declare them; public for the tables and for inspection.
  std::shared_ptr<HostCallback> pdePluginCallbackObject;
  std::optional<std::string> thePDEName;
  Bundle *pluginBundle = nullptr;  // retained for good
  bool useConstraintHandling = false;
  bool hasInited = false;
  ppd_file_t *ppd = nullptr;                                   // the host's
  const std::vector<std::string> *supportedOptions = nullptr;  // made once, kept for good
  std::shared_ptr<View> pdeView;

protected:
  /// Like `saveIntToPPD`; the panel classes that have real numbers make it public.
  void saveDoubleToPPD(double value, const std::string &FieldKey);

  explicit PanelBase(PanelTable table) : table_(std::move(table)) {}

  /// Makes the panel's choices; an adapter whose toolkit has objects for them says how.
  virtual ChoiceMaker choiceMaker() const { return &PDEChoice::choiceWithChoice; }

  /// Makes the empty dictionary of a summary.
  virtual std::shared_ptr<Dictionary> makeSummary(std::size_t capacity) const {
    return std::make_shared<Dictionary>(capacity);
  }

  // What the actions do. The argument is the member that the option's row refers to.

  /// Asks the host to mark what the selection's pop-up shows, and shows the result.
  void changeSelection(PDEChoice *&selection);

  /// Takes the number at which the value's slider stands, and shows it in the field beside it.
  void changeValue(int &value);
  void changeValue(double &value);

private:
  bool init(const std::shared_ptr<HostCallback> &callback, Bundle *bundle);
  bool isRefused() const;
  void saveWhatIsShown();
  const ValueRow &rowOf(std::variant<int *, double *> value) const;

  /// Returns the text shown for the marked choice of `key`; null when none is marked.
  const char *markedText(const char *key) const;

  /// Calls `visit` with the row of every outlet but the panel's view.
  template <class Visit>
  void forEachOutlet(Visit &&visit) const;

  const PanelTable table_;
};

}  // namespace kwopde
