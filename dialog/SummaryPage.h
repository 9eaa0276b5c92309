// What the panels are set to, at a glance.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "dialog/Page.h"
#include "host/PpdSession.h"
#include "platform/PlugIn.h"

namespace kwopde::dialog {

/// Begins with what differs from the printer's defaults, and tells where a job would carry another
/// number than the panel shows. Asks the panels anew whenever it is
/// opened.
class SummaryPage final : public Page {
  Q_OBJECT

public:
  /// A setting, as its panel's summary has it.
  struct Entry {
    std::string title;
    std::string value;
    bool differs;  // from the printer's default
  };

  /// `panels`, which work on the PPD of `session`, and `session` are borrowed.
  SummaryPage(const PanelList &panels, const host::PpdSession &session);

  /// Asks the panels anew.
  void refresh() { setContent(table()); }

protected:
  QString help() override;
  void showEvent(QShowEvent *event) override;

private:
  struct Section {
    std::string title;  // the panel's name
    std::vector<Entry> entries;
  };

  std::vector<Section> sections() const;
  std::optional<double> numberMarked(const std::string &key) const;
  QWidget *table() const;

  const PanelList &panels_;
  const host::PpdSession &session_;
};

}  // namespace kwopde::dialog
