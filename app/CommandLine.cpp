#include "app/CommandLine.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <charconv>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "app/Output.h"
#include "host/Error.h"

namespace kwopde::app {

namespace {

/// Stands before a word in brackets, which CLI11 would take for a list.
constexpr char kPlain = '\x1F';

/// Returns the arguments in the order in which CLI11 takes them: from the last one on.
std::vector<std::string> wordsOf(int argc, char **argv) {
  std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
  std::reverse(words.begin(), words.end());
  for (std::string &word : words)
    if (word.starts_with('[') && word.ends_with(']')) word.insert(0, 1, kPlain);
  return words;
}

std::string plainText(const std::string &word) {
  return word.starts_with(kPlain) ? word.substr(1) : word;
}

/// Returns a number without the zeros in front, with which CLI11 takes it for an octal one.
std::string decimalText(const std::string &text) {
  const auto start = text.find_first_not_of('0');
  return start == text.npos || !std::isdigit(static_cast<unsigned char>(text[start]))
             ? text
             : text.substr(start);
}

/// Says that a number is below `least`; empty when it is not. What is no number at all is told when
/// it is read.
std::string belowText(const std::string &text, long least) {
  long number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  return read.ec == std::errc() && number < least ? fmt::format("{} is less than {}", text, least)
                                                  : std::string();
}

void addCheck(CLI::Option &row, Option::Check check) {
  const auto atLeast = [&](long least) {
    row.check([least](const std::string &text) { return belowText(text, least); });
  };
  switch (check) {
    case Option::Check::none:
      break;
    case Option::Check::positive:
      atLeast(1);
      break;
    case Option::Check::notNegative:
      atLeast(0);
      break;
    case Option::Check::folder:
      row.check(CLI::ExistingDirectory);
      break;
    case Option::Check::required:
      row.required();
      break;
  }
}

template <class Value>
CLI::Option *addTarget(CLI::App &command, const Option &option, Value *target) {
  CLI::Option *row = command.add_option(option.names, *target, option.description);
  row->type_name(option.value);
  // One value each time that it is given: what follows stands for itself.
  if (option.names.starts_with('-')) row->allow_extra_args(false);
  row->transform(std::is_integral_v<Value> ? decimalText : plainText);
  if (*target != Value()) row->capture_default_str();
  return row;
}

CLI::Option *addTarget(CLI::App &command, const Option &option, bool *target) {
  return command.add_flag(option.names, *target, option.description);
}

void addOptions(CLI::App &added, const Command &command) {
  for (const Option &option : command.options) {
    CLI::Option *row =
        std::visit([&](auto *target) { return addTarget(added, option, target); }, option.target);
    if (option.description.empty()) row->group("");
    if (!option.excludes.empty()) row->excludes(added.get_option(option.excludes));
    addCheck(*row, option.check);
  }
}

/// `command` has to stay until all is parsed: its options are added once it is met.
void add(CLI::App &commandLine, const Command &command) {
  CLI::App *added = commandLine.add_subcommand(command.name, command.description);
  if (command.description.empty()) added->group("");
  added->preparse_callback([added, &command](std::size_t) { addOptions(*added, command); });
}

/// Throws `host::Error` when the arguments do not begin with a command or an option.
void expectCommand(int argc, char **argv, const std::vector<Command> &commands) {
  if (argc > 1 && argv[1][0] == '-') return;
  std::vector<std::string_view> names;
  names.reserve(commands.size());
  for (const Command &command : commands)
    if (!command.description.empty()) names.emplace_back(command.name);
  if (argc < 2) throw host::Error(fmt::format("name a command: {}", fmt::join(names, ", ")));
  if (std::none_of(commands.begin(), commands.end(),
                   [&](const Command &command) { return command.name == argv[1]; }))
    throw host::Error(
        fmt::format("there is no command {}: name one of {}", argv[1], fmt::join(names, ", ")));
}

int parseAndRun(int argc, char **argv, const std::vector<Command> &commands) {
  CLI::App commandLine("Print quality, color and sharpening panels for a print dialog", "kwopde");
  commandLine.set_version_flag("--version", "kwopde " KWOPDE_VERSION);
  commandLine.require_subcommand(1);
  for (const Command &command : commands) add(commandLine, command);
  try {
    expectCommand(argc, argv, commands);
    commandLine.parse(wordsOf(argc, argv));
    for (const Command &command : commands)
      if (commandLine.got_subcommand(command.name)) return command.run();
    return kBadInput;
  } catch (const CLI::Success &shown) {
    return commandLine.exit(shown);  // the help, or the version
  } catch (const CLI::ParseError &error) {
    const auto chosen = commandLine.get_subcommands();
    const std::string command = chosen.empty() ? "" : " " + chosen.front()->get_name();
    tell("kwopde:{} {}", command.empty() ? "" : command + ":", error.what());
    tell("kwopde{} --help tells what it takes", command);
    return kBadInput;
  } catch (const host::JobError &error) {
    tell("kwopde: {}", error.what());
    return kNotDone;
  } catch (const host::Error &error) {
    tell("kwopde: {}", error.what());
    return kBadInput;
  }
}

}  // namespace

int runCommandLine(int argc, char **argv, const std::function<std::vector<Command>()> &commands) {
  openStandardStreams();
  int status = kNotDone;
  try {
    status = parseAndRun(argc, argv, commands());
  } catch (const std::exception &error) {
    writeMessage("kwopde: stopped by a fault of its own, or of this machine:");
    writeMessage(error.what());
  }
  return finishOutput() ? status : kBadInput;
}

}  // namespace kwopde::app
