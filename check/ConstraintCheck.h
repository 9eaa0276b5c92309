// Whether the constraints of a PPD leave panels something to mark.
#pragma once

#include <cups/ppd.h>

#include <map>
#include <set>
#include <string>
#include <utility>

#include "check/Findings.h"
#include "check/PpdLines.h"

namespace kwopde::check {

class ConstraintCheck {
public:
  /// For the options `keys` of `ppd`; both are borrowed.
  ConstraintCheck(ppd_file_t *ppd, const KeywordSet &keys) : ppd_(ppd), keys_(keys) {}

  /// Takes one that names an option of `keys`.
  void take(const ConstraintLine &constraint);

  /// Tells what all that were taken do to these options. `lines` are those of the file.
  void report(const PpdLines &lines, Findings &findings);

private:
  /// An option that a constraint names.
  struct Named {
    const ppd_option_t *option;
    KeywordSet choices;
    std::string byDefault;  // the choice that is marked; empty for none
    bool has(const std::string &choice) const { return choice.empty() || choices.contains(choice); }
  };
  /// What is named and is not there.
  struct Missing {
    int line;
    bool isResolver;
    int count = 0;
  };
  struct Conflict {
    host::OptionChoice own;
    std::string others;
  };
  /// Choices of other options that do not go with one.
  using Partners = KeywordMap<KeywordSet>;

  const Named *named(const std::string &key);
  bool isComplete(const ConstraintLine &constraint);
  bool isOfOne(const ConstraintLine &constraint);
  bool holdsByDefault(const ConstraintLine &constraint);
  void takeConflict(const ConstraintLine &constraint);
  /// Returns the choices of the options in `blocked` that are not.
  Partners leftBy(const Partners &blocked);
  /// Returns the option of which every choice is blocked, or every one that `left` has of it; null
  /// when there is none.
  const Named *blocking(const Partners &blocked, const Partners &left);
  void reportBlocked(const PpdLines &lines, Findings &findings);

  ppd_file_t *ppd_;
  const KeywordSet &keys_;
  KeywordMap<Named> named_;
  std::map<std::pair<std::string, std::string>, Missing> missing_;  // by option and what it is
  KeywordMap<int> ofOne_;                                           // lines, by option
  std::map<std::set<std::string>, Conflict> conflicts_;  // among defaults, by the options
  KeywordMap<KeywordMap<Partners>> partners_;            // by option and choice; "" is any
};

}  // namespace kwopde::check
