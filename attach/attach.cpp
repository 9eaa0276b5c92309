#include "attach/kwopde/attach.h"

#include <QPrintDialog>
#include <QtDebug>

#include "dialog/ModuleLoader.h"
#include "dialog/PrintDialogPanels.h"
#include "dialog/Translations.h"
#include "host/Error.h"

namespace kwopde {

bool attachPanels(QPrintDialog *dialog) {
  if (!dialog) return false;
  try {
    PlugInModule &module = dialog::loadModule();
    dialog::installTranslations();
    auto *panels = new dialog::PrintDialogPanels(module, *dialog);  // the dialog's
    QObject::connect(dialog, &QDialog::accepted, panels, &dialog::PrintDialogPanels::settle);
    return true;
  } catch (const host::Error &error) {
    qWarning("kwopde: %s", error.what());
    return false;
  }
}

}  // namespace kwopde
