// What a person keeps for a printer queue: own settings, and presets under names. They are CUPS's
// saved options and instances, which lp(1), lpoptions(1) and other programs know as well.
#pragma once

#include <string>
#include <vector>

#include "host/OptionChoice.h"
#include "queue/ThreadAccess.h"

namespace kwopde::host {

class Presets {
public:
  /// `queue` is the name on the server, without an instance.
  explicit Presets(std::string queue, GoesOn goesOn = {})
      : queue_(std::move(queue)), goesOn_(std::move(goesOn)) {}

  /// Returns the names, in order. Throws `JobError` when the server does not answer.
  std::vector<std::string> names() const;

  /// Keeps `options`, and nothing else, under `name`; with an empty name as the person's own
  /// settings of the queue. Other processes may do so at the same time. Throws `Error` when `name`
  /// cannot be one, or the options could not be written as they are, and `JobError` when the server
  /// does not answer; a server that tells of no such queue changes nothing.
  void save(const std::string &name, const std::vector<OptionChoice> &options) const;

  /// Forgets the preset `name`, or with an empty name the person's own settings. Throws as `save`
  /// does.
  void remove(const std::string &name) const;

  /// Returns whether a preset can be called `name`: CUPS takes no spaces, slashes, number signs and
  /// control characters, and as with its queues 127 bytes.
  static bool isName(const std::string &name);

private:
  std::string queue_;
  GoesOn goesOn_;
};

}  // namespace kwopde::host
