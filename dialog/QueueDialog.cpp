#include "dialog/QueueDialog.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageRanges>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>

#include "dialog/PlainText.h"
#include "dialog/PrinterOptions.h"
#include "host/Error.h"
#include "queue/EndingSignals.h"

namespace kwopde::dialog {

namespace {

/// Milliseconds of sending before a progress bar is worth showing.
constexpr int kPatience = 500;

/// Returns the pages that `dialog` shows as chosen, which not every Qt hands to the printer; empty
/// for all.
QPageRanges shownPages(const QPrintDialog &dialog) {
  const auto *pages = dialog.findChild<QRadioButton *>("pagesRadioButton");
  const auto *list = dialog.findChild<QLineEdit *>("pagesLineEdit");
  return pages && list && pages->isChecked() ? QPageRanges::fromString(list->text())
                                             : dialog.printer()->pageRanges();
}

}  // namespace

QueueDialog::QueueDialog(PlugInModule &module, QPrinter &printer,
                         std::vector<std::string> documents)
    : QPrintDialog(&printer),
      panels_(*new PrintDialogPanels(module, *this)),
      documents_(std::move(documents)) {
  setOption(PrintToFile, false);
  if (documents_.size() > 1)
    setWindowTitle(tr("Print %1 Documents").arg(documents_.size()));
  else if (!documents_.empty())
    setWindowTitle(tr("Print %1").arg(QString::fromStdString(host::documentName(documents_[0]))));
  expandOptions(*this);  // the panels are what this dialog is for
}

host::JobOptions QueueDialog::jobOptions() const {
  host::JobOptions options = panels_.jobOptions();
  if (const QPageRanges pages = shownPages(*this); !pages.isEmpty())
    options.set("page-ranges", pages.toString().toStdString());
  return options;
}

host::PrintJob QueueDialog::job() const {
  const std::string printerName = printer()->printerName().toStdString();
  host::PrintJob job{
      printerName.substr(0, printerName.find('/')), {}, documents_, jobOptions().all()};
  if (!documents_.empty()) job.title = host::documentName(documents_.front());
  return job;
}

void QueueDialog::accept() {
  // Qt 6.4 takes no list of pages for one unless the printer has one already.
  printer()->setPageRanges(shownPages(*this));
  QPrintDialog::accept();
}

void QueueDialog::done(int result) {
  if (isSending_) return;  // events run meanwhile: a second click, or Return once more
  if (result == Accepted) {
    const QScopedValueRollback<bool> sending(isSending_, true);
    if (!panels_.waitForPrinter() || !panels_.settle() || !hasSamePpd() || !isAllRight()) return;
    if (!documents_.empty()) switch (sendDocuments()) {
        case Outcome::sent:
          break;
        case Outcome::failed:
          return;
        case Outcome::ended:
          result = Rejected;
      }
  }
  QPrintDialog::done(result);
}

bool QueueDialog::hasSamePpd() {
  const auto replaced = panels_.followPpd(this);
  if (!replaced || replaced->isEmpty()) return replaced.has_value();
  const QString text =
      *replaced + ' ' + tr("Its settings are shown anew: look at them, and print again.");
  if (unattended_)
    problem_ = text;
  else
    warn(this, text);
  return false;
}

bool QueueDialog::isAllRight() {
  const QString problems = panels_.conflicts();
  if (problems == accepted_) return true;
  if (unattended_) problem_ = problems;
  if (unattended_) return false;
  QMessageBox box(QMessageBox::Warning, tr("Print"), problems, QMessageBox::Cancel, this);
  box.setTextFormat(Qt::PlainText);
  QPushButton *print = box.addButton(tr("&Print Anyway"), QMessageBox::AcceptRole);
  box.exec();
  if (box.clickedButton() != print) return false;
  accepted_ = problems;
  return true;
}

QueueDialog::Outcome QueueDialog::sendDocuments() {
  for (;;) {
    QProgressDialog progress(tr("Sending to the printer…"), tr("Cancel"), 0, 1000, this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(kPatience);
    QMessageBox failure(QMessageBox::Warning, tr("Printing failed"), {}, QMessageBox::Close, this);
    failure.setTextFormat(Qt::PlainText);
    std::optional<host::EndingSignals> ending(std::in_place);
    const host::PrintJob job = this->job();
    host::HostLog *const log = panels_.log();
    if (log) log->carries(job.options);
    try {
      jobId_ = send(job, [&](long long sent, long long total) {
        progress.setValue(static_cast<int>(std::min(sent * 999 / std::max(total, 1LL), 999LL)));
        QCoreApplication::processEvents();
        return !progress.wasCanceled() && !ending->wereHeard();
      });
    } catch (const host::UnsureJobError &error) {
      failure.setText(QString::fromStdString(error.what()));
    } catch (const host::Error &error) {
      failure.setText(QString::fromStdString(error.what()));
      failure.addButton(QMessageBox::Retry);
      failure.setDefaultButton(QMessageBox::Retry);
    }
    if (log && jobId_)
      log->jobWasSent(*jobId_);
    else if (log)
      log->jobFailed(failure.text().isEmpty() ? "cancelled" : failure.text().toStdString());
    const bool isEnded = ending->wereHeard();
    ending.reset();  // nothing is left to clear away while a message waits
    if (jobId_) return Outcome::sent;
    if (isEnded) return Outcome::ended;
    if (failure.text().isEmpty()) return Outcome::failed;
    progress.close();
    if (unattended_) problem_ = failure.text();
    if (unattended_) return Outcome::failed;
    if (failure.exec() != QMessageBox::Retry) return Outcome::failed;
  }
}

}  // namespace kwopde::dialog
