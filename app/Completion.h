// What a shell can offer while a command line is being typed.
#pragma once

#include <vector>

#include "app/Command.h"

namespace kwopde::app {

/// Returns the command that writes what can stand in the place of the last of its words, which may
/// be empty, a line each; the words before it, without the program's name, are typed already. It
/// writes nothing where a file is expected, since shells complete those by themselves, and for a
/// printer that there is none of, or whose server does not answer. `commands` are copied.
Command completeCommand(const std::vector<Command> &commands);

}  // namespace kwopde::app
