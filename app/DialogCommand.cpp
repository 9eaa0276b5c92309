#include <QFileInfo>
#include <QPrinter>
#include <memory>
#include <string>
#include <vector>

#include "app/Command.h"
#include "app/Files.h"
#include "app/JobReport.h"
#include "app/Output.h"
#include "app/TraceOption.h"
#include "dialog/ModuleLoader.h"
#include "dialog/Pictures.h"
#include "dialog/PpdDialog.h"
#include "dialog/QueueDialog.h"
#include "host/JobOptions.h"
#include "host/PpdSession.h"
#include "host/TraceTo.h"
#include "queue/PrintQueue.h"

namespace kwopde::app {

namespace {

struct DialogOptions {
  std::string ppd;             // a file; empty: a queue
  std::string printer;         // empty: the default queue
  std::string snapshotFolder;  // empty: no pictures
  std::vector<std::string> documents;
  std::string trace = "syslog";
};

/// Shows `dialog`, or takes pictures of it and accepts it at once. Returns whether it was accepted.
bool runDialog(QDialog &dialog, const std::string &snapshotFolder) {
  if (snapshotFolder.empty()) return dialog.exec() == QDialog::Accepted;
  dialog.show();
  for (const QString &file : dialog::takePictures(dialog, QString::fromStdString(snapshotFolder)))
    tell("wrote {}", file.toStdString());
  dialog.accept();
  return dialog.result() == QDialog::Accepted;
}

int ppdDialog(const DialogOptions &options) {
  auto session = std::make_shared<host::PpdSession>(host::PpdFile::open(options.ppd));
  PlugInModule &module = dialog::loadModule();
  const auto sink = openTrace(options.trace);
  const host::TraceTo trace(module, sink.get());
  QStringList names;
  for (const std::string &document : options.documents)
    names.append(QFileInfo(QString::fromStdString(document)).fileName());
  dialog::PpdDialog dialog(module, session, names.join(", "));
  if (!runDialog(dialog, options.snapshotFolder)) return kNotDone;
  host::JobOptions job;
  job.carry(*session);
  printChoices(job.chosen());
  return kDone;
}

int queueDialog(const DialogOptions &options) {
  const host::PrintQueue queue(options.printer);
  queue.openSession();  // says what is wrong with its PPD before anything opens
  PlugInModule &module = dialog::loadModule();
  const auto sink = openTrace(options.trace);
  const host::TraceTo trace(module, sink.get());
  QPrinter printer;
  printer.setPrinterName(QString::fromStdString(queue.name()));
  QStringList documents;
  for (const std::string &document : options.documents)
    documents.append(QString::fromStdString(document));
  dialog::QueueDialog dialog(module, printer, documents);
  if (!runDialog(dialog, options.snapshotFolder)) return kNotDone;
  printChoices(dialog.chosenOptions());
  if (dialog.jobId()) reportSent(dialog.job(), *dialog.jobId());
  return kDone;
}

int dialog(const DialogOptions &options) {
  expectReadable(options.documents);
  return options.ppd.empty() ? queueDialog(options) : ppdDialog(options);
}

}  // namespace

Command addDialogCommand(CLI::App &commandLine) {
  const auto options = std::make_shared<DialogOptions>();
  CLI::App *command =
      commandLine.add_subcommand("dialog", "Opens the print dialog of a queue or of a PPD file");
  auto *ppd = command
                  ->add_option("--ppd", options->ppd,
                               "A printer's PPD file; prints nothing, but lists what a job would "
                               "carry")
                  ->type_name("FILE");
  command
      ->add_option("--printer", options->printer,
                   "A printer queue; the default one without --ppd and --printer")
      ->type_name("QUEUE")
      ->excludes(ppd);
  command
      ->add_option("--snapshot", options->snapshotFolder,
                   "Saves a picture of every tab there and prints at once")
      ->type_name("DIR");
  addTraceOption(*command, options->trace)->capture_default_str();
  command->add_option("documents", options->documents, "What is to be printed")
      ->type_name("DOCUMENT");
  return {command, [options] { return dialog(*options); },
          [options] { return options->snapshotFolder.empty(); }};
}

}  // namespace kwopde::app
