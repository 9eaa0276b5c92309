#include "queue/CupsConnection.h"

#include <fmt/format.h>
#include <netdb.h>
#include <strings.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <future>
#include <string_view>
#include <thread>
#include <utility>

#include "host/Error.h"

namespace kwopde::host {

namespace {

using std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kConnectTry = 1s;
constexpr double kPollSeconds = 0.05;
constexpr auto kLastWait = 400ms;
constexpr int kMostRepeats = 3;

int answerSeconds() {
  const char *text = std::getenv("KWOPDE_TIMEOUT");
  if (!text || !*text) return 15;
  int seconds = 0;
  const char *end = text + std::strlen(text);
  const auto [rest, error] = std::from_chars(text, end, seconds);
  if (error != std::errc() || rest != end || seconds < 1 || seconds > 3600)
    throw Error(fmt::format("KWOPDE_TIMEOUT={}: not a number of seconds from 1 to 3600", text));
  return seconds;
}

std::string serverName() {
  const std::string server = cupsServer();
  return server.starts_with('/') ? server : fmt::format("{}:{}", server, ippPort());
}

}  // namespace

CupsConnection::CupsConnection(GoesOn goesOn)
    : goesOn_(std::move(goesOn)), seconds_(answerSeconds()) {
  begin();
  const bool isKnown = hasAddress();
  while (!http_) {
    // Again and again, since a server that is busy may not have heard the first time.
    const auto start = steady_clock::now();
    if (isKnown)
      http_.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                               static_cast<int>(kConnectTry.count()), nullptr));
    const bool isRefused = !http_ && steady_clock::now() - start < kConnectTry;
    if (isRefused || (!http_ && !mayWait()))
      throw JobError(
          fmt::format("there is no CUPS server at {}: start it, or set CUPS_SERVER", serverName()));
  }
  const auto onWait = [](http_t *, void *self) -> int {
    return static_cast<CupsConnection *>(self)->mayWait() ? 1 : 0;
  };
  httpSetTimeout(http_.get(), kPollSeconds, onWait, this);
}

/// Returns whether the server's name was found in time.
bool CupsConnection::hasAddress() {
  const std::string server = cupsServer();
  if (server.starts_with('/')) return true;
  // The resolver cannot be interrupted, so it may outlive this. What it finds is found again.
  std::packaged_task<bool()> resolve([server] {
    addrinfo *found = nullptr;
    const bool isFound = getaddrinfo(server.c_str(), nullptr, nullptr, &found) == 0;
    if (isFound) freeaddrinfo(found);
    return isFound;
  });
  auto answer = resolve.get_future();
  std::thread(std::move(resolve)).detach();
  const std::chrono::duration<double> poll(kPollSeconds);
  while (answer.wait_for(poll) != std::future_status::ready)
    if (!mayWait()) return false;
  return answer.get();
}

void CupsConnection::begin() {
  const auto now = steady_clock::now();
  deadline_ = stopped_ ? now + kLastWait : now + std::chrono::seconds(seconds_);
  received_ = 0;
  expired_ = false;
  status_ = HTTP_STATUS_NONE;
}

bool CupsConnection::mayWait() {
  if (!stopped_ && goesOn_ && !goesOn_()) {
    stopped_ = true;
    deadline_ = std::min(deadline_, steady_clock::now() + kLastWait);
  }
  return isInTime();
}

bool CupsConnection::isInTime() {
  expired_ = expired_ || steady_clock::now() >= deadline_;
  return !expired_;
}

bool CupsConnection::reconnect() {
  return httpReconnect2(http_.get(), static_cast<int>(kConnectTry.count()), nullptr) == 0;
}

bool CupsConnection::post(const IppMessage &request, const std::string &resource,
                          std::size_t length) {
  begin();
  http_t *const http = http_.get();
  if (strcasecmp(httpGetField(http, HTTP_FIELD_CONNECTION), "close") == 0 && !reconnect())
    return false;
  httpClearFields(http);
  httpSetField(http, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
  httpSetField(http, HTTP_FIELD_AUTHORIZATION, httpGetAuthString(http));
  httpSetLength(http, length);
  if (httpPost(http, resource.c_str()) != 0) return false;
  ippSetState(request.get(), IPP_STATE_IDLE);
  ipp_state_t state = IPP_STATE_IDLE;
  while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR) state = ippWrite(http, request.get());
  return state == IPP_STATE_DATA;
}

IppMessage CupsConnection::ask(const IppMessage &request, const std::string &resource) {
  for (int repeats = 0;; ++repeats) {
    if (post(request, resource, ippLength(request.get())))
      if (IppMessage message = readAnswer()) return message;
    if (repeats == kMostRepeats || !canRepeat("POST", resource)) fail();
  }
}

bool CupsConnection::start(const IppMessage &request, const std::string &resource) {
  return post(request, resource, CUPS_LENGTH_VARIABLE);
}

bool CupsConnection::write(const char *data, std::size_t size) {
  begin();
  return httpWrite2(http_.get(), data, size) == static_cast<ssize_t>(size);
}

IppMessage CupsConnection::answer() {
  begin();
  httpWrite2(http_.get(), "", 0);  // ends the data
  if (IppMessage message = readAnswer()) return message;
  fail();
}

void CupsConnection::readHeader() {
  do status_ = httpUpdate(http_.get());
  while (status_ == HTTP_STATUS_CONTINUE && isInTime());
}

IppMessage CupsConnection::readAnswer() {
  readHeader();
  if (status_ != HTTP_STATUS_OK) return {};
  // The library asks for a byte or two at a time, and each would be a call of the system.
  struct Blocks {
    CupsConnection &server;
    std::array<char, 16384> bytes{};
    std::string_view left{};

    bool fill() {
      const ssize_t size = server.read(bytes.data(), bytes.size());
      left = {bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0))};
      return size > 0;
    }
  } blocks{*this};
  const auto readAll = [](void *source, ipp_uchar_t *buffer, std::size_t size) -> ssize_t {
    auto &from = *static_cast<Blocks *>(source);
    for (std::size_t done = 0; done < size;) {
      if (from.left.empty() && !from.fill()) return -1;
      const auto part = from.left.copy(reinterpret_cast<char *>(buffer) + done, size - done);
      from.left.remove_prefix(part);
      done += part;
    }
    return static_cast<ssize_t>(size);
  };
  IppMessage message(ippNew());
  if (ippReadIO(&blocks, readAll, 1, nullptr, message.get()) != IPP_STATE_DATA) return {};
  while (httpGetState(http_.get()) != HTTP_STATE_WAITING && blocks.fill()) {
  }
  return message;
}

ssize_t CupsConnection::read(char *buffer, std::size_t size) {
  if (!isInTime() || received_ > kMostBytes) return -1;
  const ssize_t count = httpRead2(http_.get(), buffer, size);
  if (count > 0) received_ += static_cast<std::size_t>(count);
  return count;
}

bool CupsConnection::canRepeat(const char *method, const std::string &resource) {
  if (status_ == HTTP_STATUS_UNAUTHORIZED)
    return cupsDoAuthentication(http_.get(), method, resource.c_str()) == 0 && reconnect();
  return status_ == HTTP_STATUS_UPGRADE_REQUIRED &&
         httpEncryption(http_.get(), HTTP_ENCRYPTION_REQUIRED) == 0;
}

Stream CupsConnection::fetch(const std::string &resource) {
  http_t *const http = http_.get();
  for (int repeats = 0;; ++repeats) {
    begin();
    httpClearFields(http);
    httpSetField(http, HTTP_FIELD_AUTHORIZATION, httpGetAuthString(http));
    if (httpGet(http, resource.c_str()) == 0) readHeader();
    if (status_ == HTTP_STATUS_OK) break;
    if (status_ == HTTP_STATUS_NOT_FOUND) return {};
    if (repeats == kMostRepeats || !canRepeat("GET", resource)) fail();
  }
  Stream file = makeMemoryFile(resource);
  std::array<char, 16384> block;
  ssize_t size = 0;
  bool isKept = true;
  while (httpGetState(http) != HTTP_STATE_WAITING && (size = read(block.data(), block.size())) > 0)
    isKept &= std::fwrite(block.data(), 1, static_cast<std::size_t>(size), file.get()) ==
              static_cast<std::size_t>(size);
  // The library takes an answer for done when all that the server announced has come.
  if (httpGetState(http) != HTTP_STATE_WAITING) fail();
  if (!isKept || std::fflush(file.get()) != 0 || std::fseek(file.get(), 0, SEEK_SET) != 0)
    throw Error(fmt::format("no memory for {}: {}", resource, std::strerror(errno)));
  return file;
}

void CupsConnection::fail() const {
  std::string what = "closed the connection";
  if (stopped_)
    what = "was not waited for";
  else if (expired_)
    what = fmt::format("did not answer within {} s", seconds_);
  else if (received_ > kMostBytes)
    what = fmt::format("answered more than {} MB", kMostBytes >> 20);
  else if (status_ >= HTTP_STATUS_BAD_REQUEST)
    what = fmt::format("answered: {}", httpStatus(status_));
  throw JobError(fmt::format("the CUPS server at {} {}", serverName(), what));
}

NoOtherConnection::NoOtherConnection() : server_(cupsServer()), port_(ippPort()) {
  cupsSetServer("/dev/null");
}

NoOtherConnection::~NoOtherConnection() {
  cupsSetServer(server_.c_str());
  ippSetPort(port_);
}

IppMessage requestAbout(const std::string &queue, ipp_op_t operation) {
  IppMessage request(ippNewRequest(operation));
  std::array<char, HTTP_MAX_URI> uri;
  httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr,
                   "localhost", 0, "/printers/%s", queue.c_str());
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.data());
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  return request;
}

std::string faultIn(const IppMessage &answer) {
  const ipp_status_t status = ippGetStatusCode(answer.get());
  if (status <= IPP_STATUS_OK_EVENTS_COMPLETE) return {};
  ipp_attribute_t *message = ippFindAttribute(answer.get(), "status-message", IPP_TAG_TEXT);
  std::string text = message ? ippGetString(message, 0, nullptr) : ippErrorString(status);
  if (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace kwopde::host
