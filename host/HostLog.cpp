#include "host/HostLog.h"

#include <fmt/format.h>

#include "platform/Escaped.h"
#include "platform/SystemLog.h"

namespace kwopde::host {

namespace {

/// What the log calls each reason, in the order of `Answer::Reason`.
constexpr std::string_view kAnswers[] = {"granted",  "unwilling",      "unknown-option",
                                         "unlisted", "outside-limits", "conflict"};

}  // namespace

HostLog::HostLog(LogSink *sink, PpdSession &session) : sink_(sink), session_(session) {
  session_.addObserver(this);
  std::vector<Fact> facts{{"version", KWOPDE_VERSION}};
  if (!session_.printer().empty()) facts.push_back({"printer", session_.printer()});
  facts.push_back({"ppd", session_.ppd().nickname()});
  write("opened", facts);
}

HostLog::~HostLog() {
  session_.removeObserver(this);
}

void HostLog::requestWasAnswered(const std::string *key, const std::string *choice,
                                 const Answer &answer) {
  const std::string name = key ? *key : "";
  std::vector<Fact> facts{{"key", name},
                          {"wanted", choice ? shown(name, *choice) : ""},
                          {"answer", std::string(kAnswers[static_cast<int>(answer.reason)])}};
  if (const auto range = session_.range(name); range && !answer.granted())
    facts.push_back({"limits", fmt::format("{} to {}", range->minimum, range->maximum)});
  if (!answer.conflicts.empty()) facts.push_back({"conflicts", listText(answer.conflicts)});
  if (const auto marked = session_.markedChoice(name); marked && !answer.granted())
    facts.push_back({"marked", shown(name, *marked)});
  write("request", facts);
}

void HostLog::willAnnounce(const OptionChoice &change) {
  write("marked", {{"key", change.key}, {"choice", shown(change.key, change.choice)}});
}

void HostLog::carries(const std::vector<OptionChoice> &options) {
  write("carries", {{"options", listText(options)}});
}

void HostLog::jobWasSent(int id) {
  write("sent", {{"job", std::to_string(id)}});
}

void HostLog::jobFailed(std::string_view why) {
  write("failed", {{"why", std::string(why)}});
}

void HostLog::write(std::string_view what, const std::vector<Fact> &facts) {
  std::string text = "HOST self(" + session_.description() + ") ";
  text += what;
  for (const auto &[name, value] : facts) {
    text.append(" ").append(name).append("=");
    if (value.empty() || value.find_first_of(" \"\\") != value.npos)
      appendQuoted(text, value);
    else
      text += value;
  }
  std::string line;
  appendEscaped(line, text);
  if (sink_)
    sink_->writeLine(line);
  else
    SystemLog().writeLine(line);
}

std::string HostLog::listText(const std::vector<OptionChoice> &choices) const {
  std::vector<std::string> texts;
  texts.reserve(choices.size());
  for (const auto &[key, choice] : choices)
    texts.push_back(fmt::format("{}={}", key, shown(key, choice)));
  return fmt::format("{}", fmt::join(texts, " "));
}

std::string HostLog::shown(const std::string &key, const std::string &choice) const {
  // "job-password" is an attribute of jobs.
  const bool isSecret = session_.ppd().isSecret(key) || key.find("password") != key.npos;
  return isSecret ? kHidden : choice;
}

}  // namespace kwopde::host
