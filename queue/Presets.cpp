#include "queue/Presets.h"

#include <cups/cups.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <strings.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "host/Error.h"
#include "queue/CupsConnection.h"

namespace kwopde::host {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t kLongestName = 127;
constexpr auto kLockTime = 10s;
constexpr int kMostWrites = 4;  // of settings, when an answer was lost

/// While it lives, no other process that has one writes saved options. It locks the person's home
/// folder, which leaves no file behind.
class Lock {
public:
  Lock() {
    const char *home = std::getenv("HOME");
    const char *folder = home && *home ? home : "/";
    file_ = open(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const auto end = std::chrono::steady_clock::now() + kLockTime;
    while (file_ >= 0 && flock(file_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
      if (std::chrono::steady_clock::now() > end) {
        close(file_);
        throw Error("saved settings are being written by another program: try again");
      } else {
        std::this_thread::sleep_for(20ms);
      }
    if (file_ < 0) throw Error(fmt::format("{}: {}", folder, std::strerror(errno)));
  }
  Lock(const Lock &) = delete;
  Lock &operator=(const Lock &) = delete;
  ~Lock() { close(file_); }

private:
  int file_;
};

/// All printers of the server, with what the person has saved for them.
class Destinations {
public:
  /// Throws `JobError` when the server does not tell of `queue`.
  Destinations(const std::string &queue, const GoesOn &goesOn) : server_(goesOn), queue_(queue) {
    const NoOtherConnection only;
    count_ = cupsGetDests2(server_.get(), &list_);
    if (find({})) return;
    cupsFreeDests(count_, list_);
    throw JobError(fmt::format("the CUPS server did not tell of the printer {}", queue));
  }
  Destinations(const Destinations &) = delete;
  Destinations &operator=(const Destinations &) = delete;
  ~Destinations() { cupsFreeDests(count_, list_); }

  std::vector<std::string> instances() const {
    std::vector<std::string> names;
    for (const cups_dest_t *dest = list_; dest != list_ + count_; ++dest)
      if (dest->instance && strcasecmp(dest->name, queue_.c_str()) == 0)
        names.emplace_back(dest->instance);
    std::sort(names.begin(), names.end());
    return names;
  }

  /// Returns the destination of `instance`, or with an empty one the queue's own; null when there
  /// is none.
  cups_dest_t *find(const std::string &instance) const {
    return cupsGetDest(queue_.c_str(), instance.empty() ? nullptr : instance.c_str(), count_,
                       list_);
  }

  void set(const std::string &instance, const std::vector<OptionChoice> &options) {
    if (!find(instance)) count_ = cupsAddDest(queue_.c_str(), instance.c_str(), count_, &list_);
    cups_dest_t *dest = find(instance);
    if (!dest) throw std::bad_alloc();
    cupsFreeOptions(dest->num_options, dest->options);
    dest->num_options = 0;
    dest->options = nullptr;
    for (const auto &[key, choice] : options)
      dest->num_options =
          cupsAddOption(key.c_str(), choice.c_str(), dest->num_options, &dest->options);
  }

  void remove(const std::string &instance) {
    count_ = cupsRemoveDest(queue_.c_str(), instance.c_str(), count_, &list_);
  }

  void write() {
    const NoOtherConnection only;
    // The library asks for the printers once more before it writes.
    for (int writes = 1; cupsSetDests2(server_.get(), count_, list_) != 0; ++writes) {
      const bool isAnswered = cupsLastError() < IPP_STATUS_REDIRECTION_OTHER_SITE;
      const char *const why = isAnswered ? std::strerror(errno) : cupsLastErrorString();
      if (isAnswered || writes == kMostWrites)
        throw Error(fmt::format("the settings could not be saved: {}", why));
    }
  }

private:
  CupsConnection server_;
  std::string queue_;
  cups_dest_t *list_ = nullptr;
  int count_ = 0;
};

/// Throws `Error` when the library did not keep `options` as they are: on a full disk, or since it
/// leaves out what the server gives every job, though the queue's own saved options hold another
/// choice.
void expectSaved(const std::string &queue, const std::string &name,
                 const std::vector<OptionChoice> &options, const GoesOn &goesOn) {
  const Destinations written(queue, goesOn);
  const cups_dest_t *dest = written.find(name);
  for (const auto &[key, choice] : options) {
    const char *kept =
        dest ? cupsGetOption(key.c_str(), dest->num_options, dest->options) : nullptr;
    if (kept && strcasecmp(kept, choice.c_str()) == 0) continue;
    throw Error(fmt::format("{}={} could not be saved for the printer {}; {} is", key, choice,
                            queue, kept ? kept : "nothing"));
  }
}

}  // namespace

std::vector<std::string> Presets::names() const {
  return Destinations(queue_, goesOn_).instances();
}

void Presets::save(const std::string &name, const std::vector<OptionChoice> &options) const {
  if (!name.empty() && !isName(name)) throw Error(fmt::format("{}: not a name for a preset", name));
  const Lock lock;
  Destinations before(queue_, goesOn_);
  Destinations destinations(queue_, goesOn_);
  destinations.set(name, options);
  try {
    destinations.write();
    expectSaved(queue_, name, options, goesOn_);
  } catch (const Error &) {
    // What was saved fitted on the disk.
    try {
      before.write();
    } catch (const Error &) {
    }
    throw;
  }
}

void Presets::remove(const std::string &name) const {
  const Lock lock;
  Destinations destinations(queue_, goesOn_);
  if (name.empty())
    destinations.set({}, {});
  else
    destinations.remove(name);
  destinations.write();
}

bool Presets::isName(const std::string &name) {
  return !name.empty() && name.size() <= kLongestName &&
         std::none_of(name.begin(), name.end(), [](unsigned char letter) {
           return letter <= ' ' || letter == 0x7F || letter == '/' || letter == '#';
         });
}

}  // namespace kwopde::host
