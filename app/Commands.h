// The commands that need no toolkit.
#pragma once

#include "app/Command.h"

namespace kwopde::app {

Command checkCommand();
Command optionsCommand();
Command printCommand();
Command traceCommand();

}  // namespace kwopde::app
