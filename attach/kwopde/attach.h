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
/// printer of another driver. When the dialog is accepted, the choices that differ from the
/// printer's defaults travel with the dialog's QPrinter as CUPS options. Call it once for a dialog,
/// before it is shown. False when the extension's module is not installed; the dialog then stays
/// as it was, and a warning tells why.
KWOPDE_ATTACH_API bool attachPanels(QPrintDialog *dialog);

}  // namespace kwopde
