#include "host/ScriptRunner.h"

#include <fmt/format.h>
#include <fmt/ostream.h>
#include <fmt/printf.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

#include "host/Error.h"

namespace kwopde::host {

namespace {

std::string nameOf(const Word &word) {
  return word.value_or("nil");
}

const std::string *pointerTo(const Word &word) {
  return word ? &*word : nullptr;
}

std::string quoted(std::string_view text) {
  std::string out;
  appendQuoted(out, text);
  return out;
}

std::string yesOrNo(bool answer) {
  return answer ? "YES" : "NO";
}

std::string objectText(const Object *object) {
  return object ? fmt::format("<{}>", object->className()) : "nil";
}

template <class List, class Text>
std::string listText(const List &list, Text &&text) {
  std::string out = "[";
  for (const auto &element : list) {
    if (out.size() > 1) out += ", ";
    out += text(element);
  }
  return out + "]";
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
    throw Error(fmt::format("\"{}\" is not a number", text));
  return value;
}

/// How a script names the panels, by their classes.
constexpr struct {
  std::string_view word;
  std::string_view className;
} kPanelWords[] = {
    {"media", "MediaPDE"},
    {"media", "Media7032PDE"},
    {"color", "ColorPDE"},
    {"sharpen", "SharpenPDE"},
};

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
  throw Error(fmt::format("{} takes {} {} {}, not {}", nameOf(words.front()),
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
    {"pick", 2, 2, &ScriptRunner::pick},         {"slide", 2, 2, &ScriptRunner::slide},
    {"type", 2, 2, &ScriptRunner::type},         {"controls", 1, 1, &ScriptRunner::showControls},
    {"mark", 2, 2, &ScriptRunner::mark},         {"refuse", 1, 1, &ScriptRunner::refuse},
    {"marked", 0, 1, &ScriptRunner::showMarked}, {"release", 0, 0, &ScriptRunner::release},
};

struct ScriptRunner::PlugInOperation {
  std::string_view name;
  std::size_t most;
  std::string (*run)(ScriptRunner &runner, const std::vector<Word> &words);
};

const ScriptRunner::PlugInOperation ScriptRunner::kPlugInOperations[] = {
    {"initWithBundle", 0,
     [](ScriptRunner &runner, const std::vector<Word> &) {
       return yesOrNo(runner.plugIn().initWithBundle(runner.bundle_.get()));
     }},
    {"PDEPanelsForType", 1,
     [](ScriptRunner &runner, const std::vector<Word> &words) {
       const Word type = words.size() > 1 ? words[1] : Word(kPrinterModuleTypeIDStr);
       runner.panels_ = runner.plugIn().PDEPanelsForType(pointerTo(type), runner.session_);
       runner.session_->setPanels(runner.panels_);
       if (!runner.panels_) return std::string("nil");
       return listText(*runner.panels_, [](const auto &panel) { return objectText(panel.get()); });
     }},
};

struct ScriptRunner::PanelOperation {
  std::string_view name;
  std::size_t least;
  std::size_t most;
  std::string (*run)(Panel &panel, const std::vector<Word> &words);
};

const ScriptRunner::PanelOperation
    ScriptRunner::kPanelOperations[] =
        {
            {"panelView", 0, 0,
             [](Panel &panel, const std::vector<Word> &) { return objectText(panel.panelView()); }},
            {"panelName", 0, 0,
             [](Panel &panel, const std::vector<Word> &) {
               const std::string *name = panel.panelName();
               return name ? quoted(*name) : "nil";
             }},
            {"panelKind", 0, 0,
             [](Panel &panel, const std::vector<Word> &) { return quoted(panel.panelKind()); }},
            {"supportedPPDOptionKeys", 0, 0,
             [](Panel &panel, const std::vector<Word> &) {
               return listText(panel.supportedPPDOptionKeys(), quoted);
             }},
            {"willShow", 0, 0,
             [](Panel &panel, const std::vector<Word> &) {
               panel.willShow();
               return std::string("void");
             }},
            {"shouldHide", 0, 0,
             [](Panel &panel, const std::vector<Word> &) { return yesOrNo(panel.shouldHide()); }},
            {"shouldPrint", 0, 0,
             [](Panel &panel, const std::vector<Word> &) { return yesOrNo(panel.shouldPrint()); }},
            {"shouldShowHelp", 0, 0,
             [](Panel &panel, const std::vector<Word> &) {
               return yesOrNo(panel.shouldShowHelp());
             }},
            {"PPDOptionKeyValueDidChange", 2, 2,
             [](Panel &panel, const std::vector<Word> &words) {
               panel.PPDOptionKeyValueDidChange(pointerTo(words[1]), pointerTo(words[2]));
               return std::string("void");
             }},
            {"restoreValuesAndReturnError", 0, 0,
             [](Panel &panel,
                const std::vector<Word>
                    &) { return yesOrNo(panel.restoreValuesAndReturnError(nullptr)); }},
            {"saveValuesAndReturnError", 0, 0,
             [](Panel &panel, const std::vector<Word>
                                  &) { return yesOrNo(panel.saveValuesAndReturnError(nullptr)); }},
            {"summaryInfo", 0, 0,
             [](
                 Panel &panel,
                 const std::vector<Word> &) { return panel.summaryInfo()->description(); }},
            {"getNonPPDSettingsFromPrintSettings", 0, 0,
             [](Panel &panel, const std::vector<Word> &) {
               panel.getNonPPDSettingsFromPrintSettings();
               return std::string("void");
             }},
            {"writeNonPPDSettingsToPrintSettings", 0, 0,
             [](Panel &panel, const std::vector<Word> &) {
               panel.writeNonPPDSettingsToPrintSettings();
               return std::string("void");
             }},
};

ScriptRunner::ScriptRunner(PlugInModule &module, std::shared_ptr<PpdSession> session,
                           UserInput &user, std::ostream &out, std::ostream &errors)
    : session_(std::move(session)),
      user_(user),
      out_(out),
      errors_(errors),
      bundle_(module.bundle()),
      plugIn_(module.makePlugIn()) {
  session_->addObserver(this);
}

ScriptRunner::~ScriptRunner() {
  dropPlugIn();
  session_->removeObserver(this);
}

bool ScriptRunner::run(std::istream &script) {
  bool good = true;
  std::string line;
  for (int number = 1; std::getline(script, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (isBlank(line)) continue;
    fmt::print(out_, "> {}\n", line);
    try {
      const std::string result = perform(splitWords(line));
      fmt::print(out_, "= {}\n", result);
    } catch (const Error &error) {
      out_.flush();
      fmt::print(errors_, "error: {}: {}\n", number, error.what());
      good = false;
    }
  }
  return good;
}

void ScriptRunner::requestWasAnswered(const std::string *key, const std::string *choice,
                                      const Answer &answer) {
  fmt::print(out_, "host: {} {} {}\n", key ? *key : "nil", choice ? *choice : "nil",
             answer.granted() ? "granted" : "refused");
}

void ScriptRunner::willAnnounce(const OptionChoice &change) {
  fmt::print(out_, "announce: {} {}\n", change.key, change.choice);
}

void ScriptRunner::writeLine(std::string_view line) {
  fmt::print(out_, "| {}\n", line);
}

std::string ScriptRunner::perform(const std::vector<Word> &words) {
  const std::string name = nameOf(words.front());
  if (const Command *command = find(kCommands, name)) {
    checkCount(words, command->least, command->most);
    return (this->*command->run)(words);
  }
  const auto point = name.find('.');
  if (point == name.npos) throw Error(fmt::format("unknown command \"{}\"", name));
  const std::string target = name.substr(0, point);
  const std::string operation = name.substr(point + 1);
  if (target == "plugin") {
    const PlugInOperation *found = find(kPlugInOperations, operation);
    if (!found) throw Error(fmt::format("a plug-in has no operation \"{}\"", operation));
    checkCount(words, 0, found->most);
    return found->run(*this, words);
  }
  Panel &found = panel(target);
  const PanelOperation *row = find(kPanelOperations, operation);
  if (!row) throw Error(fmt::format("a panel has no operation \"{}\"", operation));
  checkCount(words, row->least, row->most);
  return row->run(found, words);
}

PlugIn &ScriptRunner::plugIn() const {
  if (!plugIn_) throw Error("the plug-in has been released");
  return *plugIn_;
}

Panel &ScriptRunner::panel(std::string_view word) const {
  bool known = false;
  for (const auto &row : kPanelWords) {
    if (row.word != word) continue;
    known = true;
    if (!panels_) continue;
    for (const auto &panel : *panels_)
      if (panel->className() == row.className) return *panel;
  }
  throw Error(known ? fmt::format("there is no {} panel", word)
                    : fmt::format("\"{}\" is not a panel: media, color or sharpen", word));
}

template <class Control>
Control &ScriptRunner::control(const Word &word, std::string_view kind) const {
  const std::string name = nameOf(word);
  const auto point = std::min(name.find('.'), name.size());
  const auto controls = panel(name.substr(0, point)).controls();
  const auto outlet = name.substr(std::min(point + 1, name.size()));
  const auto row = std::find_if(controls.begin(), controls.end(),
                                [&](const PanelControl &c) { return c.outlet == outlet; });
  if (row == controls.end() || !row->control)
    throw Error(fmt::format("there is no control {}", name));
  auto *control = dynamic_cast<Control *>(row->control);
  if (!control) throw Error(fmt::format("{} is not a {}", name, kind));
  if (!control->isEnabled()) throw Error(fmt::format("{} is disabled", name));
  return *control;
}

std::string ScriptRunner::pick(const std::vector<Word> &words) {
  auto &popUp = control<PopUpButton>(words[1], "pop-up menu");
  const int index = number<int>(words[2]);
  const Menu *menu = popUp.menu();
  if (!menu || !menu->itemAtIndex(index))
    throw Error(fmt::format("{} has no item {}", *words[1], index));
  if (!user_.pick(popUp, index)) throw Error(fmt::format("{} cannot be picked from", *words[1]));
  return "void";
}

std::string ScriptRunner::slide(const std::vector<Word> &words) {
  auto &slider = control<Slider>(words[1], "slider");
  if (!user_.slide(slider, number<double>(words[2])))
    throw Error(fmt::format("{} cannot be moved", *words[1]));
  return "void";
}

std::string ScriptRunner::type(const std::vector<Word> &words) {
  auto &field = control<TextField>(words[1], "field");
  if (!words[2]) throw Error("nil cannot be typed");
  if (!user_.type(field, *words[2])) throw Error(fmt::format("{} cannot be typed into", *words[1]));
  return "void";
}

std::string ScriptRunner::showControls(const std::vector<Word> &words) {
  for (const auto &[outlet, control] : panel(nameOf(words[1])).controls())
    fmt::print(out_, "{} = {}\n", outlet, stateText(control));
  return "void";
}

std::string ScriptRunner::mark(const std::vector<Word> &words) {
  return yesOrNo(words[1] && words[2] && session_->mark(*words[1], *words[2]));
}

std::string ScriptRunner::refuse(const std::vector<Word> &words) {
  const std::string word = nameOf(words[1]);
  if (word != "on" && word != "off") throw Error("refuse takes on or off");
  session_->refuseAll(word == "on");
  return "void";
}

std::string ScriptRunner::showMarked(const std::vector<Word> &words) {
  if (words.size() > 1) {
    const auto choice = words[1] ? session_->markedChoice(*words[1]) : std::nullopt;
    return choice ? quoted(*choice) : "nil";
  }
  if (panels_)
    for (const auto &panel : *panels_)
      for (const PanelOption &option : panel->options()) {
        if (!ppdFindOption(session_->ppdFile(), option.key.c_str())) continue;
        fmt::print(out_, "{} = {}\n", option.key,
                   session_->markedChoice(option.key).value_or("nil"));
      }
  return "void";
}

std::string ScriptRunner::release(const std::vector<Word> &) {
  plugIn();
  dropPlugIn();
  return "void";
}

void ScriptRunner::dropPlugIn() {
  session_->setPanels(nullptr);
  panels_ = nullptr;
  plugIn_.reset();
}

}  // namespace kwopde::host
