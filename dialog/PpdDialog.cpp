#include "dialog/PpdDialog.h"

#include <QFormLayout>
#include <QLabel>

#include "dialog/PlainText.h"

namespace kwopde::dialog {

PpdDialog::PpdDialog(PlugInModule &module, const std::shared_ptr<host::PpdSession> &session,
                     const QString &document, QWidget *parent)
    : PanelDialog(module, tr("OK"), parent) {
  setWindowTitle(document.isEmpty() ? tr("Printer Settings")
                                    : tr("Printer Settings for %1").arg(document));
  facts().addRow(tr("Printer:"), plainLabel(QString::fromStdString(session->ppd().nickname())));
  if (!document.isEmpty()) facts().addRow(tr("Document:"), plainLabel(document));
  showPanels(session);
}

}  // namespace kwopde::dialog
