// Random host calls and user actions, as scripts of the language of `kwopde run`.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>

#include "host/validator/Checks.h"

namespace kwopde::host {

/// The commands of the session that `seed` stands for; the same on every machine.
std::string randomScript(std::uint64_t seed);

/// Runs such a session on `subject`, command by command, and holds after every one that the trace
/// is back at depth 0 and that every pop-up shows an item it has; after a pick, that the panel's
/// pop-ups show what is marked. Every command goes to `log` before it is run. Returns their number;
/// throws `CheckFailed`.
int runSession(const Subject &subject, const std::string &script, std::ostream &log);

}  // namespace kwopde::host
