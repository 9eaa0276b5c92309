// The signals that ask a process to end, heard while it has something to clear away first.
#pragma once

#include <array>
#include <csignal>

namespace kwopde::host {

/// While it lives, SIGINT, SIGTERM, SIGHUP and SIGQUIT are noted instead of ending the process. One
/// that was ignored before stays ignored. The second of a kind ends the process. For the main
/// thread.
class EndingSignals {
public:
  EndingSignals();
  EndingSignals(const EndingSignals &) = delete;
  EndingSignals &operator=(const EndingSignals &) = delete;
  ~EndingSignals();

  /// Returns whether one came while this object lived.
  bool wereHeard() const;

private:
  std::array<struct sigaction, 4> before_{};
};

}  // namespace kwopde::host
