// kwopde-dialogs: the commands of kwopde that need Qt. kwopde starts it, with its own arguments.
#include <QApplication>
#include <QLoggingCategory>

#include "app/CommandLine.h"
#include "app/qt/QtCommands.h"
#include "dialog/ModuleLoader.h"
#include "dialog/Translations.h"
#include "host/Error.h"
#include "qt/QtUserInput.h"

using namespace kwopde;
using namespace kwopde::app;

namespace {

/// Runs without a display, unless a person is to see something.
void choosePlatform(bool forAPerson) {
  const auto isSet = [](const char *variable) { return !qEnvironmentVariableIsEmpty(variable); };
  if (!forAPerson) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt warns of what the platform without a display cannot do.
    QLoggingCategory::setFilterRules("default.warning=false\nqt.*.warning=false");
  } else if (!isSet("DISPLAY") && !isSet("WAYLAND_DISPLAY") && !isSet("QT_QPA_PLATFORM")) {
    throw host::Error("there is no display: set DISPLAY, or take pictures with --snapshot");
  }
}

}  // namespace

int main(int argc, char **argv) {
  /// Makes a command's function one that runs in a QApplication. `isForAPerson` tells from the
  /// options whether somebody is to see what it shows.
  const auto inApplication = [argv](auto function, auto isForAPerson) {
    return [argv, function, isForAPerson](const auto &options) {
      choosePlatform(isForAPerson(options));
      int one = 1;
      QApplication application(one, argv);
      QApplication::setApplicationName("kwopde");
      QApplication::setApplicationVersion(KWOPDE_VERSION);
      dialog::installQtTranslations();
      dialog::installTranslations();
      return function(options);
    };
  };
  const auto shows = [](const auto &options) { return options.snapshotFolder.empty(); };
  const auto always = [](const auto &) { return true; };
  const auto never = [](const auto &) { return false; };
  const auto runScriptInQt = [](const RunOptions &options) {
    qt::QtUserInput user;
    return runScript(options, dialog::loadModule(), user);
  };
  return runCommandLine(argc, argv, [&] {
    return std::vector<Command>{dialogCommand(inApplication(runDialogCommand, shows)),
                                portalDialogCommand(inApplication(runPortalDialogCommand, always)),
                                settingsCommand(inApplication(runSettingsCommand, shows)),
                                runCommand(inApplication(runScriptInQt, never)),
                                validateCommand(inApplication(runValidateCommand, never))};
  });
}
