#include "dialog/QueueDialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QTabWidget>

#include "host/Error.h"

namespace kwopde::dialog {

namespace {

/// Milliseconds of sending before a progress bar is worth showing.
constexpr int kPatience = 500;

}  // namespace

void expandOptions(QPrintDialog &dialog) {
  const auto *tabs = dialog.findChild<QTabWidget *>();
  if (!tabs || tabs->isVisibleTo(&dialog)) return;
  // The button "Options >>" has no name, but it is the only one of its role.
  for (auto *box : dialog.findChildren<QDialogButtonBox *>())
    for (QAbstractButton *button : box->buttons())
      if (box->buttonRole(button) == QDialogButtonBox::ResetRole) button->click();
}

QueueDialog::QueueDialog(PlugInModule &module, QPrinter &printer, const QStringList &documents)
    : QPrintDialog(&printer),
      panels_(*new PrintDialogPanels(module, *this)),
      documents_(documents) {
  setOption(PrintToFile, false);
  expandOptions(*this);  // the panels are what this dialog is for
}

host::PrintJob QueueDialog::job() const {
  const std::string printerName = printer()->printerName().toStdString();
  host::PrintJob job{
      printerName.substr(0, printerName.find('/')), {}, {}, panels_.jobOptions().all()};
  for (const QString &document : documents_) job.documents.push_back(document.toStdString());
  if (!documents_.isEmpty()) job.title = QFileInfo(documents_.front()).fileName().toStdString();
  return job;
}

void QueueDialog::done(int result) {
  if (result == Accepted) {
    if (!panels_.settle() || !isAllRight()) return;
    if (!documents_.isEmpty() && !sendDocuments()) return;
  }
  QPrintDialog::done(result);
}

bool QueueDialog::isAllRight() {
  const QStringList problems = panels_.conflicts();
  if (problems == accepted_) return true;
  QMessageBox box(QMessageBox::Warning, tr("Print"), problems.join("\n\n"), QMessageBox::Cancel,
                  this);
  box.setTextFormat(Qt::PlainText);
  QPushButton *print = box.addButton(tr("&Print Anyway"), QMessageBox::AcceptRole);
  box.exec();
  if (box.clickedButton() != print) return false;
  accepted_ = problems;
  return true;
}

bool QueueDialog::sendDocuments() {
  for (;;) {
    QProgressDialog progress(tr("Sending to the printer…"), tr("Cancel"), 0, 1000, this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(kPatience);
    try {
      jobId_ = send(job(), [&](long long sent, long long total) {
        progress.setValue(static_cast<int>(sent * 999 / std::max(total, 1LL)));
        QCoreApplication::processEvents();
        return !progress.wasCanceled();
      });
      return jobId_.has_value();
    } catch (const host::Error &error) {
      progress.close();
      const auto choice =
          QMessageBox::warning(this, tr("Printing failed"), QString::fromStdString(error.what()),
                               QMessageBox::Retry | QMessageBox::Close, QMessageBox::Retry);
      if (choice != QMessageBox::Retry) return false;
    }
  }
}

}  // namespace kwopde::dialog
