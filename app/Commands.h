// The commands of `kwopde`.
#pragma once

#include <string>
#include <vector>

namespace kwopde::app {

/// Exit statuses.
constexpr int kDone = 0;
constexpr int kNotDone = 1;   // cancelled, not printed, a command not run, something found
constexpr int kBadInput = 2;  // the command line, or a file, cannot be used

struct DialogOptions {
  std::string ppd;             // a file; empty: a queue
  std::string printer;         // empty: the default queue
  std::string snapshotFolder;  // empty: no pictures
  std::vector<std::string> documents;
  std::string trace = "syslog";
};

struct PrintOptions {
  std::string printer;               // empty: the default queue
  std::string script;                // empty: none; "-": standard input
  std::vector<std::string> options;  // KEY=CHOICE
  std::string title;                 // empty: the first document's name
  std::vector<std::string> documents;
  std::string trace = "syslog";
};

struct RunOptions {
  std::string ppd;
  bool noConstraintHandling = false;
  std::string script = "-";  // "-": standard input
  std::string trace;         // empty: into the transcript
};

struct CheckOptions {
  std::vector<std::string> ppds;
  bool json = false;
};

/// All of them need a QApplication. The exit status; they throw `host::Error`, and `host::JobError`
/// when the server or the printer is in the way.
int dialog(const DialogOptions &options);
int print(const PrintOptions &options);
int run(const RunOptions &options);
int check(const CheckOptions &options);

}  // namespace kwopde::app
