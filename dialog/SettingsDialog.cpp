#include "dialog/SettingsDialog.h"

#include <QComboBox>
#include <QFormLayout>

#include "dialog/PlainText.h"
#include "host/Error.h"

namespace kwopde::dialog {

SettingsDialog::SettingsDialog(PlugInModule &module, const QStringList &queues,
                               const QString &destination, QWidget *parent)
    : PanelDialog(module, tr("&Save"), parent), printers_(new QComboBox) {
  setWindowTitle(tr("Printer Settings"));
  printers_->setObjectName("printers");
  printers_->addItems(queues);
  printers_->setCurrentText(destination.section('/', 0, 0));
  facts().addRow(tr("Printer:"), printers_);
  connect(printers_, &QComboBox::currentTextChanged, this,
          [this](const QString &printer) { switchTo(printer); });
  switchTo(destination);
}

void SettingsDialog::switchTo(const QString &destination, const Prepare &prepare) {
  question_.reset();
  presets_.reset();
  session_.reset();
  destination_ = destination;
  problem_ = Printer::tr("Asking the printer…");
  showInstead(problem_);
  question_ = std::make_unique<Question>(
      std::bind_front(&Printer::find, destination.toStdString()),
      [this, prepare](std::future<Printer> answer) { showSettings(std::move(answer), prepare); });
}

void SettingsDialog::showSettings(std::future<Printer> answer, const Prepare &prepare) {
  problem_.clear();
  try {
    const Printer printer = answer.get();
    session_ = printer.queue.openSession();
    if (prepare) prepare(*session_);
    kept_ = host::JobOptions(printer.queue.options(), printer.queue.fetchedDefaults());
    showPanels(session_);
    if (pages()->pages().isEmpty()) return;
    presets_ = std::make_unique<PresetRow>(
        destination_, printer.presets, *pages(), [this] { return settings(); }, this);
    connect(
        presets_.get(), &PresetRow::chosen, this,
        [this](const QString &destination) { switchTo(destination); }, Qt::QueuedConnection);
  } catch (const host::JobError &error) {
    problem_ = QString::fromStdString(error.what());
    showInstead(problem_);
  } catch (const host::Error &) {
    showPanels(nullptr);  // a printer without panels
  }
}

void SettingsDialog::accept() {
  if (!problem_.isEmpty()) return;
  if (presets_) {
    const auto options = settings();
    if (!options || !hasSamePpd() || !presets_->save(*options)) return;
    saved_ = *options;
  }
  done(Accepted);
}

bool SettingsDialog::hasSamePpd() {
  const auto replaced = Printer::tellOfNewPpd(this, destination_, *session_);
  if (!replaced || replaced->isEmpty()) return replaced.has_value();
  switchTo(destination_, Printer::copyOf(*session_));
  warn(this, *replaced + ' ' + tr("Its settings are shown anew: look at them, and save again."));
  return false;
}

std::optional<std::vector<host::OptionChoice>> SettingsDialog::settings() {
  if (!pages()->print()) return {};
  host::JobOptions options = kept_;
  options.carry(*session_);
  return options.kept();
}

}  // namespace kwopde::dialog
