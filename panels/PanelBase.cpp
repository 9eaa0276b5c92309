#include "panels/PanelBase.h"

#include <fmt/printf.h>

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

  for (const PopUpRow &row : traits_.popUps) {
    this->*row.option = ppdFindOption(ppd, row.key);
    this->*row.choices = ArrayFromPPDOption(this->*row.option, choiceMaker());
  }
  for (const ValueRow &row : traits_.values) {
    this->*row.option = ppdFindOption(ppd, row.key);
    std::visit([&](auto value) { this->*value = row.initialValue; }, row.value);
  }

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
  for (const PopUpRow &row : traits_.popUps) (this->*row.choices).reset();
}

bool PanelBase::isRefused() const {
  const auto keyOptions = traits_.popUps.first(traits_.keyOptions);
  return std::all_of(keyOptions.begin(), keyOptions.end(),
                     [this](const PopUpRow &row) { return this->*row.option == nullptr; });
}

View *PanelBase::panelView() {
  PDEProlog(this, traits_.panelViewEntry, {traits_.interfaceFile});
  if (!pdeView) Bundle::loadNibNamed(traits_.interfaceFile, *this);
  PDEEpilog(this, "panelView:=NSView(%@, %p)", {pdeView, pdeView});
  return pdeView.get();
}

const std::string *PanelBase::panelName() {
  PDEProlog(this, "panelName:");
  if (!thePDEName && pluginBundle)
    thePDEName = pluginBundle->localizedStringForKey(traits_.nameKey, nullptr, nullptr);
  PDEEpilog(this, "panelName:=NSString(%@)", {thePDEName});
  return thePDEName ? &*thePDEName : nullptr;
}

std::string_view PanelBase::panelKind() {
  PDEProlog(this, "panelKind:");
  PDEEpilog(this, "panelKind:=NSString(%@)", {traits_.kind});
  return traits_.kind;
}

const std::vector<std::string> &PanelBase::supportedPPDOptionKeys() {
  PDEProlog(this, "supportedPPDOptionKeys:");
  if (!supportedOptions) {
    auto keys = std::make_shared<std::vector<std::string>>();
    keys->reserve(traits_.popUps.size() + traits_.values.size());
    const auto addIfSupported = [&](const auto &row) {
      if (this->*row.option)
        keys->emplace_back(row.key);
      else
        PDELog(this, row.notSupported);
    };
    std::for_each(traits_.popUps.begin(), traits_.popUps.end(), addIfSupported);
    std::for_each(traits_.values.begin(), traits_.values.end(), addIfSupported);
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
  if (traits_.saving) PDELog(this, traits_.saving);
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
    const auto popUp = std::find_if(traits_.popUps.begin(), traits_.popUps.end(), named);
    const auto value = std::find_if(traits_.values.begin(), traits_.values.end(), named);
    if (popUp != traits_.popUps.end())
      this->*popUp->selection = FindChoiceForString(ppdChoice, (this->*popUp->choices).get());
    else if (value != traits_.values.end())
      std::visit(Overloaded{
                     [&](Member<int> number) { this->*number = leadingInteger(*ppdChoice); },
                     [&](Member<double> number) { this->*number = leadingDouble(*ppdChoice); },
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
  const auto summary = makeSummary(traits_.popUps.size() + traits_.values.size());
  for (const PopUpRow &row : traits_.popUps) {
    if (const PDEChoice *selection = this->*row.selection) {
      const auto title = CreateOptionTitle(this->*row.option);
      const std::string *value = selection->userTitle();
      // A text that the PPD has cut or garbled has no place in a summary.
      if (title && value) summary->setObject(*value, *title);
    } else if (row.noSelection) {
      PDELog(this, row.noSelection);
    }
  }
  for (const ValueRow &row : traits_.values)
    summary->setObject(text(row, row.summaryFormat), row.summaryKey);
  PDEEpilog(this, "summaryInfo:NSDictionary(%@, %p)=", {summary, summary});
  return summary;
}

std::vector<PanelOption> PanelBase::options() const {
  std::vector<PanelOption> options;
  for (const PopUpRow &row : traits_.popUps)
    options.push_back({row.key, PanelOption::Kind::choice, {}, row.action});
  for (const ValueRow &row : traits_.values)
    options.push_back({row.key,
                       std::holds_alternative<Member<int>>(row.value) ? PanelOption::Kind::integer
                                                                      : PanelOption::Kind::real,
                       row.slider.name, row.action});
  return options;
}

PanelRequirement PanelBase::requirement() const {
  PanelRequirement needed{traits_.className, {}};
  for (const PopUpRow &row : traits_.popUps.first(traits_.keyOptions))
    needed.anyOf.emplace_back(row.key);
  return needed;
}

std::vector<PanelControl> PanelBase::controls() const {
  std::vector<PanelControl> controls;
  forEachOutlet([&](const auto &row) {
    controls.push_back({row.name, (this->*row.member).get()});
  });
  std::sort(controls.begin(), controls.end(),
            [](const PanelControl &a, const PanelControl &b) { return a.outlet < b.outlet; });
  return controls;
}

template <class Visit>
void PanelBase::forEachOutlet(Visit &&visit) const {
  for (const PopUpRow &row : traits_.popUps) visit(row.popUp);
  for (const ValueRow &row : traits_.values) {
    visit(row.field);
    if (!row.slider.name.empty()) visit(row.slider);
  }
  for (const auto &row : traits_.captions) visit(row);
}

bool PanelBase::setOutlet(std::string_view outlet, const std::shared_ptr<View> &view) {
  if (outlet == "pdeView") {
    pdeView = view;
    return true;
  }
  bool connected = false;
  forEachOutlet([&](const auto &row) {
    if (row.name == outlet) connected = (this->*row.member).connect(view);
  });
  return connected;
}

bool PanelBase::performAction(std::string_view action) {
  for (const PopUpRow &row : traits_.popUps)
    if (row.action == action) return changeSelection(row), true;
  for (const ValueRow &row : traits_.values)
    if (!row.action.empty() && row.action == action) return changeValue(row), true;
  return false;
}

void PanelBase::changeSelection(const PopUpRow &row) {
  if (PDEChoice *picked = selectionForPopUp((this->*row.popUp.member).get(), row.key))
    this->*row.selection = picked;
  updateUI();
}

void PanelBase::changeValue(const ValueRow &row) {
  const auto &slider = this->*row.slider.member;
  const auto &field = this->*row.field.member;
  std::visit(Overloaded{
                 [&](Member<int> value) {
                   this->*value = slider->intValue();
                   field->setIntValue(this->*value);
                 },
                 [&](Member<double> value) {
                   this->*value = cutToHundredths(slider->doubleValue());
                   field->setDoubleValue(this->*value);
                 },
             },
             row.value);
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
    PDELog(this, traits_.noMarkedChoice);
  PDEEpilog(this, "queryIntFromPPD:(%d)", {*value});
}

void PanelBase::queryDoubleFromPPD(double *value, const char *forKey) {
  PDEProlog(this, "queryDoubleFromPPD:(%s)", {forKey});
  if (const char *marked = markedText(forKey)) *value = leadingDouble(marked);
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
  for (const ValueRow &row : traits_.values)
    std::visit(Overloaded{
                   [&](Member<int> value) { queryIntFromPPD(&(this->*value), row.key); },
                   [&](Member<double> value) { queryDoubleFromPPD(&(this->*value), row.key); },
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
  for (const PopUpRow &row : traits_.popUps) {
    if (!(this->*row.option)) continue;
    const int index = indexOfMarkedOption(this->*row.option, row.key);
    const ChoiceList &choices = *(this->*row.choices);
    this->*row.selection = index >= 0 && static_cast<std::size_t>(index) < choices.size()
                               ? choices[static_cast<std::size_t>(index)].get()
                               : nullptr;
  }
  PDEEpilog(this, "updateMarkedSelections:=void");
}

void PanelBase::saveIntToPPD(int value, const std::string &FieldKey) {
  PDEProlog(this, "saveIntToPPD:(%@, %d)", {FieldKey, value});
  saveNSStringToPPD(fmt::sprintf("%d", value), FieldKey);
  PDEEpilog(this, "saveIntToPPD:");
}

void PanelBase::saveDoubleToPPD(double value, const std::string &FieldKey) {
  // Kept: the log's readers know this entry line by the integer's name.
  PDEProlog(this, "saveIntToPPD:(%@, %lf)", {FieldKey, value});
  saveNSStringToPPD(fmt::sprintf("%lf", value), FieldKey);
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
  for (const ValueRow &row : traits_.values)
    std::visit(Overloaded{
                   [&](Member<int> value) { saveIntToPPD(this->*value, row.key); },
                   [&](Member<double> value) { saveDoubleToPPD(this->*value, row.key); },
               },
               row.value);
  PDEEpilog(this, "saveSettingsToPPD:");
}

void PanelBase::initializeUI() {
  PDEProlog(this, "initializeUI:");
  if (!hasInited) {
    for (const PopUpRow &row : traits_.popUps) {
      const auto &popUp = this->*row.popUp.member;
      if (this->*row.option) {
        InitPopUpFromArray(*popUp.operator->(), (this->*row.choices).get());
      } else {
        PDELog(this, row.disabling);
        popUp->setEnabled(false);
      }
    }
    for (const ValueRow &row : traits_.values) {
      if (this->*row.option || row.missing == MissingValue::staysUsable) continue;
      if (row.disabling) PDELog(this, row.disabling);
      (this->*row.field.member)->setEnabled(false);
    }
    querySettingsFromPPD();
    hasInited = true;
  }
  PDEEpilog(this, "initializeUI:=void");
}

void PanelBase::updateUI() {
  PDEProlog(this, traits_.updateUIEntry, {hasInited ? 1 : 0});
  if (hasInited) {
    for (const PopUpRow &row : traits_.popUps) {
      if (!(this->*row.selection)) continue;
      if (const auto index =
              IndexOfChoiceIdenticalTo(this->*row.selection, (this->*row.choices).get()))
        (this->*row.popUp.member)->selectItemAtIndex(*index);
      else
        PDELog(this, row.notFound);
    }
    for (const ValueRow &row : traits_.values) {
      const auto &field = this->*row.field.member;
      if (row.fieldFormat) {
        field->setStringValue(text(row, row.fieldFormat));
        continue;
      }
      const auto &slider = this->*row.slider.member;
      std::visit(Overloaded{
                     [&](Member<int> value) {
                       field->setIntValue(this->*value);
                       slider->setIntValue(this->*value);
                     },
                     [&](Member<double> value) {
                       field->setDoubleValue(this->*value);
                       slider->setDoubleValue(this->*value);
                     },
                 },
                 row.value);
    }
  }
  PDEEpilog(this, "updateUI:=void");
}

void PanelBase::querySettingsFromUI() {
  PDEProlog(this, "querySettingsFromUI:");
  for (const ValueRow &row : traits_.values) {
    const auto &field = this->*row.field.member;
    std::visit(
        Overloaded{
            [&](Member<int> value) { this->*value = field->intValue(); },
            [&](Member<double> value) { this->*value = cutToHundredths(field->doubleValue()); },
        },
        row.value);
  }
  const auto *first = std::get_if<Member<int>>(&traits_.values.front().value);
  PDEEpilog(this, traits_.querySettingsFromUIExit, {first ? this->**first : 0});
}

PDEChoice *PanelBase::selectionForPopUp(PopUpButton *popUp, const std::string &withKey) {
  PDEProlog(this, "selectionForPopUp:(%@) withKey:(%@)",
            {static_cast<const Object *>(popUp), withKey});
  Menu *const menu = popUp ? popUp->menu() : nullptr;
  const MenuItem *const item = menu ? menu->itemAtIndex(popUp->indexOfSelectedItem()) : nullptr;
  const auto choice =
      item ? std::dynamic_pointer_cast<PDEChoice>(item->representedObject) : nullptr;
  if (traits_.request) PDELog(this, traits_.request, {choice});
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

std::string PanelBase::text(const ValueRow &row, const char *format) const {
  return std::visit([&](auto value) { return fmt::sprintf(format, this->*value); }, row.value);
}

}  // namespace kwopde
