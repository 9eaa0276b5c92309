// The KWO driver's panels in any Qt application's print dialog.
#pragma once

#include <QtGlobal>

class QPrintDialog;

#ifdef KWOPDE_BUILDS_ATTACH
#define KWOPDE_ATTACH_API Q_DECL_EXPORT
#else
#define KWOPDE_ATTACH_API Q_DECL_IMPORT
#endif

namespace kwopde {

/// Shows the panels as option tabs of `dialog` for the printer that is chosen in it, and none for a
/// printer of another driver. When the dialog is accepted, and before anybody hears so, what is set
/// in the panels is handed to the dialog's QPrinter as CUPS options. Paper size, sides and all else
/// that Qt's own tabs have stays as Qt has it. Qt folds the option tabs away until a person opens
/// them; with `openOptions` they are open at once. Call it before the dialog is shown; a second
/// call changes nothing. Returns false when the extension's module is not installed; the dialog
/// then stays as it was, and a warning tells why.
///
/// The panels write a trace to the system log, under the application's name. Nothing of it reaches
/// Qt's message handler, or a terminal, unless the logging category "kwopde.trace" is switched on
/// for messages of the kind info.
KWOPDE_ATTACH_API bool attachPanels(QPrintDialog *dialog, bool openOptions = false);

}  // namespace kwopde
