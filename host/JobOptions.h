// What a job carries: one rule for every way to print, the rule of lp(1).
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "host/OptionChoice.h"
#include "host/PpdSession.h"

namespace kwopde::host {

/// Returns whether both keys name the same setting, such as "media" and "PageSize". Letter case
/// does not tell them apart.
bool isSameSetting(std::string_view a, std::string_view b);

/// Options in layers, of which a later one replaces what an earlier one holds: first what is saved
/// for the destination and the queue's own defaults, then what the person says with -o or sets in
/// the dialog's own tabs, then what the panels have marked. Letter case does not tell keys apart.
class JobOptions {
public:
  JobOptions() = default;

  /// Starts from `destination`, taken as it is: the options saved for it, and the queue's defaults.
  /// `queueDefaults`, where they are known, tell which is which.
  explicit JobOptions(const std::vector<OptionChoice> &destination,
                      const std::vector<OptionChoice> &queueDefaults = {});

  /// Sets `key`, and with an option that goes by several names ("media", "PageSize") takes the
  /// other names out; what "media" says beside the paper stays.
  void set(const std::string &key, const std::string &choice);

  /// Sets `key` to what stands for no choice of the person's, unless the job would carry nothing
  /// for it anyway.
  void setNeutral(const std::string &key, const std::string &choice);

  /// Lets the job carry what `session` has settled, but for the options in `others`, which somebody
  /// else has in hand. A choice that is the PPD's default is left out where nothing below holds
  /// another one for its key.
  void carry(const PpdSession &session, const std::set<std::string> &others = {});

  /// Returns the choice for `key`; none when the job carries none.
  std::optional<std::string> value(std::string_view key) const;

  /// Returns all of it, each key once.
  std::vector<OptionChoice> all() const;

  /// Returns what is worth telling a person: all but what the queue gives every job.
  std::vector<OptionChoice> chosen() const;

  /// Returns what is worth keeping for other jobs: what is chosen, but for copies, pages and the
  /// like, which are this job's.
  std::vector<OptionChoice> kept() const;

private:
  /// Returns whether there is a choice for `key`, under whatever name.
  bool holds(std::string_view key) const;

  struct Option : OptionChoice {
    bool isUsual;  // the queue gives it to every job
  };
  std::vector<Option> list_;
};

}  // namespace kwopde::host
