// The texts of the host's dialogs in the user's language.
#pragma once

namespace kwopde::dialog {

/// Installs them for Qt's default locale; a second call does nothing. Needs a QCoreApplication,
/// which then owns them.
void installTranslations();

/// Installs Qt's own texts the same way: for programs of our own, since the language of every
/// window changes.
void installQtTranslations();

}  // namespace kwopde::dialog
