// kwopde: the print dialog's extension, on the command line.
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <cstdio>

#include "app/Commands.h"
#include "host/Error.h"

namespace {

using namespace kwopde::app;

constexpr const char *kTraceHelp = "Where the trace goes: stderr, syslog, or a file to append to";

/// Qt's and the dialogs' own texts in the user's language.
void translate(QApplication &application) {
  const auto install = [&](const char *name, const QString &folder) {
    auto *translator = new QTranslator(&application);
    if (translator->load(QLocale(), name, "_", folder)) application.installTranslator(translator);
  };
  install("qtbase", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  install("kwopde-host", ":/kwopde-host");
}

}  // namespace

int main(int argc, char **argv) {
  CLI::App commandLine("Print quality, color and sharpening panels for a print dialog", "kwopde");
  commandLine.set_version_flag("--version", "kwopde " KWOPDE_VERSION);
  commandLine.require_subcommand(1);

  DialogOptions dialogOptions;
  auto *dialogCommand = commandLine.add_subcommand(
      "dialog", "Opens the dialog; Print writes what a job has to carry, a line an option");
  dialogCommand->add_option("--ppd", dialogOptions.ppd, "The printer's PPD file")
      ->required()
      ->type_name("FILE");
  dialogCommand
      ->add_option("--snapshot", dialogOptions.snapshotFolder,
                   "Saves a picture of every tab there and prints at once")
      ->type_name("DIR");
  dialogCommand->add_option("--trace", dialogOptions.trace, kTraceHelp)
      ->type_name("FILE|stderr|syslog")
      ->capture_default_str();
  dialogCommand->add_option("document", dialogOptions.document, "What is to be printed")
      ->type_name("DOCUMENT");

  RunOptions runOptions;
  auto *runCommand = commandLine.add_subcommand(
      "run", "Drives the panels by a script, without a display, and writes a transcript");
  runCommand->add_option("--ppd", runOptions.ppd, "The printer's PPD file")
      ->required()
      ->type_name("FILE");
  runCommand->add_flag("--no-constraint-handling", runOptions.noConstraintHandling,
                       "Acts as a host that marks nothing on request");
  runCommand->add_option("--trace", runOptions.trace, kTraceHelp)
      ->type_name("FILE|stderr|syslog")
      ->default_str("the transcript");
  runCommand->add_option("script", runOptions.script, "The script; - is standard input")
      ->type_name("SCRIPT")
      ->capture_default_str();

  try {
    commandLine.parse(argc, argv);
  } catch (const CLI::ParseError &error) {
    return commandLine.exit(error) == 0 ? kDone : kBadInput;
  }

  try {
    if (*runCommand) qputenv("QT_QPA_PLATFORM", "offscreen");
    int qtArgc = 1;
    QApplication application(qtArgc, argv);
    QApplication::setApplicationName("kwopde");
    QApplication::setApplicationVersion(KWOPDE_VERSION);
    translate(application);
    return *runCommand ? run(runOptions) : dialog(dialogOptions);
  } catch (const kwopde::host::Error &error) {
    fmt::print(stderr, "kwopde: {}\n", error.what());
    return kBadInput;
  }
}
