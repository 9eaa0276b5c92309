// The small print dialog for a PPD file.
#pragma once

#include <QDialog>
#include <QString>
#include <memory>

#include "dialog/PanelPages.h"
#include "host/PpdSession.h"

class QTabWidget;

namespace kwopde::dialog {

/// A tab for every panel, and the summary. Accepting it ("Print") settles what the panels show; the
/// session's changed choices are then what the job has to carry.
class PpdDialog final : public QDialog {
  Q_OBJECT

public:
  /// `document` is the name to show for what is printed; empty for none.
  PpdDialog(PlugInModule &module, const std::shared_ptr<host::PpdSession> &session,
            const QString &document, QWidget *parent = nullptr);

  void accept() override;

private:
  void showHelp();

  PanelPages pages_;
  QTabWidget *tabs_ = nullptr;  // null without panels
};

}  // namespace kwopde::dialog
