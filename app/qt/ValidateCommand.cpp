#include <fmt/format.h>

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/Json.h"
#include "app/Output.h"
#include "app/qt/QtCommands.h"
#include "check/RandomSession.h"
#include "dialog/ModuleLoader.h"
#include "host/Error.h"
#include "qt/QtUserInput.h"

namespace kwopde::app {

namespace {

/// Sessions that one process runs.
constexpr int kBatch = 500;

/// The name under which the random sessions stand among the checks.
constexpr const char *kSessions = "sessions";

struct Result {
  enum class Outcome { pass, fail, none };

  std::string name;
  std::string promise;
  Outcome outcome = Outcome::pass;
  std::string what;  // what went wrong, or why there was nothing to check
  long calls = 0;    // of the random sessions, those that could be run
};

NLOHMANN_JSON_SERIALIZE_ENUM(Result::Outcome, {{Result::Outcome::pass, "pass"},
                                               {Result::Outcome::fail, "fail"},
                                               {Result::Outcome::none, "nothing checked"}})
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(Result, name, promise, outcome, what, calls)

/// The PPDs to run on, as files.
class Ppds {
public:
  Ppds() {
    for (const char *name : {"kwo-7032.ppd", "no-options.ppd"}) {
      QFile::copy(QString(":/kwopde-app/") + name, folder_.filePath(name));
      QFile::setPermissions(folder_.filePath(name), QFile::ReadOwner | QFile::WriteOwner);
    }
  }
  std::string path(const char *name) const { return folder_.filePath(name).toStdString(); }

private:
  QTemporaryDir folder_;
};

/// The module and the PPDs that the options name, ready to be checked.
class Bench {
public:
  explicit Bench(const ValidateOptions &options)
      : subject{dialog::loadModule(QString::fromStdString(options.module)), user_,
                options.ppd.empty() ? ppds_.path("kwo-7032.ppd") : options.ppd,
                ppds_.path("no-options.ppd")} {}

private:
  Ppds ppds_;
  qt::QtUserInput user_;

public:
  const check::Subject subject;
};

/// What the names of the scripts of sessions are.
constexpr const char *kScripts = "kwopde-validate-*.script";

/// The script of a session, in a new file. Files and links that are there already are left alone.
class SessionScript {
public:
  /// Throws `Error` when no file can be made in `folder`.
  SessionScript(const std::string &folder, std::uint64_t seed) {
    int number = -1;
    for (int again = 1; number < 0; ++again) {
      path_ = fmt::format("{}/kwopde-validate-{}{}.script", folder, seed,
                          again == 1 ? "" : fmt::format("-{}", again));
      number = open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
      if (number < 0 && errno != EEXIST)
        throw host::Error(fmt::format("{}: {}", path_, std::strerror(errno)));
    }
    stream_.open(fmt::format("/dev/fd/{}", number));
    close(number);
  }

  std::ostream &stream() { return stream_; }

  void remove() const { unlink(path_.c_str()); }

private:
  std::string path_;
  std::ofstream stream_;
};

QStringList scriptsIn(const std::string &folder) {
  return QDir(QString::fromStdString(folder)).entryList({kScripts});
}

Result judge(std::string name, std::string promise, const std::function<void(Result &)> &run) {
  Result result{std::move(name), std::move(promise), Result::Outcome::pass, {}, 0};
  try {
    run(result);
  } catch (const check::CheckFailed &failure) {
    result.outcome = Result::Outcome::fail;
    result.what = failure.what();
  } catch (const check::NothingToCheck &nothing) {
    result.outcome = Result::Outcome::none;
    result.what = nothing.what();
  }
  return result;
}

/// Runs the sessions, and leaves the script of the last one in the folder `options.keep`.
Result runSessions(const ValidateOptions &options, const check::Subject &subject) {
  return judge(kSessions, "random calls hold every invariant", [&](Result &result) {
    const check::Vocabulary vocabulary = check::vocabularyOf(subject);
    for (int i = 0; i < options.sessions; ++i) {
      const std::uint64_t seed = options.seed + static_cast<unsigned>(i);
      // Written before it is run, so that it is there after a crash.
      SessionScript script(options.keep, seed);
      result.calls +=
          check::runSession(subject, check::randomScript(vocabulary, seed), script.stream());
      script.remove();
    }
  });
}

/// Runs what is chosen in this process.
std::vector<Result> runHere(const ValidateOptions &options) {
  const Bench bench(options);
  std::vector<Result> results;
  for (const check::Check &check : check::checks())
    if (options.only.empty() || options.only == check.name)
      results.push_back(judge(std::string(check.name), std::string(check.promise),
                              [&](Result &) { check.run(bench.subject); }));
  if (options.only.empty() || options.only == kSessions)
    results.push_back(runSessions(options, bench.subject));
  return results;
}

/// Runs one check, or a batch of sessions, in a process of its own.
Result runApart(const ValidateOptions &options, const std::string &name,
                const std::string &promise) {
  QStringList arguments{"validate",
                        "--in-process",
                        "--json",
                        "--only",
                        QString::fromStdString(name),
                        "--seed",
                        QString::number(options.seed),
                        "--sessions",
                        QString::number(options.sessions),
                        "--keep",
                        QString::fromStdString(options.keep)};
  if (!options.module.empty()) arguments << "--module" << QString::fromStdString(options.module);
  if (!options.ppd.empty()) arguments << "--ppd" << QString::fromStdString(options.ppd);
  QProcess process;
  process.start(QCoreApplication::applicationFilePath(), arguments);
  process.waitForFinished(-1);
  Result result{name, promise, Result::Outcome::fail, {}, 0};
  if (process.exitStatus() == QProcess::CrashExit) {
    result.what = fmt::format("crashed with signal {}", process.exitCode());
    return result;
  }
  const auto answer = nlohmann::json::parse(process.readAllStandardOutput().toStdString(), nullptr,
                                            /*allow_exceptions=*/false);
  if (answer.is_array() && answer.size() == 1) return answer.front().get<Result>();
  const std::string errors = process.readAllStandardError().trimmed().toStdString();
  if (process.exitCode() == kBadInput) throw host::Error(errors.substr(errors.find(": ") + 2));
  result.what = fmt::format("ended with status {}: {}", process.exitCode(), errors);
  return result;
}

/// Runs the sessions in batches, a process each, up to one that goes wrong.
Result runSessionsApart(const ValidateOptions &options) {
  ValidateOptions batch = options;
  Result all{kSessions, {}, Result::Outcome::pass, {}, 0};
  for (int done = 0; done < options.sessions && all.outcome == Result::Outcome::pass;
       done += kBatch) {
    batch.seed = options.seed + static_cast<unsigned>(done);
    batch.sessions = std::min(kBatch, options.sessions - done);
    const Result result = runApart(batch, kSessions, {});
    all.outcome = result.outcome;
    all.what = result.what;
    all.calls += result.calls;
  }
  all.promise =
      fmt::format("{} random calls from seed {} hold every invariant", all.calls, options.seed);
  return all;
}

/// Runs what is chosen, each in a process of its own, so that a crash costs one result.
std::vector<Result> runAllApart(ValidateOptions options) {
  QTemporaryDir folder;
  if (options.keep.empty() && !folder.isValid())
    throw host::Error("there is no temporary folder: " + folder.errorString().toStdString());
  if (options.keep.empty()) options.keep = folder.path().toStdString();
  std::vector<Result> results;
  for (const check::Check &check : check::checks())
    if (options.only.empty() || options.only == check.name)
      results.push_back(runApart(options, std::string(check.name), std::string(check.promise)));
  if (options.only.empty() || options.only == kSessions) {
    const QStringList before = scriptsIn(options.keep);
    Result sessions = runSessionsApart(options);
    QStringList kept = scriptsIn(options.keep);
    kept.removeIf([&](const QString &name) { return before.contains(name); });
    if (sessions.outcome == Result::Outcome::fail && !kept.isEmpty()) {
      folder.setAutoRemove(false);
      sessions.what += fmt::format(
          "; replay with: {}kwopde run --ppd {} {}/{}",
          options.module.empty() ? "" : fmt::format("KWOPDE_MODULE={} ", options.module),
          options.ppd.empty() ? "kwo-7032.ppd" : options.ppd, options.keep,
          kept.front().toStdString());
    }
    results.push_back(std::move(sessions));
  }
  return results;
}

void print(const std::vector<Result> &results, bool json) {
  if (json) {
    writeJson(results, 2);
    return;
  }
  for (const Result &result : results) switch (result.outcome) {
      case Result::Outcome::pass:
        printLine("pass  {:26} {}", result.name, result.promise);
        break;
      case Result::Outcome::fail:
        printLine("FAIL  {:26} {}", result.name, result.what);
        break;
      case Result::Outcome::none:
        printLine("none  {:26} nothing of yours was checked: {}", result.name, result.what);
        break;
    }
}

void list() {
  for (const check::Check &check : check::checks())
    printLine("{:26} {}", check.name, check.promise);
  printLine("{:26} {}", kSessions, "random calls hold every invariant");
}

}  // namespace

int runValidateCommand(const ValidateOptions &given) {
  ValidateOptions options = given;
  if (options.list) {
    list();
    return kDone;
  }
  if (!options.ppd.empty()) openReadable(options.ppd);
  if (options.script) {
    try {
      writeResult(check::randomScript(check::vocabularyOf(Bench(options).subject), options.seed));
    } catch (const check::NothingToCheck &nothing) {
      throw host::Error(nothing.what());
    }
    return kDone;
  }
  if (options.inProcess && options.keep.empty()) options.keep = {'.'};
  const auto results = options.inProcess ? runHere(options) : runAllApart(options);
  if (results.empty())
    throw host::Error(fmt::format("there is no check {}: --list names them", options.only));
  print(results, options.json);
  const bool passed = std::all_of(results.begin(), results.end(), [](const Result &result) {
    return result.outcome == Result::Outcome::pass;
  });
  return passed ? kDone : kNotDone;
}

}  // namespace kwopde::app
