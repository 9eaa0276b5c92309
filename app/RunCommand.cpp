#include <iostream>
#include <memory>
#include <string>

#include "app/Command.h"
#include "app/Files.h"
#include "app/TraceOption.h"
#include "dialog/ModuleLoader.h"
#include "host/PpdSession.h"
#include "host/TraceTo.h"
#include "qt/QtUserInput.h"
#include "script/ScriptRunner.h"

namespace kwopde::app {

namespace {

struct RunOptions {
  std::string ppd;
  bool noConstraintHandling = false;
  std::string script = "-";  // "-": standard input
  std::string trace;         // empty: into the transcript
};

int run(const RunOptions &options) {
  auto session = std::make_shared<host::PpdSession>(host::PpdFile::open(options.ppd),
                                                    !options.noConstraintHandling);
  ScriptSource script(options.script);
  PlugInModule &module = dialog::loadModule();
  qt::QtUserInput user;
  const auto sink = options.trace.empty() ? nullptr : openTrace(options.trace);
  script::ScriptRunner runner(module, session, user, std::cout, std::cerr);
  const host::TraceTo trace(module, sink ? sink.get() : &runner);
  return runner.run(script.stream()) ? kDone : kNotDone;
}

}  // namespace

Command addRunCommand(CLI::App &commandLine) {
  const auto options = std::make_shared<RunOptions>();
  CLI::App *command = commandLine.add_subcommand(
      "run", "Drives the panels by a script, without a display, and writes a transcript");
  command->add_option("--ppd", options->ppd, "The printer's PPD file")
      ->required()
      ->type_name("FILE");
  command->add_flag("--no-constraint-handling", options->noConstraintHandling,
                    "Acts as a host that marks nothing on request");
  addTraceOption(*command, options->trace)->default_str("the transcript");
  command->add_option("script", options->script, "The script; - is standard input")
      ->type_name("SCRIPT")
      ->capture_default_str();
  return {command, [options] { return run(*options); }};
}

}  // namespace kwopde::app
