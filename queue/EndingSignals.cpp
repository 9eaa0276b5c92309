#include "queue/EndingSignals.h"

namespace kwopde::host {

namespace {

constexpr std::array<int, 4> kSignals{SIGINT, SIGTERM, SIGHUP, SIGQUIT};

volatile std::sig_atomic_t heard = 0;

}  // namespace

EndingSignals::EndingSignals() {
  heard = 0;
  struct sigaction note{};
  note.sa_handler = [](int) { heard = 1; };
  note.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], nullptr, &before_[i]);
    if (before_[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &note, nullptr);
  }
}

EndingSignals::~EndingSignals() {
  for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &before_[i], nullptr);
}

bool EndingSignals::wereHeard() const {
  return heard != 0;
}

}  // namespace kwopde::host
