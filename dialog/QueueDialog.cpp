#include "dialog/QueueDialog.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageRanges>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <array>

#include "dialog/PlainText.h"
#include "dialog/PrinterOptions.h"
#include "host/Error.h"
#include "queue/EndingSignals.h"

namespace kwopde::dialog {

namespace {

/// Milliseconds of sending before a progress bar is worth showing.
constexpr int kPatience = 500;

/// What Qt's dialog offers as the page set, in its order.
constexpr std::array kPageSets{"all", "odd", "even"};

/// While it lives, nothing that a person does reaches a window other than `allowed`: one that has
/// not been shown yet holds nothing up.
class InputBlock final : public QObject {
public:
  explicit InputBlock(const QWidget &allowed) : allowed_(allowed) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject *watched, QEvent *event) override {
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget || widget->window() == &allowed_) return false;
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::TouchBegin:
      case QEvent::Wheel:
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
      case QEvent::Shortcut:
        return true;
      default:
        return false;
    }
  }

private:
  const QWidget &allowed_;
};

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
  const QPageRanges pages = shownPages(*this);
  if (pages.isEmpty()) return options;
  options.set("page-ranges", pages.toString().toStdString());
  // Qt counts odd and even in what an application would make of the range, CUPS in the document.
  const auto *sets = findChild<QComboBox *>("pageSetCombo");
  const auto set = static_cast<std::size_t>(sets ? sets->currentIndex() : -1);
  if (set < kPageSets.size() && options.value("page-set")) options.set("page-set", kPageSets[set]);
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
    if (!panels_.waitForPrinter() || !isKnown() || !panels_.settle() || !hasSamePpd() ||
        !isAllRight())
      return;
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

void QueueDialog::tell(const QString &problem) {
  if (unattended_)
    problem_ = problem;
  else
    warn(this, problem);
}

bool QueueDialog::isKnown() {
  const QString failure = panels_.takeFailure();
  if (!failure.isEmpty()) tell(failure);
  return failure.isEmpty();
}

bool QueueDialog::hasSamePpd() {
  const auto replaced = panels_.followPpd(this);
  if (!replaced || replaced->isEmpty()) return replaced.has_value();
  tell(*replaced + ' ' + tr("Its settings are shown anew: look at them, and print again."));
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
    if (host::HostLog *log = panels_.log()) log->carries(job.options);
    try {
      const InputBlock block(progress);
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
    host::HostLog *const log = panels_.log();
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
