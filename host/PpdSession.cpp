#include "host/PpdSession.h"

#include <cstring>

namespace kwopde::host {

PpdSession::PpdSession(PpdFile ppd, bool constraintHandling)
    : ppd_(std::move(ppd)), constraintHandling_(constraintHandling) {}

bool PpdSession::respondsToSelector(std::string_view selector) const {
  return selector == "ppdFile" || (constraintHandling_ && selector == kWillChangePPDOptionKeyValue);
}

bool PpdSession::willChangePPDOptionKeyValue(const std::string *key, const std::string *ppdChoice) {
  const ppd_choice_t *choice =
      key && ppdChoice && !refusesAll_ ? findChoice(*key, *ppdChoice) : nullptr;
  if (choice) ppdMarkOption(ppd_.get(), choice->option->keyword, choice->choice);
  if (observer_) observer_->requestWasAnswered(key, ppdChoice, choice != nullptr);
  return choice != nullptr;
}

bool PpdSession::mark(const std::string &key, const std::string &choice) {
  const ppd_choice_t *found = findChoice(key, choice);
  if (!found) return false;
  ppdMarkOption(ppd_.get(), found->option->keyword, found->choice);
  announce({found->option->keyword, found->choice});
  return true;
}

void PpdSession::announce(const OptionChoice &change) {
  if (observer_) observer_->willAnnounce(change);
  if (!panels_) return;
  for (const auto &panel : *panels_) panel->PPDOptionKeyValueDidChange(&change.key, &change.choice);
}

ppd_choice_t *PpdSession::findChoice(const std::string &key, const std::string &choice) const {
  ppd_option_t *option = ppdFindOption(ppd_.get(), key.c_str());
  return option ? ppdFindChoice(option, choice.c_str()) : nullptr;
}

const char *PpdSession::markedChoice(const std::string &key) const {
  const ppd_choice_t *choice = ppdFindMarkedChoice(ppd_.get(), key.c_str());
  return choice ? choice->choice : nullptr;
}

std::vector<OptionChoice> PpdSession::changedChoices() const {
  std::vector<OptionChoice> changed;
  ppd_.forEachOption([&](const ppd_option_t &option) {
    const char *marked = markedChoice(option.keyword);
    if (marked && std::strcmp(marked, option.defchoice) != 0)
      changed.push_back({option.keyword, marked});
  });
  return changed;
}

}  // namespace kwopde::host
