// The commands that need Qt: what they take. The program with Qt runs them; `kwopde`, which has
// none, starts that program for them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "app/Command.h"
#include "app/RunCommand.h"

namespace kwopde::app {

struct DialogOptions {
  std::string ppd;             // a file; empty: a queue
  std::string printer;         // empty: the default queue
  std::string snapshotFolder;  // empty: no pictures
  std::vector<std::string> documents;
  bool choose = false;  // ask for documents when there are none
  bool json = false;
  std::string trace = "syslog";
};

struct SettingsOptions {
  std::string printer;         // a queue or an instance; empty: the default one
  std::string snapshotFolder;  // empty: no pictures
  std::string trace = "syslog";
};

struct ValidateOptions {
  std::string module;  // a file; empty: our own
  std::string ppd;     // a file; empty: the sample with every option of our panels
  std::uint64_t seed = 1;
  int sessions = 1000;
  std::string only;  // the name of one check; empty: all of them
  std::string keep;  // a folder for the sessions' scripts; empty: a temporary one
  bool inProcess = false;
  bool list = false;
  bool script = false;  // write the seed's session instead of running it
  bool json = false;
};

struct PortalDialogOptions {
  std::string trace = "syslog";
};

/// What a command does, once its options are known; it returns the exit status.
template <class Options>
using Run = std::function<int(const Options &)>;

Command dialogCommand(const Run<DialogOptions> &run);
Command portalDialogCommand(const Run<PortalDialogOptions> &run);  // the portal's service uses it
Command settingsCommand(const Run<SettingsOptions> &run);
Command validateCommand(const Run<ValidateOptions> &run);

/// Starts the program with Qt in the place of this one, with the same arguments. Returns only by
/// throwing `host::Error`: `command` needs that program, and it is not installed.
int becomeQtProgram(const std::string &command, char **argv);

}  // namespace kwopde::app
