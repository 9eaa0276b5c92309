// The contract of platform/PlugIn.h and platform/Panel.h as checks that a module passes or fails.
#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/PlugIn.h"
#include "platform/UserInput.h"

namespace kwopde::check {

/// What a check found wrong.
class CheckFailed : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// Why a check has nothing to say about a module: there is nothing of the module's to look at.
class NothingToCheck : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// What a check is run on. All of it is borrowed.
struct Subject {
  PlugInModule &module;
  UserInput &user;
  std::string ppd;       // a file with the options of the module's panels
  std::string emptyPpd;  // a file with none
};

struct Check {
  std::string_view name;
  std::string_view promise;  // what holds when it passes

  /// Throws `CheckFailed` when the promise does not hold, and `NothingToCheck` when nothing tells.
  void (*run)(const Subject &subject);
};

/// Returns every check, in a fixed order.
std::span<const Check> checks();

}  // namespace kwopde::check
