#include "app/TraceOption.h"

#include <fmt/format.h>
#include <syslog.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <utility>

#include "app/Output.h"
#include "host/Error.h"
#include "host/Stream.h"

namespace kwopde::app {

namespace {

constexpr const char *kProgram = "kwopde";

/// Appends each line at once, with the time, the program and its process.
class FileSink final : public LogSink {
public:
  explicit FileSink(host::Stream file) : file_(std::move(file)) {}

  void writeLine(std::string_view line) override {
    timespec now{};
    std::tm local{};
    std::array<char, 32> time;
    clock_gettime(CLOCK_REALTIME, &now);
    std::strftime(time.data(), time.size(), "%Y-%m-%d %H:%M:%S", localtime_r(&now.tv_sec, &local));
    fmt::memory_buffer text;
    fmt::format_to(fmt::appender(text), "{}.{:03} {}[{}]: {}\n", time.data(), now.tv_nsec / 1000000,
                   kProgram, getpid(), line);
    if (std::fwrite(text.data(), 1, text.size(), file_.get()) != text.size() ||
        std::fflush(file_.get()) != 0)
      noteLostOutput(fmt::format("the trace: {}", std::strerror(errno)));
  }

private:
  host::Stream file_;
};

class SyslogSink final : public LogSink {
public:
  SyslogSink() { openlog(kProgram, LOG_PID, LOG_USER); }
  void writeLine(std::string_view line) override {
    syslog(LOG_INFO, "%.*s", static_cast<int>(line.size()), line.data());
  }
};

/// Opens a file for appending, or standard error once more. Null where that fails.
host::Stream openForAppending(const std::string &where) {
  if (where != "stderr") return host::Stream(std::fopen(where.c_str(), "a"));
  const int copy = dup(STDERR_FILENO);
  return host::Stream(copy < 0 ? nullptr : fdopen(copy, "a"));
}

}  // namespace

Option traceOption(std::string &where) {
  return {"--trace", &where, "FILE|stderr|syslog",
          "Where the trace goes: stderr, syslog, or a file to append to"};
}

std::unique_ptr<LogSink> openTrace(const std::string &where) {
  if (where == "syslog") return std::make_unique<SyslogSink>();
  host::Stream file = openForAppending(where);
  if (!file) throw host::Error(fmt::format("{}: {}", where, std::strerror(errno)));
  return std::make_unique<FileSink>(std::move(file));
}

}  // namespace kwopde::app
