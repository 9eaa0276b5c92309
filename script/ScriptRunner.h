// Drives the extension by a script of host calls and user actions, and writes down what happens.
#pragma once

#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "host/Extension.h"
#include "host/PpdSession.h"
#include "platform/LogSink.h"
#include "platform/PlugIn.h"
#include "platform/UserInput.h"
#include "script/Script.h"

namespace kwopde::script {

class ScriptRunner final : public host::SessionObserver, public LogSink {
public:
  /// Makes a plug-in of `module` to drive. The transcript goes to `out`, what is wrong with a
  /// command to `errors`; all of them are borrowed.
  ScriptRunner(PlugInModule &module, std::shared_ptr<host::PpdSession> session, UserInput &user,
               std::ostream &out, std::ostream &errors);
  ~ScriptRunner() override;

  /// Runs every command of `script`, which messages call `name`. False when one of them could not
  /// be run.
  bool run(std::istream &script, const std::string &name);

  /// Returns the panels that the plug-in made last; null when there are none.
  const PanelList *panels() const;

  void requestWasAnswered(const std::string *key, const std::string *choice,
                          const host::Answer &answer) override;
  void willAnnounce(const host::OptionChoice &change) override;

  /// Writes a line of the trace into the transcript.
  void writeLine(std::string_view line) override;

private:
  struct Command;
  static const Command kCommands[];
  static const Command kPlugInOperations[];

  /// Returns the command's result, as the transcript shows it. Throws `Error`.
  std::string perform(const std::vector<Word> &words);

  std::string set(const std::vector<Word> &words);
  std::string pick(const std::vector<Word> &words);
  std::string slide(const std::vector<Word> &words);
  std::string type(const std::vector<Word> &words);
  std::string showControls(const std::vector<Word> &words);
  std::string mark(const std::vector<Word> &words);
  std::string refuse(const std::vector<Word> &words);
  std::string showMarked(const std::vector<Word> &words);
  std::string release(const std::vector<Word> &words);
  std::string initWithBundle(const std::vector<Word> &words);
  std::string PDEPanelsForType(const std::vector<Word> &words);

  host::Extension &extension();

  /// Has panels made where none were asked for yet.
  void open();

  Panel &panel(std::string_view word) const;

  /// Return the index of an item of the pop-up `name`, a word of a script, by keyword or else by
  /// the text that it shows; `itemIndex` by its index before that. None when there is no such item.
  std::optional<int> choiceIndex(const Menu &menu, const std::string &name,
                                 const std::string &item) const;
  std::optional<int> itemIndex(const Menu &menu, const std::string &name,
                               const std::string &item) const;
  using FindItem = decltype(&ScriptRunner::itemIndex);
  std::string pickBy(FindItem find, const std::vector<Word> &words);
  template <class Control>
  Control &control(const Word &word, std::string_view kind) const;

  PlugInModule &module_;
  std::shared_ptr<host::PpdSession> session_;
  UserInput &user_;
  std::ostream &out_;
  std::ostream &errors_;
  std::optional<host::Extension> extension_;  // none once it was released
  bool isInitialised_ = false;                // the plug-in
  bool isAsked_ = false;                      // for panels
};

}  // namespace kwopde::script
