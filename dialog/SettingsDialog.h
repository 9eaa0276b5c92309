// A person's own settings of the printers, without a document.
#pragma once

#include <future>
#include <memory>
#include <optional>
#include <vector>

#include "dialog/PanelDialog.h"
#include "dialog/PresetRow.h"
#include "dialog/Printer.h"
#include "dialog/Question.h"
#include "host/JobOptions.h"

class QComboBox;

namespace kwopde::dialog {

/// Accepting it ("Save") keeps what is set for the printer that is chosen, or in the preset of it
/// that is shown: every program that prints there by CUPS's saved options then prints so.
class SettingsDialog final : public PanelDialog {
  Q_OBJECT

public:
  /// Shows the printer or preset `destination` ("photo/glossy") at first, and offers `queues`.
  SettingsDialog(PlugInModule &module, const QStringList &queues, const QString &destination,
                 QWidget *parent = nullptr);

  /// Stays open when the settings could not be saved, and says why.
  void accept() override;

  /// Returns what was saved by accepting, none when there were no panels to set, and for which
  /// printer or preset.
  const std::optional<std::vector<host::OptionChoice>> &saved() const { return saved_; }
  const QString &destination() const { return destination_; }

  /// Returns why the settings of the chosen printer are not shown; empty when they are, or it has
  /// none.
  const QString &problem() const { return problem_; }

private:
  void switchTo(const QString &destination, const Prepare &prepare = {});
  void showSettings(std::future<Printer> answer, const Prepare &prepare);
  bool hasSamePpd();
  std::optional<std::vector<host::OptionChoice>> settings();

  QComboBox *printers_;
  QString destination_;
  std::unique_ptr<Question> question_;
  QString problem_;
  host::JobOptions kept_;  // what is saved for it
  std::shared_ptr<host::PpdSession> session_;
  std::unique_ptr<PresetRow> presets_;
  std::optional<std::vector<host::OptionChoice>> saved_;
};

}  // namespace kwopde::dialog
