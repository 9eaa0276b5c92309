// What the commands that need Qt do. Each needs a QApplication, and returns the exit status.
#pragma once

#include "app/QtCommands.h"

namespace kwopde::app {

int runDialogCommand(const DialogOptions &options);
int runPortalDialogCommand(const PortalDialogOptions &options);
int runSettingsCommand(const SettingsOptions &options);
int runValidateCommand(const ValidateOptions &options);

}  // namespace kwopde::app
