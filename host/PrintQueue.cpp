#include "host/PrintQueue.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <ctime>

#include "host/Error.h"

namespace kwopde::host {

namespace {

constexpr int kConnectMilliseconds = 5000;
constexpr double kAnswerSeconds = 30;

/// The PPD of a queue, as a file that is gone again with this object.
class TemporaryPpd {
public:
  TemporaryPpd(http_t *server, const std::string &queue) {
    std::time_t modified = 0;
    const http_status_t status =
        cupsGetPPD3(server, queue.c_str(), &modified, path_.data(), path_.size());
    if (status != HTTP_STATUS_OK)
      throw Error(
          fmt::format("the printer {} has no PPD, so it has no panels: choose another, or "
                      "set it up with a PPD (lpadmin -p {} -P FILE)",
                      queue, queue));
  }
  TemporaryPpd(const TemporaryPpd &) = delete;
  TemporaryPpd &operator=(const TemporaryPpd &) = delete;
  ~TemporaryPpd() { unlink(path_.data()); }

  std::string path() const { return path_.data(); }

private:
  std::array<char, 1024> path_{};  // cupsGetPPD3() cuts a longer path of a temporary file
};

}  // namespace

CupsConnection::CupsConnection()
    : http_(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                         kConnectMilliseconds, nullptr)) {
  if (!http_)
    throw JobError(fmt::format("there is no CUPS server at {}:{}: start it, or set CUPS_SERVER",
                               cupsServer(), ippPort()));
  httpSetTimeout(http_.get(), kAnswerSeconds, nullptr, nullptr);
}

PrintQueue::PrintQueue(const std::string &name) {
  const auto slash = std::min(name.find('/'), name.size());
  const std::string queue = name.substr(0, slash);
  const std::string instance = name.substr(std::min(slash + 1, name.size()));
  cups_dest_t *const dest = cupsGetNamedDest(server_.get(), queue.empty() ? nullptr : queue.c_str(),
                                             instance.empty() ? nullptr : instance.c_str());
  if (!dest)
    throw Error(name.empty() ? "there is no default printer: name one with --printer, or a PPD "
                               "file with --ppd"
                             : fmt::format("there is no printer {}: lpstat -e lists them", name));
  name_ = dest->name;
  if (dest->instance) instance_ = dest->instance;
  for (int i = 0; i < dest->num_options; ++i)
    options_.push_back({dest->options[i].name, dest->options[i].value});
  cupsFreeDests(1, dest);
}

std::shared_ptr<PpdSession> PrintQueue::openSession() const {
  const TemporaryPpd file(server_.get(), name_);
  auto session = std::make_shared<PpdSession>(PpdFile::open(file.path()));
  session->markSaved(options_);
  return session;
}

}  // namespace kwopde::host
