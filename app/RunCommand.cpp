#include "app/RunCommand.h"

#include <iostream>
#include <memory>
#include <string>

#include "app/Files.h"
#include "app/TraceOption.h"
#include "host/PpdSession.h"
#include "host/TraceTo.h"
#include "script/ScriptRunner.h"

namespace kwopde::app {

Command runCommand(const std::function<int(const RunOptions &)> &run) {
  const auto options = std::make_shared<RunOptions>();
  Option trace = traceOption(options->trace);
  trace.description += "; else into the transcript";
  return {"run",
          "Drives the panels by a script, without a display, and writes a transcript",
          {{"--ppd", &options->ppd, "FILE", "The printer's PPD file", Option::Check::required},
           {"--no-constraint-handling", &options->noConstraintHandling, "",
            "Acts as a host that marks nothing on request"},
           {"--toolkit", &options->toolkit, "qt|headless",
            "What the panels' controls are: Qt's, or plain values"},
           trace,
           {"script", &options->script, "SCRIPT", "The script; - is standard input"}},
          [options, run] { return run(*options); }};
}

int runScript(const RunOptions &options, PlugInModule &module, UserInput &user) {
  expectReadable({options.ppd, options.script});
  auto session = std::make_shared<host::PpdSession>(host::PpdFile::open(options.ppd),
                                                    !options.noConstraintHandling);
  TextSource script(options.script);
  const auto sink = options.trace.empty() ? nullptr : openTrace(options.trace);
  script::ScriptRunner runner(module, session, user, std::cout, std::cerr);
  const host::TraceTo trace(module, sink ? sink.get() : &runner);
  return runner.run(script.stream(), script.name()) ? kDone : kNotDone;
}

}  // namespace kwopde::app
