// kwopde run: drives the panels by a script.
#pragma once

#include <functional>
#include <string>

#include "app/Command.h"
#include "platform/PlugIn.h"
#include "platform/UserInput.h"

namespace kwopde::app {

struct RunOptions {
  std::string ppd;
  bool noConstraintHandling = false;
  std::string toolkit = "qt";  // or "headless"
  std::string script = "-";    // "-": standard input
  std::string trace;           // empty: into the transcript
};

Command runCommand(const std::function<int(const RunOptions &)> &run);

/// Runs the script on `module`, whose controls `user` works, and writes the transcript. Returns the
/// exit status.
int runScript(const RunOptions &options, PlugInModule &module, UserInput &user);

}  // namespace kwopde::app
