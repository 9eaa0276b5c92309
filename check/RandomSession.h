// Random host calls and user actions, as scripts of the language of `kwopde run`.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "check/ContractChecks.h"

namespace kwopde::check {

/// What there is to call and to work: the panels that a module makes for a PPD, as they tell it
/// themselves.
struct Vocabulary {
  struct PopUp {
    std::string name;  // "media.printQualityPopUp"
    int items;
  };
  struct Option {
    std::string key;
    std::vector<std::string> choices;  // keywords
  };
  std::vector<std::string> panels;  // "media"
  std::vector<PopUp> popUps;
  std::vector<std::string> sliders;
  std::vector<std::string> fields;
  std::vector<Option> options;
};

/// Asks the panels that the module makes for the subject's PPD. Throws `NothingToCheck` when there
/// are none, or none that tells.
Vocabulary vocabularyOf(const Subject &subject);

/// Returns the commands of the session that `seed` stands for; the same on every machine.
std::string randomScript(const Vocabulary &vocabulary, std::uint64_t seed);

/// Runs such a session on `subject`, command by command. After every one the trace is back at depth
/// 0 and every pop-up shows an item it has; after a pick, the pop-up shows what is marked. Every
/// command goes to `log` before it is run. Returns how many could be run; throws `CheckFailed`.
int runSession(const Subject &subject, const std::string &script, std::ostream &log);

}  // namespace kwopde::check
