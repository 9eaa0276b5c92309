// A whole session on a PPD, as the fuzzers drive it.
#pragma once

#include <memory>
#include <sstream>
#include <string>

#include "headless/Headless.h"
#include "host/PpdSession.h"
#include "host/TraceTo.h"
#include "script/ScriptRunner.h"

namespace kwopde::fuzz {

/// Runs `script` on `session`; what is written is thrown away, but it is written.
inline void runScript(std::shared_ptr<host::PpdSession> session, const std::string &script) {
  static headless::Module module;
  headless::UserInput user;
  std::ostringstream out;
  std::ostringstream errors;
  script::ScriptRunner runner(module, std::move(session), user, out, errors);
  const host::TraceTo trace(module, &runner);
  std::istringstream commands(script);
  runner.run(commands, "commands");
}

}  // namespace kwopde::fuzz
