#include "host/Refusals.h"

#include <fmt/format.h>

namespace kwopde::host {

namespace {

std::string listText(const PpdFile &ppd, const std::vector<OptionChoice> &choices) {
  std::vector<std::string> texts;
  texts.reserve(choices.size());
  for (const auto &[key, choice] : choices)
    texts.push_back(fmt::format("{}: {}", ppd.textOf(key), ppd.textOf(key, choice)));
  return fmt::format("{}", fmt::join(texts, ", "));
}

}  // namespace

std::string refusalText(const PpdSession &session, const std::string &key,
                        const std::string &choice, const Answer &answer) {
  const PpdFile &ppd = session.ppd();
  const std::string cannot =
      fmt::format("{} cannot be {}", ppd.textOf(key), ppd.textOf(key, choice));
  if (answer.reason == Answer::Reason::conflict)
    return fmt::format("{} together with {}", cannot, listText(ppd, answer.conflicts));
  if (const auto range = session.range(key))
    return fmt::format("{}: this printer takes {} to {}", cannot, range->minimum, range->maximum);
  return fmt::format("{}: this printer has no such choice", cannot);
}

Refusals::Refusals(PpdSession &session) : session_(session) {
  session_.addObserver(this);
  session_.ppd().forEachOption([this](const ppd_option_t &option) {
    if (const auto marked = session_.markedChoice(option.keyword);
        marked && !session_.hasDefaultOfPpd(option.keyword))
      granted_[option.keyword] = *marked;
  });
}

Refusals::~Refusals() {
  session_.removeObserver(this);
}

void Refusals::requestWasAnswered(const std::string *key, const std::string *choice,
                                  const Answer &answer) {
  if (!key || !choice) return;
  lastKey_ = *key;
  sentences_.erase(*key);
  granted_.erase(*key);
  if (answer.granted())
    granted_[*key] = *choice;
  else
    sentences_[*key] = refusalText(session_, *key, *choice, answer);
}

void Refusals::willAnnounce(const OptionChoice &change) {
  const auto asked = granted_.find(change.key);
  if (asked == granted_.end()) return;
  const PpdFile &ppd = session_.ppd();
  sentences_[change.key] =
      fmt::format("{}: {} does not go with {}: {}, and would become {}", ppd.textOf(change.key),
                  ppd.textOf(change.key, asked->second), ppd.textOf(lastKey_),
                  ppd.textOf(lastKey_, session_.markedChoice(lastKey_).value_or("")),
                  ppd.textOf(change.key, change.choice));
}

std::vector<std::string> Refusals::sentences() const {
  std::vector<std::string> list;
  list.reserve(sentences_.size());
  for (const auto &[key, sentence] : sentences_) list.push_back(sentence);
  return list;
}

}  // namespace kwopde::host
