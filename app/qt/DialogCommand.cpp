#include <fmt/format.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrinter>
#include <QTemporaryDir>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/JobReport.h"
#include "app/Output.h"
#include "app/TraceOption.h"
#include "app/qt/QtCommands.h"
#include "app/qt/RunDialog.h"
#include "dialog/ModuleLoader.h"
#include "dialog/PpdDialog.h"
#include "dialog/QueueDialog.h"
#include "host/Error.h"
#include "host/JobOptions.h"
#include "host/PpdSession.h"
#include "host/Stream.h"
#include "host/TraceTo.h"
#include "queue/PrintJob.h"
#include "queue/PrintQueue.h"

namespace kwopde::app {

namespace {

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
  JobReport{job.chosen()}.write(options.json);
  return kDone;
}

/// Returns the printer to choose at first: the one that was asked for, which has to have panels, or
/// the default one. Empty when there is none; Qt then chooses the first.
std::string firstPrinter(const std::string &wanted) {
  try {
    const host::PrintQueue queue(wanted);
    if (!wanted.empty()) queue.openSession();  // says what is wrong with its PPD
    return queue.destination();
  } catch (const host::JobError &) {
    throw;
  } catch (const host::Error &) {
    if (!wanted.empty()) throw;
    return {};
  }
}

/// Returns the documents as files that can be read again when printing fails: what comes from a
/// pipe is copied into `copies`.
std::vector<std::string> documentFiles(const std::vector<std::string> &documents,
                                       const QTemporaryDir &copies) {
  std::vector<std::string> files;
  for (const std::string &document : documents) {
    std::error_code error;
    if (document != host::kStandardInput && !std::filesystem::is_fifo(document, error)) {
      files.push_back(document);
      continue;
    }
    if (!copies.isValid())
      throw host::Error(fmt::format("{}: there is no folder for a copy: {}", document,
                                    copies.errorString().toStdString()));
    // Each in a folder of its own, since two may have one name.
    const auto folder =
        std::filesystem::path(copies.path().toStdString()) / std::to_string(files.size());
    std::filesystem::create_directories(folder, error);
    const std::string path = folder / host::documentName(document);
    const host::Stream source = host::openOnce(document);
    std::ofstream copy(path, std::ios::binary);
    std::array<char, 65536> block;
    while (const auto size = std::fread(block.data(), 1, block.size(), source.get()))
      copy.write(block.data(), static_cast<std::streamsize>(size));
    if (std::ferror(source.get()))
      throw host::Error(fmt::format("{}: {}", document, std::strerror(errno)));
    if (!copy.flush())
      throw host::Error(fmt::format("{}: there is no room for a copy in {}", document,
                                    copies.path().toStdString()));
    files.push_back(path);
  }
  return files;
}

/// Returns the documents that a person chooses; none when they choose none.
std::vector<std::string> chooseDocuments() {
  std::vector<std::string> documents;
  const QString title = QCoreApplication::translate("kwopde::app", "Choose What to Print");
  const auto files = QFileDialog::getOpenFileNames(nullptr, title);
  for (const QString &file : files) documents.push_back(QFile::encodeName(file).toStdString());
  return documents;
}

int queueDialog(const DialogOptions &options) {
  const std::string first = firstPrinter(options.printer);
  PlugInModule &module = dialog::loadModule();
  const auto sink = openTrace(options.trace);
  const host::TraceTo trace(module, sink.get());
  QPrinter printer;
  if (!first.empty()) printer.setPrinterName(QString::fromStdString(first));
  const QTemporaryDir copies;
  dialog::QueueDialog dialog(module, printer, documentFiles(options.documents, copies));
  if (!options.snapshotFolder.empty()) dialog.setUnattended();
  const bool isAccepted = runDialog(dialog, options.snapshotFolder);
  if (!dialog.problem().isEmpty()) throw host::JobError(dialog.problem().toStdString());
  if (!isAccepted) return kNotDone;
  JobReport report{dialog.chosenOptions()};
  if (dialog.jobId()) {
    report.job = dialog.job();
    report.id = *dialog.jobId();
  }
  report.write(options.json);
  return kDone;
}

}  // namespace

int runDialogCommand(const DialogOptions &given) {
  DialogOptions options = given;
  if (options.choose && options.documents.empty()) {
    options.documents = chooseDocuments();
    if (options.documents.empty()) return kNotDone;
  }
  expectReadable(options.documents);
  return options.ppd.empty() ? queueDialog(options) : ppdDialog(options);
}

}  // namespace kwopde::app
