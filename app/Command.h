// A command of `kwopde`: what it takes, as rows of a table, and what it does.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace kwopde::app {

/// Exit statuses.
constexpr int kDone = 0;
constexpr int kNotDone = 1;   // cancelled, not printed, a command not run, something found
constexpr int kBadInput = 2;  // the command line, or a file, cannot be used

/// An option of a command, or what it is given besides.
struct Option {
  /// Where a value goes; owned by the command. What is there before is the default. A list takes
  /// the values of an option that can be given several times.
  using Target =
      std::variant<bool *, int *, std::uint64_t *, std::string *, std::vector<std::string> *>;
  enum class Check { none, positive, notNegative, folder, required };

  std::string
      names;  // "--printer,-d"; without a dash it is what stands on the line besides options
  Target target;
  std::string value;        // what the help calls the value: "FILE"; empty for a flag
  std::string description;  // empty: an old name, which the help does not show
  Check check = Check::none;
  std::string excludes = {};  // the name of an option above it that cannot be given with it
};

struct Command {
  std::string name;
  std::string description;  // empty: for programs, and not shown in the help
  std::vector<Option> options;

  /// Runs the command with the options that were parsed. Returns the exit status. Throws
  /// `host::Error`, and `host::JobError` when the server or the printer is in the way.
  std::function<int()> run;
};

}  // namespace kwopde::app
