// The texts of the host's dialogs in the user's language.
#pragma once

namespace kwopde::dialog {

/// Installs them, and Qt's own for its buttons, for Qt's default locale; a second call does
/// nothing. Needs a QCoreApplication, which then owns them.
void installTranslations();

}  // namespace kwopde::dialog
