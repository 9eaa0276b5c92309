// Qt's print dialog with the panels, sending documents to a queue.
#pragma once

#include <QPrintDialog>
#include <optional>
#include <string>
#include <vector>

#include "dialog/PrintDialogPanels.h"
#include "queue/PrintJob.h"

namespace kwopde::dialog {

/// "Print" sends the documents. When that fails, the dialog says why and stays open with every
/// setting kept.
class QueueDialog final : public QPrintDialog {
  Q_OBJECT

public:
  /// `printer` has the queue that is chosen at first, and is borrowed. `documents` are paths of
  /// files; with none, accepting only settles the options.
  QueueDialog(PlugInModule &module, QPrinter &printer, std::vector<std::string> documents);

  /// Asks and tells nobody: what is in the way of printing is in `problem` then.
  void setUnattended() { unattended_ = true; }

  /// Returns why accepting did not print; empty when it did, or a person has been told.
  const QString &problem() const { return problem_; }

  /// Returns the number of the job that was sent; none when there were no documents.
  std::optional<int> jobId() const { return jobId_; }

  /// Returns the job as it was sent, or would be.
  host::PrintJob job() const;

  void accept() override;

  /// Does nothing while documents are being sent, so that one accept is one job. SIGINT, SIGTERM,
  /// SIGHUP and SIGQUIT cancel the sending, and close the dialog.
  void done(int result) override;

  /// Returns what the job carries that is worth telling a person.
  std::vector<host::OptionChoice> chosenOptions() const { return jobOptions().chosen(); }

private:
  host::JobOptions jobOptions() const;
  void tell(const QString &problem);
  bool isKnown();
  bool hasSamePpd();
  bool isAllRight();

  /// `failed`: not sent, or cancelled, and the dialog stays; `ended`: a signal ended it.
  enum class Outcome { sent, failed, ended };
  Outcome sendDocuments();

  PrintDialogPanels &panels_;
  std::vector<std::string> documents_;
  QString accepted_;  // conflicts that a person has waved through
  std::optional<int> jobId_;
  bool isSending_ = false;
  bool unattended_ = false;
  QString problem_;
};

}  // namespace kwopde::dialog
