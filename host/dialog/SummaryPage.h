// What the panels are set to, at a glance.
#pragma once

#include <QScrollArea>

#include "platform/PlugIn.h"

namespace kwopde::host {

/// Asks the panels anew whenever it is opened.
class SummaryPage final : public QScrollArea {
  Q_OBJECT

public:
  /// `panels` is borrowed.
  explicit SummaryPage(const PanelList &panels);

protected:
  void showEvent(QShowEvent *event) override;

private:
  void refresh();

  const PanelList &panels_;
};

}  // namespace kwopde::host
