// The panels as option tabs of Qt's own print dialog.
#pragma once

#include <QObject>
#include <QPrintDialog>
#include <functional>
#include <memory>

#include "dialog/PanelPages.h"
#include "host/PpdSession.h"

namespace kwopde::dialog {

/// While it lives, `dialog` shows the panels of the printer that is chosen in it, and none for a
/// printer that is not ours.
class PrintDialogPanels final : public QObject {
  Q_OBJECT

public:
  /// `module` makes the panels. The dialog owns this object.
  PrintDialogPanels(PlugInModule &module, QPrintDialog &dialog);

  /// Settles what the panels show and hands the choices that differ from the printer's defaults to
  /// the QPrinter, as CUPS options. To be called when the dialog is accepted.
  void settle();

  /// Returns the choices that the job has to carry, as settled last.
  const std::vector<host::OptionChoice> &choices() const { return choices_; }

private:
  void showPanelsOf(const QString &printer);

  PlugInModule &module_;
  QPrintDialog &dialog_;
  std::shared_ptr<host::PpdSession> session_;  // null for a printer without panels
  std::unique_ptr<PanelPages> pages_;
  std::vector<host::OptionChoice> choices_;
};

}  // namespace kwopde::dialog
