#include <fmt/format.h>

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>
#include <vector>

#include "app/Commands.h"
#include "host/Error.h"
#include "host/dialog/ModuleLoader.h"
#include "host/dialog/QtUserInput.h"
#include "host/validator/RandomSession.h"

namespace kwopde::app {

namespace {

/// Sessions that one process runs.
constexpr int kBatch = 500;

struct Result {
  std::string name;
  std::string promise;
  bool passed;
  std::string what;  // what went wrong
};

/// The PPDs to run on, as files.
class Ppds {
public:
  Ppds() {
    for (const char *name : {"kwo-7032.ppd", "no-panels.ppd"}) {
      QFile::copy(QString(":/kwopde-app/") + name, folder_.filePath(name));
      QFile::setPermissions(folder_.filePath(name), QFile::ReadOwner | QFile::WriteOwner);
    }
  }
  std::string path(const char *name) const { return folder_.filePath(name).toStdString(); }

private:
  QTemporaryDir folder_;
};

/// Where a session that goes wrong can be replayed from.
std::string scriptPath(const ValidateOptions &options) {
  return fmt::format("kwopde-validate-{}.script", options.seed);
}

/// Runs what `options.child` says in this process. The exit status; what is wrong goes to standard
/// output.
int runChild(const ValidateOptions &options) {
  const Ppds ppds;
  host::QtUserInput user;
  PlugInModule &module = host::loadModule(QString::fromStdString(options.plugin));
  const host::Subject subject{module, user, ppds.path("kwo-7032.ppd"), ppds.path("no-panels.ppd")};
  try {
    if (options.child == "sessions") {
      long commands = 0;
      for (int i = 0; i < options.sessions; ++i) {
        // Written anew for each session, so that it is the one that crashed.
        std::ofstream log(scriptPath(options));
        commands +=
            runSession(subject, host::randomScript(options.seed + static_cast<unsigned>(i)), log);
      }
      QFile::remove(QString::fromStdString(scriptPath(options)));
      fmt::print("{}", commands);
      return kDone;
    }
    for (const host::Check &check : host::checks())
      if (check.name == options.child) check.run(subject);
    return kDone;
  } catch (const host::CheckFailed &failure) {
    fmt::print("{}", failure.what());
    return kNotDone;
  }
}

/// Runs one check or batch in a process of its own.
Result runApart(const ValidateOptions &options, const std::string &child, std::uint64_t seed,
                int sessions, std::string &output) {
  QProcess process;
  QStringList arguments{"validate",
                        "--child",
                        QString::fromStdString(child),
                        "--seed",
                        QString::number(seed),
                        "--sessions",
                        QString::number(sessions)};
  if (!options.plugin.empty()) arguments << "--plugin" << QString::fromStdString(options.plugin);
  process.start(QCoreApplication::applicationFilePath(), arguments);
  process.waitForFinished(-1);
  output = process.readAllStandardOutput().toStdString();
  Result result{child, {}, false, output};
  if (process.exitStatus() == QProcess::CrashExit)
    result.what = fmt::format("crashed with signal {}", process.exitCode());
  else if (process.exitCode() == kBadInput)
    throw host::Error(process.readAllStandardError().trimmed().toStdString());
  else
    result.passed = process.exitCode() == kDone;
  return result;
}

std::vector<Result> runChecks(const ValidateOptions &options) {
  std::vector<Result> results;
  std::string output;
  for (const host::Check &check : host::checks()) {
    if (!options.only.empty() && options.only != check.name) continue;
    Result result = runApart(options, std::string(check.name), options.seed, 0, output);
    result.promise = check.promise;
    results.push_back(std::move(result));
  }
  return results;
}

Result runSessions(const ValidateOptions &options) {
  long commands = 0;
  Result all{"sessions", {}, true, {}};
  for (int done = 0; done < options.sessions && all.passed; done += kBatch) {
    ValidateOptions batch = options;
    batch.seed += static_cast<unsigned>(done);
    std::string output;
    const Result result =
        runApart(batch, "sessions", batch.seed, std::min(kBatch, options.sessions - done), output);
    if (result.passed) {
      commands += std::atol(output.c_str());
      continue;
    }
    all.passed = false;
    all.what = fmt::format("{}; replay with: kwopde run --ppd kwo-7032.ppd {}", result.what,
                           scriptPath(batch));
  }
  all.promise =
      fmt::format("{} random calls from seed {} hold every invariant", commands, options.seed);
  return all;
}

}  // namespace

int validate(const ValidateOptions &options) {
  if (!options.child.empty()) return runChild(options);
  if (options.script) {
    fmt::print("{}", host::randomScript(options.seed));
    return kDone;
  }
  if (options.list) {
    for (const host::Check &check : host::checks())
      fmt::print("{:26} {}\n", check.name, check.promise);
    fmt::print("{:26} {}\n", "sessions", "random calls hold every invariant");
    return kDone;
  }
  auto results = runChecks(options);
  if (options.only.empty() || options.only == "sessions") results.push_back(runSessions(options));
  if (results.empty()) throw host::Error(fmt::format("there is no check {}", options.only));
  auto json = nlohmann::json::array();
  for (const Result &result : results) {
    if (options.json)
      json.push_back({{"name", result.name},
                      {"promise", result.promise},
                      {"passed", result.passed},
                      {"what", result.passed ? "" : result.what}});
    else if (result.passed)
      fmt::print("pass  {:26} {}\n", result.name, result.promise);
    else
      fmt::print("FAIL  {:26} {}\n", result.name, result.what);
  }
  if (options.json) fmt::print("{}\n", json.dump(2));
  const bool passed =
      std::all_of(results.begin(), results.end(), [](const Result &r) { return r.passed; });
  return passed ? kDone : kNotDone;
}

}  // namespace kwopde::app
