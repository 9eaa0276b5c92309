// A person's own settings of the printers, without a document.
#pragma once

#include <optional>
#include <vector>

#include "dialog/PanelDialog.h"
#include "dialog/PresetRow.h"
#include "queue/PrintQueue.h"

class QComboBox;

namespace kwopde::dialog {

/// Accepting it ("Save") keeps what is set for the printer that is chosen, or in the preset of it
/// that is shown: every program that prints there by CUPS's saved options then prints so.
class SettingsDialog final : public PanelDialog {
  Q_OBJECT

public:
  /// Shows the printer or preset `destination` ("photo/glossy") at first, and offers `queues`.
  /// Throws `JobError` when its server does not answer.
  SettingsDialog(PlugInModule &module, const QStringList &queues, const QString &destination,
                 QWidget *parent = nullptr);

  /// Stays open when the settings could not be saved, and says why.
  void accept() override;

  /// Returns what was saved by accepting, none when there were no panels to set, and for which
  /// printer or preset.
  const std::optional<std::vector<host::OptionChoice>> &saved() const { return saved_; }
  const QString &destination() const { return destination_; }

private:
  void showSettingsOf(const QString &destination);
  void switchTo(const QString &destination);
  std::optional<std::vector<host::OptionChoice>> settings();

  QComboBox *printers_;
  QString destination_;
  std::optional<host::PrintQueue> queue_;  // none when it could not be asked
  std::shared_ptr<host::PpdSession> session_;
  std::unique_ptr<PresetRow> presets_;
  std::optional<std::vector<host::OptionChoice>> saved_;
};

}  // namespace kwopde::dialog
