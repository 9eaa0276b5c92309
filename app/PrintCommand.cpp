#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "app/Command.h"
#include "app/Files.h"
#include "app/JobReport.h"
#include "app/Output.h"
#include "app/TraceOption.h"
#include "dialog/ModuleLoader.h"
#include "host/EndingSignals.h"
#include "host/Error.h"
#include "host/PpdSession.h"
#include "host/PrintJob.h"
#include "host/PrintQueue.h"
#include "host/TraceTo.h"
#include "qt/QtUserInput.h"
#include "script/ScriptRunner.h"

namespace kwopde::app {

namespace {

struct PrintOptions {
  std::string printer;               // empty: the default queue
  std::string script;                // empty: none; "-": standard input
  std::vector<std::string> options;  // KEY=CHOICE
  std::string title;                 // empty: the first document's name
  std::vector<std::string> documents;
  std::string trace = "syslog";
};

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

int print(const PrintOptions &options) {
  const host::PrintQueue queue(options.printer);
  const auto session = queue.openSession();
  host::PrintJob job{queue.name(), options.title, options.documents, {}};
  expectReadable(job.documents);
  if (job.title.empty()) job.title = std::filesystem::path(job.documents.front()).filename();
  for (const std::string &option : options.options) apply(option, *session, job);

  if (!options.script.empty()) {
    ScriptSource script(options.script);
    PlugInModule &module = dialog::loadModule();
    const auto sink = openTrace(options.trace);
    const host::TraceTo trace(module, sink.get());
    qt::QtUserInput user;
    std::ostream transcript(nullptr);  // discarded: print tells of the job only
    if (!script::ScriptRunner(module, session, user, transcript, std::cerr).run(script.stream()))
      return kNotDone;
  }

  for (const auto &change : session->changedChoices()) job.options.push_back(change);
  // Kept to the very end of the process, so that a job that was sent is also told as sent.
  static const auto *const ending = new host::EndingSignals;
  const bool showsProgress = isatty(STDERR_FILENO) != 0;
  const auto id = host::send(job, [&](long long sent, long long total) {
    if (showsProgress)
      std::fprintf(stderr, "\rsending: %lld %%", sent * 100 / std::max(total, 1LL));
    return !ending->wereHeard();
  });
  if (showsProgress) std::fputc('\n', stderr);
  if (!id) {
    tell("kwopde: cancelled; the printer has no job");
    return kNotDone;
  }
  printChoices(job.options);
  reportSent(job, *id);
  return kDone;
}

}  // namespace

Command addPrintCommand(CLI::App &commandLine) {
  const auto options = std::make_shared<PrintOptions>();
  CLI::App *command = commandLine.add_subcommand(
      "print", "Sends documents to a queue as one job, without a dialog");
  command->add_option("--printer", options->printer, "The queue; else the default one")
      ->type_name("QUEUE");
  command
      ->add_option("--script", options->script,
                   "Sets the panels by this script first; - is standard input")
      ->type_name("SCRIPT");
  command
      ->add_option("-o", options->options,
                   "An option of the printer, or an attribute of the job such as copies=2")
      ->type_name("KEY=CHOICE")
      ->allow_extra_args(false);
  command->add_option("--title", options->title, "The job's title")->type_name("TITLE");
  addTraceOption(*command, options->trace)->capture_default_str();
  command->add_option("documents", options->documents, "What to print")
      ->required()
      ->type_name("DOCUMENT");
  return {command, [options] { return print(*options); }};
}

}  // namespace kwopde::app
