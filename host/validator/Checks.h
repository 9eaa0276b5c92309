// The contract of platform/PlugIn.h and platform/Panel.h as checks that a module passes or fails.
#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "host/UserInput.h"
#include "platform/PlugIn.h"

namespace kwopde::host {

/// What a check found wrong.
class CheckFailed : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// What a check is run on. All of it is borrowed.
struct Subject {
  PlugInModule &module;
  UserInput &user;
  std::string ppd;       // a file with every option of every panel
  std::string emptyPpd;  // a file with none
};

struct Check {
  std::string_view name;
  std::string_view promise;  // what holds when it passes
  void (*run)(const Subject &subject);
};

/// Every check, in a fixed order.
std::span<const Check> checks();

}  // namespace kwopde::host
