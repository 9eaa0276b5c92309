// What a session has refused and what it has undone, in sentences.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/PpdSession.h"

namespace kwopde::host {

/// Returns why `choice` of `key` was not marked: "Page Scale cannot be 3: this printer takes 5 to
/// 1000".
std::string refusalText(const PpdSession &session, const std::string &key,
                        const std::string &choice, const Answer &answer);

/// Listens to a session: what was asked for, or saved before, and is not marked in the end.
class Refusals final : public SessionObserver {
public:
  /// Listens to `session` while it lives; borrowed. What is marked by now, and is not the PPD's
  /// default, counts as asked for.
  explicit Refusals(PpdSession &session);
  ~Refusals() override;

  void requestWasAnswered(const std::string *key, const std::string *choice,
                          const Answer &answer) override;
  void willAnnounce(const OptionChoice &change) override;

  /// Returns a sentence for every option that was asked for with another result than its choice
  /// being marked.
  std::vector<std::string> sentences() const;

private:
  PpdSession &session_;
  std::map<std::string, std::string> granted_;    // by option: the choice asked for
  std::map<std::string, std::string> sentences_;  // by option
  std::string lastKey_;                           // asked for last
};

}  // namespace kwopde::host
