// The host's side of the contract: it holds the PPD open, marks what the panels ask for, and tells
// the panels what it marked by itself.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/PpdFile.h"
#include "platform/HostCallback.h"
#include "platform/PlugIn.h"

namespace kwopde::host {

/// An option's keyword and the keyword of a choice.
struct OptionChoice {
  std::string key;
  std::string choice;
};

/// Hears what a session does, as it happens.
class SessionObserver {
public:
  SessionObserver() = default;
  SessionObserver(const SessionObserver &) = delete;
  SessionObserver &operator=(const SessionObserver &) = delete;
  virtual ~SessionObserver() = default;

  /// A panel's request was answered; nothing has been announced yet. Null arguments are as the
  /// panel sent them.
  virtual void requestWasAnswered(const std::string *key, const std::string *choice,
                                  bool granted) = 0;

  /// Every panel is about to be told that the host marked `change` by itself.
  virtual void willAnnounce(const OptionChoice &change) = 0;
};

class PpdSession final : public HostCallback {
public:
  /// `constraintHandling` is whether it answers requests at all.
  explicit PpdSession(PpdFile ppd, bool constraintHandling = true);

  std::string_view className() const override { return "PpdSession"; }

  ppd_file_t *ppdFile() override { return ppd_.get(); }
  bool respondsToSelector(std::string_view selector) const override;

  /// Marks a choice that the PPD lists and grants the request; refuses every other.
  bool willChangePPDOptionKeyValue(const std::string *key, const std::string *ppdChoice) override;

  /// Marks a listed choice by the host's own will and announces it. False when the PPD has no such
  /// option or choice; nothing is changed then.
  bool mark(const std::string &key, const std::string &choice);

  /// Whether every request is refused from now on.
  void refuseAll(bool refuse) { refusesAll_ = refuse; }

  /// The panels to announce to, in order; borrowed from the plug-in. Null when there are none.
  void setPanels(const PanelList *panels) { panels_ = panels; }

  /// Borrowed; null when nobody listens.
  void setObserver(SessionObserver *observer) { observer_ = observer; }

  const PpdFile &ppd() const { return ppd_; }

  /// The keyword of the marked choice of `key`, owned by the PPD; null when there is none.
  const char *markedChoice(const std::string &key) const;

  /// The marked choices that differ from the PPD's defaults, in the PPD's order: what a job has to
  /// carry.
  std::vector<OptionChoice> changedChoices() const;

private:
  ppd_choice_t *findChoice(const std::string &key, const std::string &choice) const;
  void announce(const OptionChoice &change);

  PpdFile ppd_;
  bool constraintHandling_;
  bool refusesAll_ = false;
  const PanelList *panels_ = nullptr;
  SessionObserver *observer_ = nullptr;
};

}  // namespace kwopde::host
