// A printer queue of the CUPS server.
#pragma once

#include <cups/cups.h>

#include <memory>
#include <string>

#include "host/PpdSession.h"

namespace kwopde::host {

/// A connection to the CUPS server of the environment (CUPS_SERVER).
class CupsConnection {
public:
  /// Throws `JobError` when there is no server.
  CupsConnection();

  http_t *get() const { return http_.get(); }

private:
  struct Close {
    void operator()(http_t *http) const { httpClose(http); }
  };
  std::unique_ptr<http_t, Close> http_;
};

class PrintQueue {
public:
  /// Finds the queue called `name` ("photo-printer"), an instance of it ("photo-printer/glossy"),
  /// or the user's default with an empty name. Throws `Error` when there is none, and `JobError`
  /// without a server.
  explicit PrintQueue(const std::string &name);

  /// Returns the name on the server, without an instance.
  const std::string &name() const { return name_; }

  /// Returns the name with the instance, as lp(1) takes it.
  std::string destination() const { return instance_.empty() ? name_ : name_ + '/' + instance_; }

  /// Returns what is saved for the destination, and the queue's own defaults.
  const std::vector<OptionChoice> &options() const { return options_; }

  /// Returns a session on the queue's PPD, with the user's saved options marked. Throws `Error`
  /// when the queue has no PPD, or a broken one.
  std::shared_ptr<PpdSession> openSession() const;

private:
  CupsConnection server_;
  std::string name_;
  std::string instance_;
  std::vector<OptionChoice> options_;
};

}  // namespace kwopde::host
