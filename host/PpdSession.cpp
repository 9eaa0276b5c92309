#include "host/PpdSession.h"

#include <cups/cups.h>

#include <algorithm>

#include "platform/PanelInspector.h"

namespace kwopde::host {

namespace {

void setText(ppd_choice_t &record, const std::string &text) {
  record.text[text.copy(record.text, PPD_MAX_TEXT - 1)] = 0;
}

}  // namespace

PpdSession::PpdSession(PpdFile ppd, bool constraintHandling)
    : ppd_(std::move(ppd)), constraints_(ppd_.get()), constraintHandling_(constraintHandling) {}

bool PpdSession::respondsToSelector(std::string_view selector) const {
  return selector == "ppdFile" || (constraintHandling_ && selector == kWillChangePPDOptionKeyValue);
}

bool PpdSession::willChangePPDOptionKeyValue(const std::string *key, const std::string *ppdChoice) {
  const Answer given = answer(key, ppdChoice);
  for (SessionObserver *observer : observers_) observer->requestWasAnswered(key, ppdChoice, given);
  for (const OptionChoice &change : given.changes) announce(change);
  return given.granted();
}

Answer PpdSession::answer(const std::string *key, const std::string *requested) {
  using Reason = Answer::Reason;
  ppd_option_t *option = key && requested ? ppdFindOption(ppd_.get(), key->c_str()) : nullptr;
  if (!option) return {Reason::unknownOption, {}, {}, {}};
  if (refusesAll_) return {Reason::unwilling, {}, {}, {}};
  const auto wanted = findMarkable(ppd_.get(), *option, *requested);
  if (!wanted) {
    const bool isNumber = wholeNumber(*requested) && numberRange(ppd_.get(), *option);
    return {isNumber ? Reason::outsideLimits : Reason::unlisted, {}, {}, {}};
  }

  Answer given{Reason::granted,
               constraints_.of(*option, wanted->keyword()),
               {},
               markedChoice(option->keyword).value_or("")};
  if (!given.conflicts.empty()) {
    const auto changes = constraints_.resolve(*option, wanted->keyword());
    const auto isFixed = [this](const OptionChoice &change) {
      return fixed_.contains(change.key) && markedChoice(change.key) != change.choice;
    };
    if (!changes || std::any_of(changes->begin(), changes->end(), isFixed)) {
      given.reason = Reason::conflict;
      return given;
    }
    for (const auto &[otherKey, otherChoice] : *changes) {
      ppd_option_t *other = ppdFindOption(ppd_.get(), otherKey.c_str());
      const auto choice = other ? findMarkable(ppd_.get(), *other, otherChoice) : std::nullopt;
      if (!choice || markedChoice(otherKey) == choice->keyword()) continue;
      given.changes.push_back(
          {{other->keyword, choice->keyword()}, markedChoice(otherKey).value_or("")});
      settle(*other, *choice);
    }
  }
  settle(*option, *wanted);
  return given;
}

void PpdSession::markSaved(const std::vector<OptionChoice> &saved) {
  const CupsOptions options(saved);
  cupsMarkOptions(ppd_.get(), options.count, options.options);
  for (const auto &[key, choice] : saved) {
    ppd_option_t *option = ppdFindOption(ppd_.get(), key.c_str());
    const auto found = option ? findMarkable(ppd_.get(), *option, choice) : std::nullopt;
    if (found) setMark(*option, *found);
  }
}

std::optional<std::string> PpdSession::defaultChoice(const std::string &key) const {
  ppd_option_t *option = ppdFindOption(ppd_.get(), key.c_str());
  if (!option) return {};
  for (const OptionChoice &ofQueue : queueDefaults_)
    if (isSameKey(ofQueue.key, key))
      if (const auto found = findMarkable(ppd_.get(), *option, ofQueue.choice))
        return found->keyword();
  return option->defchoice;
}

void PpdSession::markDefaults(const std::set<std::string> &keys) {
  for (const std::string &key : keys)
    if (const auto choice = defaultChoice(key)) mark(key, *choice);
}

std::vector<OptionChoice> PpdSession::conflicts() const {
  return constraints_.all();
}

bool PpdSession::mark(const std::string &key, const std::string &choice) {
  ppd_option_t *option = ppdFindOption(ppd_.get(), key.c_str());
  const auto found = option ? findMarkable(ppd_.get(), *option, choice) : std::nullopt;
  if (!found) return false;
  settle(*option, *found);
  announce({option->keyword, found->keyword()});
  return true;
}

void PpdSession::setMark(const ppd_option_t &option, const MarkableChoice &choice) {
  ppdMarkOption(ppd_.get(), option.keyword, choice.keyword().c_str());
  ppd_choice_t *const record = ppdFindChoice(const_cast<ppd_option_t *>(&option), kCustom);
  if (!record) return;
  Custom &custom = customs_.try_emplace(option.keyword, Custom{record->text, {}}).first->second;
  custom.value = choice.custom;
  setText(*record, wholeNumber(custom.value) ? custom.value : custom.ownText);
}

void PpdSession::settle(const ppd_option_t &option, const MarkableChoice &choice) {
  settled_.try_emplace(option.keyword, markedChoice(option.keyword));
  setMark(option, choice);
}

void PpdSession::announce(const OptionChoice &change) {
  // A panel reads a number from the keyword that it is told.
  OptionChoice told = change;
  if (const auto value = customValue(change.choice)) told.choice = std::string(*value);
  for (SessionObserver *observer : observers_) observer->willAnnounce(told);
  if (!panels_) return;
  for (const auto &panel : *panels_) {
    // In its own spelling: PPDs differ in letter case.
    std::string key = told.key;
    for (const PanelOption &option : optionsOf(*panel))
      if (isSameKey(option.key, key)) key = option.key;
    panel->PPDOptionKeyValueDidChange(&key, &told.choice);
  }
}

PpdFile PpdSession::takePpd() {
  for (const auto &[key, custom] : customs_)
    setText(*ppdFindChoice(ppdFindOption(ppd_.get(), key.c_str()), kCustom), custom.ownText);
  ppdMarkDefaults(ppd_.get());
  return std::move(ppd_);
}

bool PpdSession::isChanged() const {
  return std::any_of(settled_.begin(), settled_.end(), [this](const auto &entry) {
    return markedChoice(entry.first) != entry.second;
  });
}

std::optional<std::string> PpdSession::markedChoice(const std::string &key) const {
  ppd_choice_t *choice = ppdFindMarkedChoice(ppd_.get(), key.c_str());
  if (!choice) return {};
  const auto custom = customs_.find(choice->option->keyword);
  return MarkableChoice{choice, custom == customs_.end() ? "" : custom->second.value}.keyword();
}

bool PpdSession::hasDefaultOfPpd(const std::string &key) const {
  const ppd_option_t *option = ppdFindOption(ppd_.get(), key.c_str());
  return option && markedChoice(key) == option->defchoice;
}

std::optional<NumberRange> PpdSession::range(const std::string &key) const {
  const ppd_option_t *option = ppdFindOption(ppd_.get(), key.c_str());
  return option ? numberRange(ppd_.get(), *option) : std::nullopt;
}

std::set<std::string> PpdSession::panelKeys() const {
  std::set<std::string> keys;
  if (panels_)
    for (const auto &panel : *panels_)
      for (const PanelOption &option : optionsOf(*panel))
        if (const auto *known = ppdFindOption(ppd_.get(), option.key.c_str()))
          keys.insert(known->keyword);
  return keys;
}

std::vector<PpdSession::Settled> PpdSession::settledChoices() const {
  auto keys = panelKeys();
  for (const auto &[key, before] : settled_) keys.insert(key);
  std::vector<Settled> settled;
  ppd_.forEachOption([&](const ppd_option_t &option) {
    const auto marked = keys.contains(option.keyword) ? markedChoice(option.keyword) : std::nullopt;
    if (marked) settled.push_back({option.keyword, *marked, hasDefaultOfPpd(option.keyword)});
  });
  return settled;
}

}  // namespace kwopde::host
