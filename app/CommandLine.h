// The command line of a program with commands.
#pragma once

#include <vector>

#include "app/Command.h"

namespace kwopde::app {

/// Runs the one of `commands` that the arguments name, or tells what is wrong with them. Returns
/// the status to exit with, after all output was written.
int runCommandLine(int argc, char **argv, const std::vector<Command> &commands);

}  // namespace kwopde::app
