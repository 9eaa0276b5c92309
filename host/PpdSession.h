// The host's side of the contract: it holds the PPD open, marks what the panels ask for, keeps the
// printer's constraints, and tells the panels what it marked by itself.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "host/Constraints.h"
#include "host/MarkableChoice.h"
#include "host/OptionChoice.h"
#include "host/PpdFile.h"
#include "platform/HostCallback.h"
#include "platform/PlugIn.h"

namespace kwopde::host {

/// What became of a request, and why.
struct Answer {
  enum class Reason {
    granted,
    unwilling,      // the session refuses everything
    unknownOption,  // the PPD has no such option, or the request is null
    unlisted,       // the option has no such choice
    outsideLimits,  // nor takes the number as a custom value
    conflict,       // with `conflicts`, and nothing resolves it
  };
  struct Change : OptionChoice {
    std::string before;  // the choice that was marked until now
  };

  Reason reason;
  std::vector<OptionChoice> conflicts;  // marked choices that the requested one does not go with
  std::vector<Change> changes;          // what was marked instead of them
  std::string before;                   // the option's choice until now; empty for none

  bool granted() const { return reason == Reason::granted; }
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
                                  const Answer &answer) = 0;

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

  /// Grants a choice that the PPD lists, in whatever spelling of a number, and a number inside the
  /// limits of the option's custom value. Where the choice conflicts with other marked ones, those
  /// are changed and announced, and never the requested one; when nothing resolves the conflict,
  /// the request is refused and every mark is as before.
  bool willChangePPDOptionKeyValue(const std::string *key, const std::string *ppdChoice) override;

  /// Marks a choice on the host's own initiative, ignoring constraints, and announces it. Returns
  /// false, and changes nothing, when the PPD does not have it.
  bool mark(const std::string &key, const std::string &choice);

  /// Marks what the user has saved for the printer; what the PPD does not have is passed over.
  void markSaved(const std::vector<OptionChoice> &saved);

  /// The queue that the session is for, with its instance; empty for a PPD alone.
  const std::string &printer() const { return printer_; }
  void setPrinter(std::string printer) { printer_ = std::move(printer); }

  /// Tells what the queue gives every job in place of the PPD's defaults. What the PPD does not
  /// have counts for nothing.
  void setQueueDefaults(std::vector<OptionChoice> defaults) {
    queueDefaults_ = std::move(defaults);
  }

  /// Returns the keyword of the printer's default for `key`: the queue's, else the PPD's; none when
  /// the PPD has no such option.
  std::optional<std::string> defaultChoice(const std::string &key) const;

  /// Marks the printer's defaults of `keys`, and announces it.
  void markDefaults(const std::set<std::string> &keys);

  /// Names options that somebody else has in hand, such as the tabs of a dialog: a request that
  /// could only be granted by changing one of them is refused.
  void setFixed(std::set<std::string> keys) { fixed_ = std::move(keys); }

  /// Returns the marked choices that do not go together, as the PPD's constraints have it.
  std::vector<OptionChoice> conflicts() const;

  /// Whether every request is refused from now on.
  void refuseAll(bool refuse) { refusesAll_ = refuse; }

  /// The panels to announce to, in order; borrowed from the plug-in. Null when there are none.
  void setPanels(const PanelList *panels) { panels_ = panels; }

  /// `observer` is borrowed until it is removed. Observers hear in the order of adding.
  void addObserver(SessionObserver *observer) { observers_.push_back(observer); }
  void removeObserver(SessionObserver *observer) { std::erase(observers_, observer); }

  const PpdFile &ppd() const { return ppd_; }

  /// Gives the PPD up, as it was when it was read. To be called last: nothing else works then.
  PpdFile takePpd();
  const Constraints &constraints() const { return constraints_; }

  /// Returns whether an option is marked otherwise than before anybody asked for anything.
  bool isChanged() const;

  /// Returns the options of the PPD that the panels handle.
  std::set<std::string> panelKeys() const;

  /// Returns the keyword of the marked choice of `key`; none when none is marked.
  std::optional<std::string> markedChoice(const std::string &key) const;

  /// Returns whether the marked choice of `key` is the PPD's own default, whatever the queue gives.
  bool hasDefaultOfPpd(const std::string &key) const;

  /// Returns the numbers between which the option's listed and custom ones lie; none when it lists
  /// anything else, or nothing.
  std::optional<NumberRange> range(const std::string &key) const;

  /// A choice that somebody has seen or asked for, and that a job therefore has to carry.
  struct Settled {
    std::string key;
    std::string choice;
    bool isDefault;  // of the PPD
  };

  /// Returns the marked choices of the options that the panels show, and of those that were asked
  /// for or changed on the way, in the PPD's order. What is only saved is not among them: a job
  /// carries that as it is saved.
  std::vector<Settled> settledChoices() const;

private:
  Answer answer(const std::string *key, const std::string *requested);
  void setMark(const ppd_option_t &option, const MarkableChoice &choice);
  void settle(const ppd_option_t &option, const MarkableChoice &choice);
  void announce(const OptionChoice &change);

  PpdFile ppd_;
  Constraints constraints_;
  bool constraintHandling_;
  bool refusesAll_ = false;
  std::string printer_;
  std::vector<OptionChoice> queueDefaults_;
  const PanelList *panels_ = nullptr;
  std::vector<SessionObserver *> observers_;
  std::map<std::string, std::optional<std::string>> settled_;  // marked first, by option
  std::set<std::string> fixed_;

  /// The choice that stands for an option's custom values. Its record shows the number that is
  /// marked, since panels read numbers from texts.
  struct Custom {
    std::string ownText;  // the PPD's
    std::string value;    // what is marked; empty while another choice is
  };
  std::map<std::string, Custom> customs_;  // by option
};

}  // namespace kwopde::host
