// kwopde: the print dialog's extension, on the command line. What needs Qt is in a program of its
// own, which is started when it is asked for, so that nothing else waits for Qt.
#include <fmt/format.h>

#include <vector>

#include "app/CommandLine.h"
#include "app/Commands.h"
#include "app/Completion.h"
#include "app/QtCommands.h"
#include "app/RunCommand.h"
#include "headless/Headless.h"
#include "host/Error.h"

using namespace kwopde;
using namespace kwopde::app;

int main(int argc, char **argv) {
  const auto inQtProgram = [argv](const char *command) {
    return [argv, command](const auto &) { return becomeQtProgram(command, argv); };
  };
  const auto run = [argv](const RunOptions &options) {
    if (options.toolkit == "qt") return becomeQtProgram("run --toolkit qt", argv);
    if (options.toolkit != "headless")
      throw host::Error(fmt::format("--toolkit {}: it is qt or headless", options.toolkit));
    headless::Module module;
    headless::UserInput user;
    return runScript(options, module, user);
  };
  return runCommandLine(argc, argv, [&] {
    std::vector<Command> commands{dialogCommand(inQtProgram("dialog")),
                                  settingsCommand(inQtProgram("settings")),
                                  printCommand(),
                                  optionsCommand(),
                                  runCommand(run),
                                  checkCommand(),
                                  traceCommand(),
                                  validateCommand(inQtProgram("validate"))};
    commands.push_back(completeCommand(commands));
    return commands;
  });
}
