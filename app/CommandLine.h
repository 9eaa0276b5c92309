// The command line of a program with commands.
#pragma once

#include <functional>
#include <vector>

#include "app/Command.h"

namespace kwopde::app {

/// Runs the one of `commands()` that the arguments name, or tells what is wrong with them. Returns
/// the status to exit with, after all output was written. Throws nothing, also where `commands`
/// does.
int runCommandLine(int argc, char **argv, const std::function<std::vector<Command>()> &commands);

}  // namespace kwopde::app
