// A printer queue of the CUPS server.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/PpdSession.h"
#include "host/Stream.h"
#include "queue/ThreadAccess.h"

namespace kwopde::host {

class PrintQueue {
public:
  /// Finds the queue called `name` ("photo-printer"), an instance of it ("photo-printer/glossy"),
  /// or the user's default with an empty name. Throws `Error` when there is no such one, and
  /// `JobError` when there is no server or it does not answer, or `goesOn` ended the waiting.
  explicit PrintQueue(const std::string &name, const GoesOn &goesOn = {});

  /// Returns the names of the queues that the server has, in order; with `models`, of those whose
  /// make and model begin so. Throws `JobError` when it does not answer.
  static std::vector<std::string> names(std::string_view models = {});

  /// Returns the name on the server, without an instance.
  const std::string &name() const { return name_; }

  /// Returns the name with the instance, as lp(1) takes it.
  std::string destination() const { return instance_.empty() ? name_ : name_ + '/' + instance_; }

  /// Returns what is saved for the destination, and the queue's own defaults.
  const std::vector<OptionChoice> &options() const { return options_; }

  /// Returns what the queue gives every job unless told otherwise, whatever a person has saved.
  /// Throws `JobError` when the server does not tell.
  std::vector<OptionChoice> defaults(const GoesOn &goesOn = {}) const;

  /// Returns these as `fetch` has found them; none before.
  const std::vector<OptionChoice> &fetchedDefaults() const { return defaults_; }

  /// Asks the server for the PPD and the defaults, so that `openSession` need not; in any thread.
  /// Throws `JobError` when they did not come whole.
  void fetch(const GoesOn &goesOn);

  /// Returns a session on the queue's PPD, with the user's saved options marked, and, when they
  /// were fetched, with the queue's defaults. The PPD of the
  /// session that was dropped last is not read again while the server has the same. Throws `Error`
  /// when the queue has no PPD, or a broken one, and `JobError` when it did not come whole. To be
  /// called, and the session dropped, in one thread.
  std::shared_ptr<PpdSession> openSession() const;

  /// Returns whether `queue`, without an instance, has another PPD now than the one with the
  /// `fingerprint`. Throws `JobError` when it did not come whole.
  static bool hasOtherPpd(const std::string &queue, std::size_t fingerprint,
                          const GoesOn &goesOn = {});

private:
  std::string name_;
  std::string instance_;
  std::vector<OptionChoice> options_;
  std::optional<Stream> ppd_;  // as fetched; null when there is none
  std::vector<OptionChoice> defaults_;
};

}  // namespace kwopde::host
