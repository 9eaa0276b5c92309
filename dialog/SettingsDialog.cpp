#include "dialog/SettingsDialog.h"

#include <QComboBox>
#include <QFormLayout>

#include "dialog/PlainText.h"
#include "host/Error.h"
#include "host/JobOptions.h"

namespace kwopde::dialog {

SettingsDialog::SettingsDialog(PlugInModule &module, const QStringList &queues,
                               const QString &destination, QWidget *parent)
    : PanelDialog(module, tr("&Save"), parent), printers_(new QComboBox) {
  setWindowTitle(tr("Printer Settings"));
  printers_->setObjectName("printers");
  printers_->addItems(queues);
  printers_->setCurrentText(destination.section('/', 0, 0));
  facts().addRow(tr("Printer:"), printers_);
  connect(printers_, &QComboBox::currentTextChanged, this, &SettingsDialog::switchTo);
  showSettingsOf(destination);
}

void SettingsDialog::switchTo(const QString &destination) {
  try {
    showSettingsOf(destination);
  } catch (const host::Error &error) {
    warn(this, QString::fromStdString(error.what()));
  }
}

void SettingsDialog::showSettingsOf(const QString &destination) {
  presets_.reset();
  session_.reset();
  queue_.reset();
  showPanels(nullptr);
  destination_ = destination;
  queue_.emplace(destination.toStdString());
  try {
    session_ = queue_->openSession();
    session_->setQueueDefaults(queue_->defaults());
  } catch (const host::JobError &) {
    throw;
  } catch (const host::Error &) {
    return;  // a printer without panels
  }
  showPanels(session_);
  if (pages()->pages().isEmpty()) return;
  presets_ =
      std::make_unique<PresetRow>(destination, *pages(), [this] { return settings(); }, this);
  connect(presets_.get(), &PresetRow::chosen, this, &SettingsDialog::switchTo,
          Qt::QueuedConnection);
}

void SettingsDialog::accept() {
  if (presets_) {
    const auto options = settings();
    if (!options || !presets_->save(*options)) return;
    saved_ = *options;
  }
  done(Accepted);
}

std::optional<std::vector<host::OptionChoice>> SettingsDialog::settings() {
  if (!pages()->print()) return {};
  host::JobOptions options(queue_->options());
  options.carry(*session_);
  return options.kept();
}

}  // namespace kwopde::dialog
