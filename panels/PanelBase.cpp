#include "panels/PanelBase.h"

#include <algorithm>

#include "choice/Encoding.h"
#include "platform/Kept.h"
#include "platform/Numbers.h"
#include "plugin/PDELogging.h"

namespace kwopde {

namespace {

template <class... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

const char *yesOrNo(bool answer) {
  return answer ? "YES" : "NO";
}

/// Returns the row's number in a printf format.
std::string text(const ValueRow &row, const char *format) {
  return std::visit([&](const auto *value) { return printfText(format, {*value}); }, row.value);
}

}  // namespace

bool PanelBase::init(const std::shared_ptr<HostCallback> &callback, Bundle *bundle) {
  PDEProlog(this, "initWithCallback:(%@, %p) andBundle:(%@ %p)",
            {callback, callback, bundle, bundle});
  pdePluginCallbackObject = callback;
  // Kept: hosts have come to rely on the bundle outliving the panels it served.
  if (bundle) keepForever(bundle->weak_from_this().lock());
  pluginBundle = bundle;
  useConstraintHandling = callback && callback->respondsToSelector(kWillChangePPDOptionKeyValue);
  PDELog(this, "Constraint Handling Available: %s", {yesOrNo(useConstraintHandling)});
  ppd = callback ? callback->ppdFile() : nullptr;

  for (const PopUpRow &row : table_.popUps) {
    row.option = ppdFindOption(ppd, row.key);
    row.choices = ArrayFromPPDOption(row.option, choiceMaker());
  }
  for (const ValueRow &row : table_.values) row.option = ppdFindOption(ppd, row.key);
  for (const ValueRow &row : table_.values)
    std::visit([&](auto value) { *value = row.initialValue; }, row.value);

  if (isRefused()) {
    pdePluginCallbackObject.reset();
    PDEEpilog(this, "initWithCallback:=id(nil, nil)");
    return false;
  }
  PDEEpilog(this, "initWithCallback:andBundle:=id(self)");
  return true;
}

PanelBase::~PanelBase() {
  pdePluginCallbackObject.reset();
  thePDEName.reset();
  pdeView.reset();
}

void PanelBase::releaseChoices() {
  for (const PopUpRow &row : table_.popUps) row.choices.reset();
}

bool PanelBase::isRefused() const {
  return std::none_of(table_.popUps.begin(), table_.popUps.end(),
                      [](const PopUpRow &row) { return row.isKey && row.option; });
}

View *PanelBase::panelView() {
  PDEProlog(this, table_.traits.panelViewEntry, {table_.traits.interfaceFile});
  if (!pdeView) Bundle::loadNibNamed(table_.traits.interfaceFile, *this);
  PDEEpilog(this, "panelView:=NSView(%@, %p)", {pdeView, pdeView});
  return pdeView.get();
}

const std::string *PanelBase::panelName() {
  PDEProlog(this, "panelName:");
  if (!thePDEName && pluginBundle)
    thePDEName = pluginBundle->localizedStringForKey(table_.traits.nameKey, nullptr, nullptr);
  PDEEpilog(this, "panelName:=NSString(%@)", {thePDEName});
  return thePDEName ? &*thePDEName : nullptr;
}

std::string_view PanelBase::panelKind() {
  PDEProlog(this, "panelKind:");
  PDEEpilog(this, "panelKind:=NSString(%@)", {table_.traits.kind});
  return table_.traits.kind;
}

const std::vector<std::string> &PanelBase::supportedPPDOptionKeys() {
  PDEProlog(this, "supportedPPDOptionKeys:");
  if (!supportedOptions) {
    auto keys = std::make_shared<std::vector<std::string>>();
    keys->reserve(table_.popUps.size() + table_.values.size());
    const auto addIfSupported = [&](const auto &row) {
      if (row.option)
        keys->emplace_back(row.key);
      else
        PDELog(this, row.notSupported);
    };
    std::for_each(table_.popUps.begin(), table_.popUps.end(), addIfSupported);
    std::for_each(table_.values.begin(), table_.values.end(), addIfSupported);
    supportedOptions = keys.get();
    keepForever(keys);  // hosts may look at the list after the panel is gone
  }
  for (const std::string &key : *supportedOptions) PDELog(this, "Option: %@", {key});
  PDEEpilog(this, "supportedPPDOptionKeys:=NSArray()");
  return *supportedOptions;
}

void PanelBase::willShow() {
  PDEProlog(this, "willShow:");
  initializeUI();
  updateUI();
  PDEEpilog(this, "willShow:=void");
}

void PanelBase::saveWhatIsShown() {
  if (!hasInited) return;
  if (table_.traits.saving) PDELog(this, table_.traits.saving);
  querySettingsFromUI();
  saveSettingsToPPD();
}

bool PanelBase::shouldHide() {
  PDEProlog(this, "shouldHide:");
  saveWhatIsShown();
  PDEEpilog(this, "shouldHide:=BOOL(YES)");
  return true;
}

bool PanelBase::shouldPrint() {
  PDEProlog(this, "shouldPrint:");
  saveWhatIsShown();
  PDEEpilog(this, "shouldPrint:=BOOL(YES)");
  return true;
}

void PanelBase::PPDOptionKeyValueDidChange(const std::string *key, const std::string *ppdChoice) {
  PDEProlog(this, "PPDOptionKeyValueDidChange:(%@) ppdChoice:(%@)", {key, ppdChoice});
  if (key && ppdChoice) {
    const auto named = [&](const auto &row) { return *key == row.key; };
    const auto popUp = std::find_if(table_.popUps.begin(), table_.popUps.end(), named);
    const auto value = std::find_if(table_.values.begin(), table_.values.end(), named);
    if (popUp != table_.popUps.end())
      popUp->selection = FindChoiceForString(ppdChoice, popUp->choices.get());
    else if (value != table_.values.end())
      std::visit(Overloaded{
                     [&](int *number) { *number = leadingInteger(*ppdChoice); },
                     [&](double *number) { *number = leadingDouble(*ppdChoice); },
                 },
                 value->value);
  }
  PDEEpilog(this, "PPDOptionKeyValueDidChange:ppdChoice:=void");
}

bool PanelBase::restoreValuesAndReturnError(Error **error) {
  PDEProlog(this, "restoreValuesAndReturnError:(%p)", {static_cast<const void *>(error)});
  querySettingsFromPPD();
  if (useConstraintHandling) updateMarkedSelections();
  updateUI();
  PDEEpilog(this, "restoreValuesAndReturnError:=BOOL(YES)");
  return true;
}

bool PanelBase::saveValuesAndReturnError(Error **error) {
  PDEProlog(this, "saveValuesAndReturnError:(%p)", {static_cast<const void *>(error)});
  saveSettingsToPPD();
  PDEEpilog(this, "saveValuesAndReturnError:=BOOL(YES)");
  return true;
}

std::shared_ptr<const Dictionary> PanelBase::summaryInfo() {
  PDEProlog(this, "summaryInfo:");
  const auto summary = makeSummary(table_.popUps.size() + table_.values.size());
  for (const PopUpRow &row : table_.popUps) {
    if (const PDEChoice *selection = row.selection) {
      const auto title = CreateOptionTitle(row.option);
      const std::string *value = selection->userTitle();
      // A text that the PPD has cut or garbled has no place in a summary.
      if (title && value) summary->setObject(*value, *title);
    } else if (row.noSelection) {
      PDELog(this, row.noSelection);
    }
  }
  for (const ValueRow &row : table_.values)
    summary->setObject(text(row, row.summaryFormat), row.summaryKey);
  PDEEpilog(this, "summaryInfo:NSDictionary(%@, %p)=", {summary, summary});
  return summary;
}

std::vector<PanelOption> PanelBase::options() const {
  std::vector<PanelOption> options;
  options.reserve(table_.popUps.size() + table_.values.size());
  for (const PopUpRow &row : table_.popUps)
    options.push_back({.key = row.key,
                       .kind = PanelOption::Kind::choice,
                       .popUp = row.popUp.name,
                       .action = row.action.name});
  for (const ValueRow &row : table_.values)
    options.push_back({.key = row.key,
                       .kind = std::holds_alternative<int *>(row.value) ? PanelOption::Kind::integer
                                                                        : PanelOption::Kind::real,
                       .field = row.field.name,
                       .slider = row.slider.name,
                       .action = row.action.name,
                       .summary = row.summaryKey});
  return options;
}

PanelRequirement PanelBase::requirement() const {
  PanelRequirement needed{table_.traits.className, table_.traits.word, {}, {}, {}};
  for (const PopUpRow &row : table_.popUps)
    if (row.isKey) needed.anyOf.emplace_back(row.key);
  for (const PanelOption &option : options()) needed.keys.push_back(option.key);
  return needed;
}

std::vector<PanelControl> PanelBase::controls() const {
  std::vector<PanelControl> controls;
  forEachOutlet([&](const auto &row) { controls.push_back({row.name, row.member->get()}); });
  std::sort(controls.begin(), controls.end(),
            [](const PanelControl &a, const PanelControl &b) { return a.outlet < b.outlet; });
  return controls;
}

template <class Visit>
void PanelBase::forEachOutlet(Visit &&visit) const {
  for (const PopUpRow &row : table_.popUps) visit(row.popUp);
  for (const ValueRow &row : table_.values) {
    visit(row.field);
    if (row.slider.member) visit(row.slider);
  }
  for (const auto &row : table_.captions) visit(row);
}

void PanelBase::setOutlet(std::string_view outlet, const std::shared_ptr<View> &view) {
  if (outlet == "pdeView") pdeView = view;
  forEachOutlet([&](const auto &row) {
    if (row.name == outlet) (*row.member).connect(view);
  });
}

bool PanelBase::performAction(std::string_view action, const Object *sender) {
  if (action.empty()) return false;
  const auto perform = [&](const auto &row) {
    if (row.action.name != action) return false;
    (this->*row.action.method)(sender);
    return true;
  };
  return std::any_of(table_.popUps.begin(), table_.popUps.end(), perform) ||
         std::any_of(table_.values.begin(), table_.values.end(), perform);
}

void PanelBase::changeSelection(PDEChoice *&selection) {
  const auto row =
      std::find_if(table_.popUps.begin(), table_.popUps.end(),
                   [&](const PopUpRow &popUp) { return &popUp.selection == &selection; });
  if (PDEChoice *picked = selectionForPopUp(row->popUp.member->get(), row->key)) selection = picked;
  updateUI();
}

void PanelBase::changeValue(int &value) {
  const ValueRow &row = rowOf(&value);
  value = (*row.slider.member)->intValue();
  (*row.field.member)->setIntValue(value);
}

void PanelBase::changeValue(double &value) {
  const ValueRow &row = rowOf(&value);
  value = cutToHundredths((*row.slider.member)->doubleValue());
  (*row.field.member)->setDoubleValue(value);
}

const ValueRow &PanelBase::rowOf(std::variant<int *, double *> value) const {
  return *std::find_if(table_.values.begin(), table_.values.end(),
                       [&](const ValueRow &row) { return row.value == value; });
}

const char *PanelBase::markedText(const char *key) const {
  const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, key);
  return choice ? choice->text : nullptr;
}

void PanelBase::queryIntFromPPD(int *value, const char *forKey) {
  PDEProlog(this, "queryIntFromPPD:(%s)", {forKey});
  if (const char *marked = markedText(forKey))
    *value = leadingInteger(marked);
  else
    PDELog(this, table_.traits.noMarkedChoice);
  PDEEpilog(this, "queryIntFromPPD:(%d)", {*value});
}

void PanelBase::queryDoubleFromPPD(double *value, const char *forKey) {
  PDEProlog(this, "queryDoubleFromPPD:(%s)", {forKey});
  if (const char *marked = markedText(forKey)) *value = atofInCLocale(marked);
  PDEEpilog(this, "queryDoubleFromPPD:(%lf)", {*value});
}

void PanelBase::queryNSStringFromPPD(std::optional<std::string> *value, const char *forKey) {
  PDEProlog(this, "queryNSStringFromPPD:(%s)", {forKey});
  if (const char *marked = markedText(forKey))
    *value = stringFromBytes(marked, PPD_MAX_TEXT, Encoding::utf8);
  PDEEpilog(this, "queryNSStringFromPPD:(%@)", {*value});
}

void PanelBase::querySettingsFromPPD() {
  PDEProlog(this, "querySettingsFromPPD:");
  for (const ValueRow &row : table_.values)
    std::visit(Overloaded{
                   [&](int *value) { queryIntFromPPD(value, row.key); },
                   [&](double *value) { queryDoubleFromPPD(value, row.key); },
               },
               row.value);
  PDEEpilog(this, "querySettingsFromPPD:");
}

int PanelBase::indexOfMarkedOption(ppd_option_t *option, const char *forKey) {
  PDEProlog(this, "indexOfMarkedOption:[%s][%s]", {option ? option->text : nullptr, forKey});
  const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, forKey);
  if (!choice && option) choice = ppdFindChoice(option, option->defchoice);
  const int index = positionInOption(choice, option) - 1;
  PDEEpilog(this, "indexOfMarkedOption:=(%d)", {index});
  return index;
}

void PanelBase::updateMarkedSelections() {
  PDEProlog(this, "updateMarkedSelections:");
  for (const PopUpRow &row : table_.popUps) {
    if (!(row.option)) continue;
    // -1 is beyond every list.
    const auto index = static_cast<std::size_t>(indexOfMarkedOption(row.option, row.key));
    row.selection = index < row.choices->size() ? (*row.choices)[index].get() : nullptr;
  }
  PDEEpilog(this, "updateMarkedSelections:=void");
}

void PanelBase::saveIntToPPD(int value, const std::string &FieldKey) {
  PDEProlog(this, "saveIntToPPD:(%@, %d)", {FieldKey, value});
  saveNSStringToPPD(printfText("%d", {value}), FieldKey);
  PDEEpilog(this, "saveIntToPPD:");
}

void PanelBase::saveDoubleToPPD(double value, const std::string &FieldKey) {
  // Kept: the log's readers know this entry line by the integer's name.
  PDEProlog(this, "saveIntToPPD:(%@, %lf)", {FieldKey, value});
  saveNSStringToPPD(printfText("%lf", {value}), FieldKey);
  PDEEpilog(this, "saveDoubleToPPD:");
}

void PanelBase::saveNSStringToPPD(const std::string &value, const std::string &FieldKey) {
  PDEProlog(this, "saveNSStringToPPD:(%@, %@)", {FieldKey, value});
  if (useConstraintHandling) {
    const bool granted = pdePluginCallbackObject->willChangePPDOptionKeyValue(&FieldKey, &value);
    PDELog(this, granted ? "Request granted" : "Request refused");
  }
  PDEEpilog(this, "saveNSStringToPPD:");
}

void PanelBase::saveSettingsToPPD() {
  PDEProlog(this, "saveSettingsToPPD:");
  for (const ValueRow &row : table_.values)
    std::visit(Overloaded{
                   [&](int *value) { saveIntToPPD(*value, row.key); },
                   [&](double *value) { saveDoubleToPPD(*value, row.key); },
               },
               row.value);
  PDEEpilog(this, "saveSettingsToPPD:");
}

void PanelBase::initializeUI() {
  PDEProlog(this, "initializeUI:");
  if (!hasInited) {
    for (const PopUpRow &row : table_.popUps) {
      const auto &popUp = *row.popUp.member;
      if (row.option) {
        InitPopUpFromArray(*popUp.operator->(), row.choices.get());
      } else {
        PDELog(this, row.disabling);
        popUp->setEnabled(false);
      }
    }
    for (const ValueRow &row : table_.values) {
      if (row.option || row.missing == MissingValue::staysUsable) continue;
      if (row.disabling) PDELog(this, row.disabling);
      (*row.field.member)->setEnabled(false);
    }
    querySettingsFromPPD();
    hasInited = true;
  }
  PDEEpilog(this, "initializeUI:=void");
}

void PanelBase::updateUI() {
  PDEProlog(this, table_.traits.updateUIEntry, {hasInited ? 1 : 0});
  if (hasInited) {
    for (const PopUpRow &row : table_.popUps) {
      if (!row.selection) continue;
      if (const auto index = IndexOfChoiceIdenticalTo(row.selection, row.choices.get()))
        (*row.popUp.member)->selectItemAtIndex(*index);
      else
        PDELog(this, row.notFound);
    }
    for (const ValueRow &row : table_.values) {
      const auto &field = *row.field.member;
      if (row.fieldFormat) {
        field->setStringValue(text(row, row.fieldFormat));
        continue;
      }
      const auto &slider = *row.slider.member;
      std::visit(Overloaded{
                     [&](int *value) {
                       field->setIntValue(*value);
                       slider->setIntValue(*value);
                     },
                     [&](double *value) {
                       field->setDoubleValue(*value);
                       slider->setDoubleValue(*value);
                     },
                 },
                 row.value);
    }
  }
  PDEEpilog(this, "updateUI:=void");
}

void PanelBase::querySettingsFromUI() {
  PDEProlog(this, "querySettingsFromUI:");
  for (const ValueRow &row : table_.values) {
    const auto &field = *row.field.member;
    std::visit(Overloaded{
                   [&](int *value) { *value = field->intValue(); },
                   [&](double *value) { *value = cutToHundredths(field->doubleValue()); },
               },
               row.value);
  }
  const auto *first = std::get_if<int *>(&table_.values.front().value);
  PDEEpilog(this, table_.traits.querySettingsFromUIExit, {first ? **first : 0});
}

PDEChoice *PanelBase::selectionForPopUp(PopUpButton *popUp, const std::string &withKey) {
  PDEProlog(this, "selectionForPopUp:(%@) withKey:(%@)",
            {static_cast<const Object *>(popUp), withKey});
  Menu *const menu = popUp ? popUp->menu() : nullptr;
  const MenuItem *const item = menu ? menu->itemAtIndex(popUp->indexOfSelectedItem()) : nullptr;
  const auto choice =
      item ? std::dynamic_pointer_cast<PDEChoice>(item->representedObject) : nullptr;
  if (table_.traits.request) PDELog(this, table_.traits.request, {choice});
  PDEChoice *result = choice.get();
  if (useConstraintHandling) {
    pdePluginCallbackObject->willChangePPDOptionKeyValue(&withKey,
                                                         choice ? choice->ppdTitle() : nullptr);
    updateMarkedSelections();
    result = nullptr;
  }
  PDEEpilog(this, "selectionForPopUp:withKey:=PDEChoice(%@)",
            {static_cast<const Object *>(result)});
  return result;
}

void PanelBase::setViewTitleByTag(int tag, const ppd_option_t *fromOptions) {
  const auto title = CreateOptionTitle(fromOptions);
  TextField *const label = pdeView ? pdeView->viewWithTag(tag) : nullptr;
  if (label && title) label->setStringValue(*title);
}

}  // namespace kwopde
