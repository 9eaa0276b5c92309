#include "app/QtCommands.h"

#include <fmt/format.h>
#include <unistd.h>

#include <filesystem>
#include <memory>

#include "app/TraceOption.h"
#include "host/Error.h"

namespace kwopde::app {

Command dialogCommand(const Run<DialogOptions> &run) {
  const auto options = std::make_shared<DialogOptions>();
  return {"dialog",
          "Opens the print dialog of a queue or of a PPD file",
          {{"--ppd", &options->ppd, "FILE",
            "A printer's PPD file; prints nothing, but lists what a job would carry"},
           {"--printer,-d", &options->printer, "QUEUE",
            "A printer queue; the default one without --ppd and --printer", Option::Check::none,
            "--ppd"},
           {"--snapshot", &options->snapshotFolder, "DIR",
            "Saves a picture of every tab there and prints at once"},
           {"--choose", &options->choose, "",
            "Asks for the documents when none are named; without it, nothing is printed then, and "
            "what a job would carry is listed"},
           traceOption(options->trace),
           {"--json", &options->json, "", "Writes the choices, and the job, as JSON"},
           {"documents", &options->documents, "DOCUMENT",
            "What is to be printed; - is standard input"}},
          [options, run] { return run(*options); }};
}

Command settingsCommand(const Run<SettingsOptions> &run) {
  const auto options = std::make_shared<SettingsOptions>();
  return {"settings",
          "Keeps settings of a queue for all that you print, or as a preset",
          {{"--printer,-d", &options->printer, "QUEUE",
            "A printer queue, or a preset of it (QUEUE/NAME); else the default one"},
           {"--snapshot", &options->snapshotFolder, "DIR",
            "Saves a picture of every tab there, and keeps no settings"},
           traceOption(options->trace)},
          [options, run] { return run(*options); }};
}

Command portalDialogCommand(const Run<PortalDialogOptions> &run) {
  const auto options = std::make_shared<PortalDialogOptions>();
  return {
      "portal-dialog", "", {traceOption(options->trace)}, [options, run] { return run(*options); }};
}

Command validateCommand(const Run<ValidateOptions> &run) {
  const auto options = std::make_shared<ValidateOptions>();
  return {"validate",
          "Checks that a module keeps the contract between host and extension",
          {{"--module", &options->module, "FILE", "The module; else our own"},
           {"--plugin", &options->module, "FILE", ""},  // its name in 0.1
           {"--ppd", &options->ppd, "FILE",
            "A PPD with the options of the module's panels; else one with ours"},
           {"--seed", &options->seed, "N", "The first of the random sessions' seeds"},
           {"--sessions", &options->sessions, "N", "How many random sessions",
            Option::Check::notNegative},
           {"--only", &options->only, "NAME", "Runs one check"},
           {"--in-process", &options->inProcess, "",
            "Runs in this process, for a debugger, instead of one process a check"},
           {"--keep", &options->keep, "DIR", "Leaves the script of a session that goes wrong there",
            Option::Check::folder},
           {"--script", &options->script, "",
            "Writes the random session that the seed stands for, to replay it"},
           {"--list", &options->list, "", "Names the checks"},
           {"--json", &options->json, "", "Writes the results as JSON"}},
          [options, run] { return run(*options); }};
}

int becomeQtProgram(const std::string &command, char **argv) {
  constexpr const char *kProgram = "kwopde-dialogs";
  std::error_code error;
  const auto folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
  const auto installed = folder / KWOPDE_LIBRARIES_FROM_PROGRAMS / "kwopde" / kProgram;
  for (const auto &program : {folder / kProgram, installed}) execv(program.c_str(), argv);
  throw host::Error(fmt::format("{}: this needs {}, of the package kwopde-dialogs", command,
                                installed.lexically_normal().string()));
}

}  // namespace kwopde::app
