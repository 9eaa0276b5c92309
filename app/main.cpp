// kwopde: the print dialog's extension, on the command line.
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <QApplication>
#include <cstdio>

#include "app/Commands.h"
#include "host/Error.h"
#include "host/dialog/Translations.h"

namespace {

using namespace kwopde::app;

CLI::Option *addTraceOption(CLI::App &command, std::string &where) {
  return command
      .add_option("--trace", where, "Where the trace goes: stderr, syslog, or a file to append to")
      ->type_name("FILE|stderr|syslog");
}

/// Runs without a display, unless a person is to see something.
void choosePlatform(bool forAPerson) {
  const auto isSet = [](const char *variable) { return !qEnvironmentVariableIsEmpty(variable); };
  if (!forAPerson)
    qputenv("QT_QPA_PLATFORM", "offscreen");
  else if (!isSet("DISPLAY") && !isSet("WAYLAND_DISPLAY") && !isSet("QT_QPA_PLATFORM"))
    throw kwopde::host::Error("there is no display: set DISPLAY, or take pictures with --snapshot");
}

}  // namespace

int main(int argc, char **argv) {
  CLI::App commandLine("Print quality, color and sharpening panels for a print dialog", "kwopde");
  commandLine.set_version_flag("--version", "kwopde " KWOPDE_VERSION);
  commandLine.require_subcommand(1);

  DialogOptions dialogOptions;
  auto *dialogCommand =
      commandLine.add_subcommand("dialog", "Opens the print dialog of a queue or of a PPD file");
  auto *ppdOption = dialogCommand
                        ->add_option("--ppd", dialogOptions.ppd,
                                     "A printer's PPD file; prints nothing, but "
                                     "lists what a job would carry")
                        ->type_name("FILE");
  dialogCommand
      ->add_option("--printer", dialogOptions.printer,
                   "A printer queue; the default one without --ppd and --printer")
      ->type_name("QUEUE")
      ->excludes(ppdOption);
  dialogCommand
      ->add_option("--snapshot", dialogOptions.snapshotFolder,
                   "Saves a picture of every tab there and prints at once")
      ->type_name("DIR");
  addTraceOption(*dialogCommand, dialogOptions.trace)->capture_default_str();
  dialogCommand->add_option("documents", dialogOptions.documents, "What is to be printed")
      ->type_name("DOCUMENT");

  PrintOptions printOptions;
  auto *printCommand = commandLine.add_subcommand(
      "print", "Sends documents to a queue as one job, without a dialog");
  printCommand->add_option("--printer", printOptions.printer, "The queue; else the default one")
      ->type_name("QUEUE");
  printCommand
      ->add_option("--script", printOptions.script,
                   "Sets the panels by this script first; - is standard input")
      ->type_name("SCRIPT");
  printCommand
      ->add_option("-o", printOptions.options,
                   "An option of the printer, or an attribute of the job such as copies=2")
      ->type_name("KEY=CHOICE")
      ->allow_extra_args(false);
  printCommand->add_option("--title", printOptions.title, "The job's title")->type_name("TITLE");
  addTraceOption(*printCommand, printOptions.trace)->capture_default_str();
  printCommand->add_option("documents", printOptions.documents, "What to print")
      ->required()
      ->type_name("DOCUMENT");

  RunOptions runOptions;
  auto *runCommand = commandLine.add_subcommand(
      "run", "Drives the panels by a script, without a display, and writes a transcript");
  runCommand->add_option("--ppd", runOptions.ppd, "The printer's PPD file")
      ->required()
      ->type_name("FILE");
  runCommand->add_flag("--no-constraint-handling", runOptions.noConstraintHandling,
                       "Acts as a host that marks nothing on request");
  addTraceOption(*runCommand, runOptions.trace)->default_str("the transcript");
  runCommand->add_option("script", runOptions.script, "The script; - is standard input")
      ->type_name("SCRIPT")
      ->capture_default_str();

  CheckOptions checkOptions;
  auto *checkCommand = commandLine.add_subcommand(
      "check", "Tells what the panels make of PPD files, and what is wrong with them");
  checkCommand->add_flag("--json", checkOptions.json, "Writes the findings as JSON");
  checkCommand->add_option("ppds", checkOptions.ppds, "The files")->required()->type_name("PPD");

  ValidateOptions validateOptions;
  auto *validateCommand = commandLine.add_subcommand(
      "validate", "Checks that a module keeps the contract between host and extension");
  validateCommand->add_option("--plugin", validateOptions.plugin, "The module; else our own")
      ->type_name("FILE");
  validateCommand
      ->add_option("--seed", validateOptions.seed, "The first of the random sessions' seeds")
      ->capture_default_str();
  validateCommand->add_option("--sessions", validateOptions.sessions, "How many random sessions")
      ->check(CLI::NonNegativeNumber)
      ->capture_default_str();
  validateCommand->add_option("--only", validateOptions.only, "Runs one check")->type_name("NAME");
  validateCommand->add_flag("--script", validateOptions.script,
                            "Writes the random session that the seed stands for, to replay it");
  validateCommand->add_flag("--list", validateOptions.list, "Names the checks");
  validateCommand->add_flag("--json", validateOptions.json, "Writes the results as JSON");
  validateCommand->add_option("--child", validateOptions.child)->group("");

  try {
    commandLine.parse(argc, argv);
  } catch (const CLI::ParseError &error) {
    return commandLine.exit(error) == 0 ? kDone : kBadInput;
  }

  try {
    choosePlatform(*dialogCommand && dialogOptions.snapshotFolder.empty());
    int qtArgc = 1;
    QApplication application(qtArgc, argv);
    QApplication::setApplicationName("kwopde");
    QApplication::setApplicationVersion(KWOPDE_VERSION);
    kwopde::host::installTranslations();
    if (*dialogCommand) return dialog(dialogOptions);
    if (*validateCommand) return validate(validateOptions);
    if (*checkCommand) return check(checkOptions);
    return *printCommand ? print(printOptions) : run(runOptions);
  } catch (const kwopde::host::JobError &error) {
    fmt::print(stderr, "kwopde: {}\n", error.what());
    return kNotDone;
  } catch (const kwopde::host::Error &error) {
    fmt::print(stderr, "kwopde: {}\n", error.what());
    return kBadInput;
  }
}
