#include "dialog/PrintDialogPanels.h"

#include <QComboBox>
#include <QLabel>
#include <QPrinter>
#include <QTabWidget>

#include "dialog/PrinterOptions.h"
#include "host/Error.h"
#include "queue/PrintQueue.h"

namespace kwopde::dialog {

PrintDialogPanels::PrintDialogPanels(PlugInModule &module, QPrintDialog &dialog)
    : QObject(&dialog), module_(module), dialog_(dialog) {
  // Its labels show what the server says of a printer.
  for (QLabel *label : dialog.findChildren<QLabel *>()) label->setTextFormat(Qt::PlainText);
  // The dialog tells nobody which printer is chosen, but its combo box does.
  if (auto *printers = dialog.findChild<QComboBox *>("printers"))
    connect(printers, &QComboBox::currentTextChanged, this, &PrintDialogPanels::showPanelsOf);
  showPanelsOf(dialog.printer()->printerName());
}

void PrintDialogPanels::showPanelsOf(const QString &printer) {
  pages_.reset();
  session_.reset();
  destination_.clear();
  opened_.clear();
  if (printer.isEmpty()) return;
  try {
    const host::PrintQueue queue(printer.toStdString());
    session_ = queue.openSession();
    destination_ = queue.options();
  } catch (const host::Error &) {
    return;  // not a queue with a PPD: a printer that is not ours
  }
  session_->setFixed(optionsOfQt());
  pages_ = std::make_unique<PanelPages>(module_, session_);
  QList<QWidget *> tabs;
  for (Page *page : pages_->pages()) tabs.append(page);
  if (!tabs.isEmpty()) dialog_.setOptionTabs(tabs);
  for (const auto &[key, choice, isDefault] : session_->settledChoices()) opened_[key] = choice;
  connect(pages_.get(), &PanelPages::asksFor, this, [this](QWidget *page) {
    if (auto *tabWidget = dialog_.findChild<QTabWidget *>()) tabWidget->setCurrentWidget(page);
  });
}

bool PrintDialogPanels::settle() {
  if (!hasPanels()) return true;
  const bool asShown = pages_->print();
  learnFromQt();
  return asShown;
}

QStringList PrintDialogPanels::refusals() const {
  return hasPanels() ? pages_->refusals() : QStringList();
}

QStringList PrintDialogPanels::conflicts() const {
  QStringList texts;
  if (!hasPanels()) return texts;
  const host::PpdFile &ppd = session_->ppd();
  for (const auto &[key, choice] : session_->conflicts())
    texts.append(tr("%1: %2").arg(QString::fromStdString(ppd.textOf(key)),
                                  QString::fromStdString(ppd.textOf(key, choice))));
  if (texts.isEmpty()) return texts;
  return {tr("This printer cannot do these together: %1.").arg(texts.join(", "))};
}

void PrintDialogPanels::learnFromQt() {
  const QPrinter &printer = *dialog_.printer();
  session_->mark("PageSize", printer.pageLayout().pageSize().key().toStdString());
  session_->mark("Duplex", duplexChoice(printer));
  // What was picked among the printer's options in Qt's own Properties counts where the panels have
  // left the option as it was. Qt lists those too that nobody has picked.
  for (const auto &[key, choice] : cupsOptions(printer)) {
    const auto opened = opened_.find(key);
    const bool isPicked = opened == opened_.end() || choice != opened->second;
    const bool isLeft = opened == opened_.end() || session_->markedChoice(key) == opened->second;
    if (isPicked && isLeft) session_->mark(key, choice);
  }
}

host::JobOptions PrintDialogPanels::jobOptions() const {
  host::JobOptions job(destination_);
  setPrinterOptions(dialog_, job);
  if (hasPanels()) carryPanels(job);
  return job;
}

void PrintDialogPanels::handOver() {
  if (!hasPanels()) return;
  QPrinter &printer = *dialog_.printer();
  host::JobOptions known(destination_);
  const auto list = cupsOptions(printer);
  for (const auto &[key, choice] : list) known.set(key, choice);
  carryPanels(known);
  host::JobOptions handed(list);
  for (const auto &[key, choice, isDefault] : session_->settledChoices())
    if (const auto value = known.value(key); value && !optionsOfQt().contains(key))
      handed.set(key, *value);
  setCupsOptions(printer, handed.all());
}

void PrintDialogPanels::carryPanels(host::JobOptions &job) const {
  job.carry(*session_, optionsOfQt());
}

bool PrintDialogPanels::hasPanels() const {
  return pages_ && !pages_->pages().isEmpty();
}

}  // namespace kwopde::dialog
