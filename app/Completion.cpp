#include "app/Completion.h"

#include <algorithm>
#include <cctype>
#include <memory>
#include <sstream>
#include <string>

#include "app/Output.h"
#include "host/Error.h"
#include "host/PpdSession.h"
#include "queue/Presets.h"
#include "queue/PrintQueue.h"

namespace kwopde::app {

namespace {

using Words = std::vector<std::string>;

/// Returns the names of an option: "-d" and "--printer".
Words namesOf(const Option &option) {
  Words names;
  std::stringstream list(option.names);
  for (std::string name; std::getline(list, name, ',');) names.push_back(name);
  return names;
}

const Option *findOption(const Command &command, const std::string &name) {
  for (const Option &option : command.options) {
    const Words names = namesOf(option);
    if (std::find(names.begin(), names.end(), name) != names.end()) return &option;
  }
  return nullptr;
}

/// Returns what was typed as the value of the option `name`; empty when it was not.
std::string valueOf(const Words &words, const Command &command, const std::string &name) {
  const Option *const wanted = findOption(command, name);
  for (std::size_t i = 1; i + 1 < words.size(); ++i)
    if (wanted && findOption(command, words[i]) == wanted) return words[i + 1];
  return {};
}

Words queues() {
  Words names;
  for (const std::string &queue : host::PrintQueue::names()) {
    names.push_back(queue);
    for (const std::string &preset : host::Presets(queue).names())
      names.push_back(queue + '/' + preset);
  }
  return names;
}

/// Returns the options of the printer as "KEY=", and once a key is typed, "KEY=CHOICE".
Words printerOptions(const std::string &queue, const std::string &typed) {
  const auto session = host::PrintQueue(queue).openSession();
  const std::string key = typed.substr(0, typed.find('='));
  Words words;
  session->ppd().forEachOption([&](const ppd_option_t &option) {
    if (typed.find('=') == typed.npos)
      words.push_back(std::string(option.keyword) + '=');
    else if (key == option.keyword)
      for (int i = 0; i < option.num_choices; ++i)
        words.push_back(key + '=' + option.choices[i].choice);
  });
  return words;
}

/// Returns what an option's value can be, by what the help calls it: "FILE|stderr|syslog" names two
/// words that can be typed as they are.
Words values(const Option &option, const Words &words, const Command &command) {
  if (option.value == "QUEUE") return queues();
  if (option.value == "KEY=CHOICE")
    return printerOptions(valueOf(words, command, "--printer"), words.back());
  Words literal;
  std::stringstream alternatives(option.value);
  for (std::string value; std::getline(alternatives, value, '|');)
    if (std::islower(static_cast<unsigned char>(value.front())) != 0) literal.push_back(value);
  return literal;
}

Words candidates(const Words &words, const std::vector<Command> &commands) {
  Words found;
  if (words.size() == 1) {
    for (const Command &command : commands) found.push_back(command.name);
    found.insert(found.end(), {"--help", "--version"});
    return found;
  }
  const auto command = std::find_if(commands.begin(), commands.end(),
                                    [&](const Command &row) { return row.name == words.front(); });
  if (command == commands.end()) return {};
  const Option *const before = findOption(*command, words[words.size() - 2]);
  if (before && !before->value.empty()) return values(*before, words, *command);
  if (!words.back().starts_with('-')) return {};
  for (const Option &option : command->options)
    for (const std::string &name : namesOf(option))
      if (name.starts_with('-') && !option.description.empty()) found.push_back(name);
  found.emplace_back("--help");
  return found;
}

int complete(const Words &words, const std::vector<Command> &commands) {
  if (words.empty()) return kDone;
  try {
    for (const std::string &word : candidates(words, commands))
      if (word.starts_with(words.back())) writeResultLine(word);
  } catch (const host::Error &) {
    // No server, no such printer: nothing to offer, and a shell has no place for the reason.
  }
  return kDone;
}

}  // namespace

Command completeCommand(const std::vector<Command> &commands) {
  const auto words = std::make_shared<Words>();
  return {
      "complete", "", {{"words", words.get(), "WORD", "What is typed so far"}}, [words, commands] {
        return complete(*words, commands);
      }};
}

}  // namespace kwopde::app
