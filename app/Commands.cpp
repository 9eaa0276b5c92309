#include "app/Commands.h"

#include <fmt/format.h>
#include <unistd.h>

#include <QFileInfo>
#include <QPrinter>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fstream>
#include <iostream>

#include "app/TraceOption.h"
#include "host/Error.h"
#include "host/PpdSession.h"
#include "host/PrintJob.h"
#include "host/PrintQueue.h"
#include "host/ScriptRunner.h"
#include "host/dialog/ModuleLoader.h"
#include "host/dialog/Pictures.h"
#include "host/dialog/PpdDialog.h"
#include "host/dialog/QtUserInput.h"
#include "host/dialog/QueueDialog.h"

namespace kwopde::app {

namespace {

volatile std::sig_atomic_t interrupted = 0;

/// Sends the trace of `module` to `sink`, as long as this lives.
class TraceTo {
public:
  TraceTo(PlugInModule &module, LogSink *sink) : module_(module) { module_.setLogSink(sink); }
  TraceTo(const TraceTo &) = delete;
  TraceTo &operator=(const TraceTo &) = delete;
  ~TraceTo() { module_.setLogSink(nullptr); }

private:
  PlugInModule &module_;
};

std::ifstream openReadable(const std::string &path) {
  errno = 0;
  std::ifstream file(path);
  file.peek();
  if (file.bad() || !file.is_open())
    throw host::Error(fmt::format("{}: {}", path, std::strerror(errno ? errno : EIO)));
  file.clear();
  return file;
}

/// A script's commands: a file, or standard input for "-".
class ScriptSource {
public:
  explicit ScriptSource(const std::string &name) {
    if (name != "-") file_ = openReadable(name);
    stream_ = name == "-" ? &std::cin : &file_;
  }
  std::istream &stream() { return *stream_; }

private:
  std::ifstream file_;
  std::istream *stream_;
};

/// Shows `dialog`, or takes pictures of it and accepts it at once. Whether it was accepted.
bool runDialog(QDialog &dialog, const std::string &snapshotFolder) {
  if (snapshotFolder.empty()) return dialog.exec() == QDialog::Accepted;
  dialog.show();
  for (const QString &file : host::takePictures(dialog, QString::fromStdString(snapshotFolder)))
    fmt::print(stderr, "wrote {}\n", file.toStdString());
  dialog.accept();
  return dialog.result() == QDialog::Accepted;
}

void printChoices(const std::vector<host::OptionChoice> &choices) {
  for (const auto &[key, choice] : choices) fmt::print("{}={}\n", key, choice);
}

void reportSent(const host::PrintJob &job, int id) {
  fmt::print(stderr, "sent job {}-{}\n", job.queue, id);
}

int ppdDialog(const DialogOptions &options) {
  auto session = std::make_shared<host::PpdSession>(host::PpdFile::open(options.ppd));
  PlugInModule &module = host::loadModule();
  const auto sink = openTrace(options.trace);
  const TraceTo trace(module, sink.get());
  QStringList names;
  for (const std::string &document : options.documents)
    names.append(QFileInfo(QString::fromStdString(document)).fileName());
  host::PpdDialog dialog(module, session, names.join(", "));
  if (!runDialog(dialog, options.snapshotFolder)) return kNotDone;
  printChoices(session->changedChoices());
  return kDone;
}

int queueDialog(const DialogOptions &options) {
  const host::PrintQueue queue(options.printer);
  queue.openSession();  // says what is wrong with its PPD before anything opens
  PlugInModule &module = host::loadModule();
  const auto sink = openTrace(options.trace);
  const TraceTo trace(module, sink.get());
  QPrinter printer;
  printer.setPrinterName(QString::fromStdString(queue.name()));
  QStringList documents;
  for (const std::string &document : options.documents)
    documents.append(QString::fromStdString(document));
  host::QueueDialog dialog(module, printer, documents);
  if (!runDialog(dialog, options.snapshotFolder)) return kNotDone;
  printChoices(dialog.job().options);
  if (dialog.jobId()) reportSent(dialog.job(), *dialog.jobId());
  return kDone;
}

/// Marks "KEY=CHOICE" in the PPD, or passes it on as an attribute of the job.
void apply(const std::string &option, host::PpdSession &session, host::PrintJob &job) {
  const auto equals = option.find('=');
  if (equals == 0 || equals == option.npos)
    throw host::Error(fmt::format("-o {}: not of the form KEY=CHOICE", option));
  const std::string key = option.substr(0, equals);
  const std::string choice = option.substr(equals + 1);
  if (!ppdFindOption(session.ppdFile(), key.c_str()))
    job.options.push_back({key, choice});
  else if (!session.willChangePPDOptionKeyValue(&key, &choice))
    throw host::Error(fmt::format("-o {}: {} cannot be {} on this printer", option,
                                  session.ppd().textOf(key), choice));
}

}  // namespace

int dialog(const DialogOptions &options) {
  for (const std::string &document : options.documents) openReadable(document);
  return options.ppd.empty() ? queueDialog(options) : ppdDialog(options);
}

int print(const PrintOptions &options) {
  const host::PrintQueue queue(options.printer);
  const auto session = queue.openSession();
  host::PrintJob job{queue.name(), options.title, options.documents, {}};
  for (const std::string &document : job.documents) openReadable(document);
  if (job.title.empty())
    job.title = QFileInfo(QString::fromStdString(job.documents.front())).fileName().toStdString();
  for (const std::string &option : options.options) apply(option, *session, job);

  if (!options.script.empty()) {
    ScriptSource script(options.script);
    PlugInModule &module = host::loadModule();
    const auto sink = openTrace(options.trace);
    const TraceTo trace(module, sink.get());
    host::QtUserInput user;
    std::ostream transcript(nullptr);  // discarded: print tells of the job only
    if (!host::ScriptRunner(module, session, user, transcript, std::cerr).run(script.stream()))
      return kNotDone;
  }

  for (const auto &change : session->changedChoices()) job.options.push_back(change);
  std::signal(SIGINT, [](int) { interrupted = 1; });
  const bool showsProgress = isatty(STDERR_FILENO) != 0;
  const auto id = host::send(job, [&](long long sent, long long total) {
    if (showsProgress) fmt::print(stderr, "\rsending: {} %", sent * 100 / std::max(total, 1LL));
    return interrupted == 0;
  });
  if (showsProgress) fmt::print(stderr, "\n");
  if (!id) {
    fmt::print(stderr, "kwopde: cancelled; the printer has no job\n");
    return kNotDone;
  }
  printChoices(job.options);
  reportSent(job, *id);
  return kDone;
}

int run(const RunOptions &options) {
  auto session = std::make_shared<host::PpdSession>(host::PpdFile::open(options.ppd),
                                                    !options.noConstraintHandling);
  ScriptSource script(options.script);
  PlugInModule &module = host::loadModule();
  host::QtUserInput user;
  const auto sink = options.trace.empty() ? nullptr : openTrace(options.trace);
  host::ScriptRunner runner(module, session, user, std::cout, std::cerr);
  const TraceTo trace(module, sink ? sink.get() : &runner);
  return runner.run(script.stream()) ? kDone : kNotDone;
}

}  // namespace kwopde::app
