#include <QStringList>
#include <memory>
#include <string>

#include "app/JobReport.h"
#include "app/Output.h"
#include "app/TraceOption.h"
#include "app/qt/QtCommands.h"
#include "app/qt/RunDialog.h"
#include "dialog/ModuleLoader.h"
#include "dialog/SettingsDialog.h"
#include "host/Error.h"
#include "host/TraceTo.h"
#include "queue/PrintQueue.h"

namespace kwopde::app {

int runSettingsCommand(const SettingsOptions &options) {
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
    if (!dialog.problem().isEmpty()) throw host::JobError(dialog.problem().toStdString());
    return kDone;
  }
  if (dialog.exec() != QDialog::Accepted || !dialog.saved()) return kNotDone;
  JobReport{*dialog.saved()}.write(false);
  tell("saved for {}", dialog.destination().toStdString());
  return kDone;
}

}  // namespace kwopde::app
