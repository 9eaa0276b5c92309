// A connection to the CUPS server, on which nothing is waited for without an end.
#pragma once

#include <cups/cups.h>

#include <chrono>
#include <memory>
#include <string>

#include "host/Stream.h"
#include "queue/ThreadAccess.h"

namespace kwopde::host {

struct DeleteIpp {
  void operator()(ipp_t *message) const { ippDelete(message); }
};
using IppMessage = std::unique_ptr<ipp_t, DeleteIpp>;

/// A connection to the CUPS server of the environment (CUPS_SERVER). It takes a place on a server
/// that has a limited number of them: keep it only while it is used.
///
/// Each question, from its first byte to the last of its answer, has 15 seconds, or those of
/// KWOPDE_TIMEOUT. So has finding and reaching the server. An answer has 32 MB.
class CupsConnection {
public:
  /// Calls `goesOn` about every 50 ms while it waits; once that is false, an answer on its way has
  /// 0.4 s left to arrive. Throws `JobError` when there is no server, and `Error` when
  /// KWOPDE_TIMEOUT is not a number of seconds.
  explicit CupsConnection(GoesOn goesOn = {});
  CupsConnection(const CupsConnection &) = delete;
  CupsConnection &operator=(const CupsConnection &) = delete;

  http_t *get() const { return http_.get(); }

  /// Asks `request` and returns the answer, whatever its status. Throws `JobError` when none came.
  IppMessage ask(const IppMessage &request, const std::string &resource);

  /// Starts a request that data follows. Returns false when the server does not take it; so does
  /// `write`, which gives a block of the data as much time as a question. `answer` ends the request
  /// either way, and answers as `ask` does.
  bool start(const IppMessage &request, const std::string &resource);
  bool write(const char *data, std::size_t size);
  IppMessage answer();

  /// Fetches a file into memory. Returns null when the server has none. Throws `JobError` when it
  /// did not come whole.
  Stream fetch(const std::string &resource);

private:
  struct Close {
    void operator()(http_t *http) const { httpClose(http); }
  };

  void begin();
  bool hasAddress();
  bool mayWait();
  bool isInTime();
  bool reconnect();
  bool post(const IppMessage &request, const std::string &resource, std::size_t length);
  IppMessage readAnswer();
  ssize_t read(char *buffer, std::size_t size);
  void readHeader();
  bool canRepeat(const char *method, const std::string &resource);
  [[noreturn]] void fail() const;

  GoesOn goesOn_;
  int seconds_;
  std::chrono::steady_clock::time_point deadline_;
  std::size_t received_ = 0;  // bytes of the current answer
  bool stopped_ = false;
  bool expired_ = false;
  http_status_t status_ = HTTP_STATUS_NONE;
  std::unique_ptr<http_t, Close> http_;
};

/// While it lives, what the library would ask on a connection of its own, without a deadline, fails
/// at once. For the thread that made it.
class NoOtherConnection {
public:
  NoOtherConnection();
  NoOtherConnection(const NoOtherConnection &) = delete;
  NoOtherConnection &operator=(const NoOtherConnection &) = delete;
  ~NoOtherConnection();

private:
  std::string server_;
  int port_;
};

/// Returns a request about the printer `queue`, from this user.
IppMessage requestAbout(const std::string &queue, ipp_op_t operation);

/// Returns what the server says is wrong; empty when `answer` tells of success.
std::string faultIn(const IppMessage &answer);

}  // namespace kwopde::host
