// kwopde: the print dialog's extension, on the command line.
#include <CLI/CLI.hpp>
#include <QApplication>

#include "app/Command.h"
#include "app/Output.h"
#include "dialog/Translations.h"
#include "host/Error.h"

namespace {

using namespace kwopde::app;

constexpr Command (*kCommands[])(CLI::App &commandLine) = {
    addDialogCommand, addSettingsCommand, addPrintCommand,   addOptionsCommand,
    addRunCommand,    addCheckCommand,    addValidateCommand};

/// Runs without a display, unless a person is to see something.
void choosePlatform(bool forAPerson) {
  const auto isSet = [](const char *variable) { return !qEnvironmentVariableIsEmpty(variable); };
  if (!forAPerson)
    qputenv("QT_QPA_PLATFORM", "offscreen");
  else if (!isSet("DISPLAY") && !isSet("WAYLAND_DISPLAY") && !isSet("QT_QPA_PLATFORM"))
    throw kwopde::host::Error("there is no display: set DISPLAY, or take pictures with --snapshot");
}

int run(const Command &command, char **argv) {
  choosePlatform(command.forAPerson());
  int argc = 1;
  QApplication application(argc, argv);
  QApplication::setApplicationName("kwopde");
  QApplication::setApplicationVersion(KWOPDE_VERSION);
  kwopde::dialog::installTranslations();
  return command.run();
}

/// Runs the command that the arguments name. Returns the exit status.
int runCommand(int argc, char **argv) {
  CLI::App commandLine("Print quality, color and sharpening panels for a print dialog", "kwopde");
  commandLine.set_version_flag("--version", "kwopde " KWOPDE_VERSION);
  commandLine.require_subcommand(1);
  std::vector<Command> commands;
  for (const auto &add : kCommands) commands.push_back(add(commandLine));

  try {
    commandLine.parse(argc, argv);
    for (const Command &command : commands)
      if (command.commandLine->parsed()) return run(command, argv);
    return kBadInput;
  } catch (const CLI::ParseError &error) {
    return commandLine.exit(error) == 0 ? kDone : kBadInput;
  } catch (const kwopde::host::JobError &error) {
    tell("kwopde: {}", error.what());
    return kNotDone;
  } catch (const kwopde::host::Error &error) {
    tell("kwopde: {}", error.what());
    return kBadInput;
  }
}

}  // namespace

int main(int argc, char **argv) {
  openStandardStreams();
  int status = kNotDone;
  try {
    status = runCommand(argc, argv);
  } catch (const std::exception &error) {
    writeMessage("kwopde: stopped by a fault of its own, or of this machine:");
    writeMessage(error.what());
  }
  return finishOutput() ? status : kBadInput;
}
