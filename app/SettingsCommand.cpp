#include <QStringList>
#include <memory>
#include <string>

#include "app/Command.h"
#include "app/JobReport.h"
#include "app/Output.h"
#include "app/RunDialog.h"
#include "app/TraceOption.h"
#include "dialog/ModuleLoader.h"
#include "dialog/SettingsDialog.h"
#include "host/Error.h"
#include "host/TraceTo.h"
#include "queue/PrintQueue.h"

namespace kwopde::app {

namespace {

struct SettingsOptions {
  std::string printer;         // a queue or an instance; empty: the default one
  std::string snapshotFolder;  // empty: no pictures
  std::string trace = "syslog";
};

int settings(const SettingsOptions &options) {
  QStringList queues;
  for (const std::string &name : host::PrintQueue::names())
    queues.append(QString::fromStdString(name));
  if (queues.isEmpty()) throw host::Error("the CUPS server has no printers: add one with lpadmin");
  QString first = queues.front();
  try {
    first = QString::fromStdString(host::PrintQueue(options.printer).destination());
  } catch (const host::Error &) {
    if (!options.printer.empty()) throw;  // without a default printer, the first one
  }
  PlugInModule &module = dialog::loadModule();
  const auto sink = openTrace(options.trace);
  const host::TraceTo trace(module, sink.get());
  dialog::SettingsDialog dialog(module, queues, first);
  if (!options.snapshotFolder.empty()) {
    showAndTakePictures(dialog, options.snapshotFolder);
    return kDone;
  }
  if (dialog.exec() != QDialog::Accepted || !dialog.saved()) return kNotDone;
  printChoices(*dialog.saved());
  tell("saved for {}", dialog.destination().toStdString());
  return kDone;
}

}  // namespace

Command addSettingsCommand(CLI::App &commandLine) {
  const auto options = std::make_shared<SettingsOptions>();
  CLI::App *command = commandLine.add_subcommand(
      "settings", "Keeps settings of a queue for all that you print, or as a preset");
  command
      ->add_option("--printer,-d", options->printer,
                   "A printer queue, or a preset of it (QUEUE/NAME); else the default one")
      ->type_name("QUEUE");
  command
      ->add_option("--snapshot", options->snapshotFolder,
                   "Saves a picture of every tab there, and keeps no settings")
      ->type_name("DIR");
  addTraceOption(*command, options->trace)->capture_default_str();
  return {command, [options] { return settings(*options); },
          [options] { return options->snapshotFolder.empty(); }};
}

}  // namespace kwopde::app
