#include "script/ScriptRunner.h"

#include <fmt/format.h>
#include <fmt/printf.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

#include "host/Error.h"
#include "platform/Escaped.h"
#include "platform/PanelInspector.h"
#include "script/PanelCalls.h"

namespace kwopde::script {

namespace {

/// Writes a line, with control characters escaped.
template <class... Arguments>
void printLine(std::ostream &out, fmt::format_string<Arguments...> format,
               Arguments &&...arguments) {
  std::string line;
  appendEscaped(line, fmt::format(format, std::forward<Arguments>(arguments)...));
  out << line << '\n';
}

std::string nameOf(const Word &word) {
  return word.value_or("nil");
}

/// What `controls` shows for one control.
std::string stateText(const View *control) {
  if (!control) return "nil";
  std::string value;
  if (auto *popUp = dynamic_cast<const PopUpButton *>(control)) {
    const int index = popUp->indexOfSelectedItem();
    const Menu *menu = const_cast<PopUpButton *>(popUp)->menu();
    const MenuItem *item = menu ? menu->itemAtIndex(index) : nullptr;
    value = item ? fmt::format("{} {}", index, quoted(item->title.value_or(""))) : "-1";
  } else if (auto *slider = dynamic_cast<const Slider *>(control)) {
    value = fmt::sprintf("%g", slider->doubleValue());
  } else if (auto *field = dynamic_cast<const TextField *>(control)) {
    value = quoted(field->stringValue());
  }
  return value + (control->isEnabled() ? " enabled" : " disabled");
}

template <class Number>
Number number(const Word &word) {
  Number value{};
  const std::string text = nameOf(word);
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec != std::errc() || read.ptr != text.data() + text.size() ||
      !std::isfinite(static_cast<double>(value)))
    throw host::Error(fmt::format("\"{}\" is not a number", text));
  return value;
}

/// Returns the words of the panels that `module` could make, each once; none when it does not tell.
std::vector<std::string_view> panelWords(const PlugInModule &module) {
  std::vector<std::string_view> words;
  if (const ModuleInspector *inspector = inspectorOf(module))
    for (const PanelRequirement &needed : inspector->requirements())
      if (std::find(words.begin(), words.end(), needed.word) == words.end())
        words.push_back(needed.word);
  return words;
}

/// The row of a table that is called `name`; null when there is none.
template <class Table>
auto find(const Table &table, std::string_view name) {
  const auto row = std::find_if(std::begin(table), std::end(table),
                                [&](const auto &entry) { return entry.name == name; });
  return row == std::end(table) ? nullptr : row;
}

void checkCount(const std::vector<Word> &words, std::size_t least, std::size_t most) {
  const auto count = words.size() - 1;
  if (count >= least && count <= most) return;
  const auto wanted = count < least ? least : most;
  throw host::Error(fmt::format("{} takes {} {} {}, not {}", nameOf(words.front()),
                                count < least ? "at least" : "at most", wanted,
                                wanted == 1 ? "word" : "words", count));
}

}  // namespace

struct ScriptRunner::Command {
  std::string_view name;
  std::size_t least;  // words after the name
  std::size_t most;
  std::string (ScriptRunner::*run)(const std::vector<Word> &words);
};

const ScriptRunner::Command ScriptRunner::kCommands[] = {
    {"set", 2, 2, &ScriptRunner::set},         {"pick", 2, 2, &ScriptRunner::pick},
    {"slide", 2, 2, &ScriptRunner::slide},     {"type", 2, 2, &ScriptRunner::type},
    {"mark", 2, 2, &ScriptRunner::mark},       {"controls", 1, 1, &ScriptRunner::showControls},
    {"refuse", 1, 1, &ScriptRunner::refuse},   {"marked", 0, 1, &ScriptRunner::showMarked},
    {"release", 0, 0, &ScriptRunner::release},
};

const ScriptRunner::Command ScriptRunner::kPlugInOperations[] = {
    {"initWithBundle", 0, 0, &ScriptRunner::initWithBundle},
    {"PDEPanelsForType", 0, 1, &ScriptRunner::PDEPanelsForType},
};

std::string ScriptRunner::initWithBundle(const std::vector<Word> &) {
  isInitialised_ = true;
  return yesOrNo(extension().plugIn().initWithBundle(extension().bundle()));
}

std::string ScriptRunner::PDEPanelsForType(const std::vector<Word> &words) {
  const Word type = words.size() > 1 ? words[1] : Word(kPrinterModuleTypeIDStr);
  isAsked_ = true;
  const PanelList *panels = extension().ask(pointerTo(type));
  if (!panels) return "nil";
  std::vector<std::string> classes;
  for (const auto &panel : *panels) classes.push_back(fmt::format("<{}>", panel->className()));
  return fmt::format("[{}]", fmt::join(classes, ", "));
}

ScriptRunner::ScriptRunner(PlugInModule &module, std::shared_ptr<host::PpdSession> session,
                           UserInput &user, std::ostream &out, std::ostream &errors)
    : module_(module),
      session_(std::move(session)),
      user_(user),
      out_(out),
      errors_(errors),
      extension_(std::in_place, module, session_) {
  session_->addObserver(this);
}

ScriptRunner::~ScriptRunner() {
  extension_.reset();
  session_->removeObserver(this);
}

bool ScriptRunner::run(std::istream &script, const std::string &name) {
  bool good = true;
  std::string line;
  for (int number = 1; std::getline(script, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (isBlank(line)) continue;
    printLine(out_, "> {}", line);
    try {
      const std::string result = perform(splitWords(line));
      printLine(out_, "= {}", result);
    } catch (const host::Error &error) {
      out_.flush();
      printLine(errors_, "error: {}:{}: {}", name, number, error.what());
      good = false;
    }
  }
  return good;
}

void ScriptRunner::requestWasAnswered(const std::string *key, const std::string *choice,
                                      const host::Answer &answer) {
  printLine(out_, "host: {} {} {}", key ? *key : "nil", choice ? *choice : "nil",
            answer.granted() ? "granted" : "refused");
}

void ScriptRunner::willAnnounce(const host::OptionChoice &change) {
  printLine(out_, "announce: {} {}", change.key, change.choice);
}

void ScriptRunner::writeLine(std::string_view line) {
  printLine(out_, "| {}", line);
}

std::string ScriptRunner::perform(const std::vector<Word> &words) {
  const std::string name = nameOf(words.front());
  if (const Command *command = find(kCommands, name)) {
    checkCount(words, command->least, command->most);
    return (this->*command->run)(words);
  }
  const auto point = name.find('.');
  if (point == name.npos) throw host::Error(fmt::format("unknown command \"{}\"", name));
  const std::string target = name.substr(0, point);
  const std::string operation = name.substr(point + 1);
  if (target == "plugin") {
    const Command *found = find(kPlugInOperations, operation);
    if (!found) throw host::Error(fmt::format("a plug-in has no operation \"{}\"", operation));
    checkCount(words, found->least, found->most);
    return (this->*found->run)(words);
  }
  Panel &found = panel(target);
  const PanelCall *row = findPanelCall(operation);
  if (!row) throw host::Error(fmt::format("a panel has no operation \"{}\"", operation));
  checkCount(words, row->words, row->words);
  return row->call(found, words);
}

host::Extension &ScriptRunner::extension() {
  if (!extension_) throw host::Error("the plug-in has been released");
  return *extension_;
}

const PanelList *ScriptRunner::panels() const {
  return extension_ ? extension_->panels() : nullptr;
}

void ScriptRunner::open() {
  if (panels()) return;
  if (!isInitialised_) initWithBundle({});
  PDEPanelsForType({std::nullopt});
}

Panel &ScriptRunner::panel(std::string_view word) const {
  if (panels())
    for (const auto &panel : *panels())
      if (wordOf(*panel) == word) return *panel;
  const auto words = panelWords(module_);
  if (words.empty() || std::find(words.begin(), words.end(), word) != words.end())
    throw host::Error(fmt::format("there is no {} panel: {}", word,
                                  !extension_ ? "the plug-in has been released"
                                  : isAsked_  ? "the PPD has none of its options"
                                              : "plugin.PDEPanelsForType has not been called"));
  throw host::Error(fmt::format("\"{}\" is not a panel: {} or {}", word,
                                fmt::join(words.begin(), words.end() - 1, ", "), words.back()));
}

template <class Control>
Control &ScriptRunner::control(const Word &word, std::string_view kind) const {
  const std::string name = nameOf(word);
  const auto point = std::min(name.find('.'), name.size());
  const std::string panelName = name.substr(0, point);
  const std::string outlet = name.substr(std::min(point + 1, name.size()));
  const auto controls = controlsOf(panel(panelName));
  const auto found = std::find_if(controls.begin(), controls.end(),
                                  [&](const PanelControl &row) { return row.outlet == outlet; });
  if (found == controls.end())
    throw host::Error(
        fmt::format("there is no control {}: \"controls {}\" lists them", name, panelName));
  if (!found->control)
    throw host::Error(
        fmt::format("{} is not there: {}.panelView has not been called", name, panelName));
  auto *control = dynamic_cast<Control *>(found->control);
  if (!control) throw host::Error(fmt::format("{} is not a {}", name, kind));
  if (!control->isEnabled()) throw host::Error(fmt::format("{} is disabled", name));
  return *control;
}

std::string ScriptRunner::set(const std::vector<Word> &words) {
  const std::string key = nameOf(words[1]);
  open();
  std::vector<std::string> keys;
  for (const auto &panel : panels() ? *panels() : PanelList())
    for (const PanelOption &option : optionsOf(*panel)) {
      keys.push_back(option.key);
      if (option.key != key) continue;
      const bool isChoice = option.kind == PanelOption::Kind::choice;
      const Word outlet =
          fmt::format("{}.{}", wordOf(*panel), isChoice ? option.popUp : option.field);
      // It shows what is marked now: hiding it saves all of its numbers.
      panel->restoreValuesAndReturnError(nullptr);
      panel->panelView();
      panel->willShow();
      if (isChoice) return pickBy(&ScriptRunner::choiceIndex, {words[0], outlet, words[2]});
      type({words[0], outlet, words[2]});
      panel->shouldHide();
      return "void";
    }
  throw host::Error(fmt::format("no panel sets {}: they set {}", key, fmt::join(keys, ", ")));
}

std::optional<int> ScriptRunner::choiceIndex(const Menu &menu, const std::string &name,
                                             const std::string &item) const {
  // The text of the choice that has this keyword, if it is one.
  const auto point = name.find('.');
  std::string text;
  for (const PanelOption &option : optionsOf(panel(name.substr(0, point))))
    if (option.popUp == name.substr(point + 1))
      if (ppd_option_t *record = ppdFindOption(session_->ppdFile(), option.key.c_str()))
        if (const ppd_choice_t *choice = ppdFindChoice(record, item.c_str())) text = choice->text;
  for (const std::string &title : {text, item})
    for (int index = 0; const MenuItem *shown = menu.itemAtIndex(index); ++index)
      if (!title.empty() && shown->title == title) return index;
  return {};
}

std::optional<int> ScriptRunner::itemIndex(const Menu &menu, const std::string &name,
                                           const std::string &item) const {
  int index = 0;
  const auto read = std::from_chars(item.data(), item.data() + item.size(), index);
  if (read.ec == std::errc() && read.ptr == item.data() + item.size() && menu.itemAtIndex(index))
    return index;
  return choiceIndex(menu, name, item);
}

std::string ScriptRunner::pick(const std::vector<Word> &words) {
  return pickBy(&ScriptRunner::itemIndex, words);
}

std::string ScriptRunner::pickBy(FindItem find, const std::vector<Word> &words) {
  auto &popUp = control<PopUpButton>(words[1], "pop-up menu");
  const Menu *menu = popUp.menu();
  if (!menu || !menu->itemAtIndex(0))
    throw host::Error(fmt::format("{} has no items: {}.willShow has not been called", *words[1],
                                  words[1]->substr(0, words[1]->find('.'))));
  const auto index = (this->*find)(*menu, *words[1], nameOf(words[2]));
  if (!index) throw host::Error(fmt::format("{} has no item {}", *words[1], nameOf(words[2])));
  if (!user_.pick(popUp, *index))
    throw host::Error(fmt::format("{} cannot be picked from", *words[1]));
  return "void";
}

std::string ScriptRunner::slide(const std::vector<Word> &words) {
  auto &slider = control<Slider>(words[1], "slider");
  if (!user_.slide(slider, number<double>(words[2])))
    throw host::Error(fmt::format("{} cannot be moved", *words[1]));
  return "void";
}

std::string ScriptRunner::type(const std::vector<Word> &words) {
  auto &field = control<TextField>(words[1], "field");
  if (!words[2]) throw host::Error("nil cannot be typed");
  if (!user_.type(field, *words[2]))
    throw host::Error(fmt::format("{} cannot be typed into", *words[1]));
  return "void";
}

std::string ScriptRunner::showControls(const std::vector<Word> &words) {
  if (const PanelInspector *inspector = inspectorOf(panel(nameOf(words[1]))))
    for (const auto &[outlet, control] : inspector->controls())
      printLine(out_, "{} = {}", outlet, stateText(control));
  return "void";
}

std::string ScriptRunner::mark(const std::vector<Word> &words) {
  return yesOrNo(words[1] && words[2] && session_->mark(*words[1], *words[2]));
}

std::string ScriptRunner::refuse(const std::vector<Word> &words) {
  const std::string word = nameOf(words[1]);
  if (word != "on" && word != "off") throw host::Error("refuse takes on or off");
  session_->refuseAll(word == "on");
  return "void";
}

std::string ScriptRunner::showMarked(const std::vector<Word> &words) {
  if (words.size() > 1) {
    const auto choice = words[1] ? session_->markedChoice(*words[1]) : std::nullopt;
    return choice ? quoted(*choice) : "nil";
  }
  if (panels())
    for (const auto &panel : *panels())
      for (const PanelOption &option : optionsOf(*panel)) {
        if (!ppdFindOption(session_->ppdFile(), option.key.c_str())) continue;
        printLine(out_, "{} = {}", option.key, session_->markedChoice(option.key).value_or("nil"));
      }
  return "void";
}

std::string ScriptRunner::release(const std::vector<Word> &) {
  extension();
  extension_.reset();
  return "void";
}

}  // namespace kwopde::script
