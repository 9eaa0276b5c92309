// What the panels are set to, at a glance.
#pragma once

#include "dialog/Page.h"
#include "platform/PlugIn.h"

namespace kwopde::dialog {

/// Asks the panels anew whenever it is opened.
class SummaryPage final : public Page {
  Q_OBJECT

public:
  /// `panels` is borrowed.
  explicit SummaryPage(const PanelList &panels);

protected:
  void showEvent(QShowEvent *event) override;

private:
  QWidget *table();

  const PanelList &panels_;
};

}  // namespace kwopde::dialog
