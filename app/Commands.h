// The commands of `kwopde`.
#pragma once

#include <string>

namespace kwopde::app {

/// Exit statuses.
constexpr int kDone = 0;
constexpr int kNotDone = 1;   // cancelled, or a command of a script could not be run
constexpr int kBadInput = 2;  // the command line, or a file, cannot be used

struct DialogOptions {
  std::string ppd;
  std::string snapshotFolder;  // empty: no pictures
  std::string document;
  std::string trace = "syslog";
};

struct RunOptions {
  std::string ppd;
  bool noConstraintHandling = false;
  std::string script = "-";  // "-": standard input
  std::string trace;         // empty: into the transcript
};

/// Both need a QApplication. The exit status; they throw `host::Error` for bad input.
int dialog(const DialogOptions &options);
int run(const RunOptions &options);

}  // namespace kwopde::app
