// What the panels are set to, at a glance.
#pragma once

#include "dialog/Page.h"
#include "platform/PlugIn.h"

namespace kwopde::dialog {

/// Asks the panels anew whenever it is opened.
class SummaryPage final : public Page {
  Q_OBJECT

public:
  /// `panels`, which work on the PPD, and `ppd` are borrowed.
  SummaryPage(const PanelList &panels, ppd_file_t *ppd);

  /// Asks the panels anew.
  void refresh() { setContent(table()); }

protected:
  void showEvent(QShowEvent *event) override;

private:
  QWidget *table();

  const PanelList &panels_;
  ppd_file_t *ppd_;
};

}  // namespace kwopde::dialog
