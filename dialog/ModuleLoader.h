// Finds and loads the extension's module.
#pragma once

#include <QString>

#include "platform/PlugIn.h"

namespace kwopde::dialog {

/// Returns the extension in `file`, or with an empty name the one that belongs to this program:
/// what the environment variable KWOPDE_MODULE names unless the process is privileged (setuid,
/// setgid), else the one beside the program, else the one in the folder kwopde beside the library
/// that this is part of. It stays loaded for the rest of the process. Throws `host::Error` when
/// there is none, or when it was built for another version of the contract.
PlugInModule &loadModule(const QString &file = {});

}  // namespace kwopde::dialog
