// The commands of `kwopde`: one file each, which adds its options and runs it.
#pragma once

#include <CLI/App.hpp>
#include <functional>

namespace kwopde::app {

/// Exit statuses.
constexpr int kDone = 0;
constexpr int kNotDone = 1;   // cancelled, not printed, a command not run, something found
constexpr int kBadInput = 2;  // the command line, or a file, cannot be used

/// A command that has been added to a command line.
struct Command {
  const CLI::App *commandLine;  // the part of it that is the command's; owned by the whole

  /// Runs the command with the options that were parsed; it needs a QApplication. Returns the exit
  /// status. Throws `host::Error`, and `host::JobError` when the server or the printer is in the
  /// way.
  std::function<int()> run;

  /// Returns whether a person is to see and work what the command shows.
  std::function<bool()> forAPerson = [] { return false; };
};

Command addCheckCommand(CLI::App &commandLine);
Command addDialogCommand(CLI::App &commandLine);
Command addOptionsCommand(CLI::App &commandLine);
Command addPrintCommand(CLI::App &commandLine);
Command addRunCommand(CLI::App &commandLine);
Command addSettingsCommand(CLI::App &commandLine);
Command addValidateCommand(CLI::App &commandLine);

}  // namespace kwopde::app
