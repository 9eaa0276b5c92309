// How a thread reaches the CUPS server.
#pragma once

#include <cups/cups.h>

#include <functional>
#include <string>

namespace kwopde::host {

/// Asked now and then by what waits for a server: false ends the waiting. An empty function goes
/// on.
using GoesOn = std::function<bool()>;

/// Which server the CUPS library asks in a thread, and as whom. The library keeps that for every
/// thread, and lets a new one begin with what the environment says.
class ThreadAccess {
public:
  /// Gives what is asked for, "Password for anna on localhost?": null for no password. What it
  /// returns is the callee's. Arguments as those of `cups_password_cb2_t`.
  using Password = std::function<const char *(const char *prompt, http_t *http, const char *method,
                                              const char *resource)>;

  /// Learns from this thread.
  ThreadAccess();

  /// Sets this thread up alike; `password` is borrowed and has to outlive the thread's questions.
  void use(const Password &password) const;

private:
  std::string server_;
  int port_;
  std::string user_;
  http_encryption_t encryption_;
};

}  // namespace kwopde::host
