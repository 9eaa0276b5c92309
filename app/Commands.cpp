#include "app/Commands.h"

#include <fmt/format.h>

#include <QFileInfo>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

#include "app/TraceOption.h"
#include "host/Error.h"
#include "host/PpdSession.h"
#include "host/ScriptRunner.h"
#include "host/dialog/ModuleLoader.h"
#include "host/dialog/PpdDialog.h"
#include "host/dialog/QtUserInput.h"

namespace kwopde::app {

namespace {

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

}  // namespace

int dialog(const DialogOptions &options) {
  auto session = std::make_shared<host::PpdSession>(host::PpdFile::open(options.ppd));
  if (!options.document.empty()) openReadable(options.document);
  PlugInModule &module = host::loadModule();
  const auto sink = openTrace(options.trace);
  const TraceTo trace(module, sink.get());

  host::PpdDialog dialog(module, session,
                         QFileInfo(QString::fromStdString(options.document)).fileName());
  if (options.snapshotFolder.empty()) {
    if (dialog.exec() != QDialog::Accepted) return kNotDone;
  } else {
    dialog.show();
    for (const QString &file : dialog.takePictures(QString::fromStdString(options.snapshotFolder)))
      fmt::print(stderr, "wrote {}\n", file.toStdString());
    dialog.accept();
  }
  for (const auto &[key, choice] : session->changedChoices()) fmt::print("{}={}\n", key, choice);
  return kDone;
}

int run(const RunOptions &options) {
  auto session = std::make_shared<host::PpdSession>(host::PpdFile::open(options.ppd),
                                                    !options.noConstraintHandling);
  std::ifstream file;
  if (options.script != "-") file = openReadable(options.script);
  PlugInModule &module = host::loadModule();
  host::QtUserInput user;
  const auto sink = options.trace.empty() ? nullptr : openTrace(options.trace);
  host::ScriptRunner runner(module, session, user, std::cout, std::cerr);
  const TraceTo trace(module, sink ? sink.get() : &runner);
  return runner.run(options.script == "-" ? std::cin : file) ? kDone : kNotDone;
}

}  // namespace kwopde::app
