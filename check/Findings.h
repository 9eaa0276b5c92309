// Findings as the checks make them: those of one kind about the choices of one option become one.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "check/PpdCheck.h"

namespace kwopde::check {

/// What can be wrong with a choice, in words. Kinds are told apart by where they stand.
struct ChoiceFault {
  Finding::Severity severity;
  const char *before = "";  // "the text of ", then the choice
  const char *after;        // and this; "{}" is the detail
  const char *advice;       // "{}" is the option
};

/// A choice that has a fault.
struct FaultyChoice {
  std::string_view option;
  std::string_view choice;  // empty for the option's title
  int line;
  std::string detail = {};
  std::string_view language = {};  // of the text; empty for the file's own
};

class Findings {
public:
  void add(Finding finding);
  void add(const ChoiceFault &fault, const FaultyChoice &choice);

  /// Returns all in the order of the file, and is empty then.
  std::vector<Finding> take();

private:
  struct Group {
    const ChoiceFault *fault;
    std::string choice;  // the first
    std::string detail;  // of it
    std::string language;
    std::size_t finding;  // its place
    int count = 1;

    std::string message() const;
  };
  using Kind = std::tuple<std::string, const ChoiceFault *, std::string>;

  std::vector<Finding> findings_;
  std::vector<Group> groups_;
  std::map<Kind, std::size_t> kinds_;  // places among the groups
};

}  // namespace kwopde::check
