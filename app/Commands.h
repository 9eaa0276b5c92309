// The commands of `kwopde`.
#pragma once

#include <cstdint>
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

struct ValidateOptions {
  std::string plugin;  // a module's file; empty: our own
  std::uint64_t seed = 1;
  int sessions = 1000;
  std::string only;  // the name of one check; empty: all of them
  bool list = false;
  bool script = false;  // write the seed's session instead of running it
  bool json = false;
  std::string child;  // what to run in this very process; for the command itself
};

/// All of them need a QApplication. The exit status; they throw `host::Error`, and `host::JobError`
/// when the server or the printer is in the way.
int dialog(const DialogOptions &options);
int print(const PrintOptions &options);
int run(const RunOptions &options);
int check(const CheckOptions &options);
int validate(const ValidateOptions &options);

}  // namespace kwopde::app
