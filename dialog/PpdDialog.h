// The dialog for a PPD file, which prints nothing.
#pragma once

#include "dialog/PanelDialog.h"

namespace kwopde::dialog {

/// Accepting it settles what the panels show; the session's settled choices are then what a job
/// would have to carry.
class PpdDialog final : public PanelDialog {
  Q_OBJECT

public:
  /// `document` is the name to show for what is printed; empty for none.
  PpdDialog(PlugInModule &module, const std::shared_ptr<host::PpdSession> &session,
            const QString &document, QWidget *parent = nullptr);
};

}  // namespace kwopde::dialog
