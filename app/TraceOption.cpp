#include "app/TraceOption.h"

#include <fmt/format.h>
#include <spdlog/logger.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/sinks/stdout_sinks.h>
#include <spdlog/sinks/syslog_sink.h>

#include <cerrno>
#include <cstring>
#include <fstream>

#include "app/Output.h"
#include "host/Error.h"

namespace kwopde::app {

namespace {

class LoggerSink final : public LogSink {
public:
  explicit LoggerSink(spdlog::sink_ptr sink) : logger_("kwopde", std::move(sink)) {
    logger_.set_pattern("%Y-%m-%d %H:%M:%S.%e %n[%P]: %v");
    logger_.flush_on(spdlog::level::info);
    logger_.set_error_handler([](const std::string &why) { noteLostOutput("the trace: " + why); });
  }

  void writeLine(std::string_view line) override {
    logger_.log(spdlog::level::info, spdlog::string_view_t(line.data(), line.size()));
  }

private:
  spdlog::logger logger_;
};

spdlog::sink_ptr sinkFor(const std::string &where) {
  if (where == "stderr") return std::make_shared<spdlog::sinks::stderr_sink_st>();
  if (where == "syslog")
    return std::make_shared<spdlog::sinks::syslog_sink_st>("kwopde", LOG_PID, LOG_USER, false);
  // The library would make the folder.
  if (!std::ofstream(where, std::ios::app))
    throw host::Error(fmt::format("{}: {}", where, std::strerror(errno)));
  return std::make_shared<spdlog::sinks::basic_file_sink_st>(where);
}

}  // namespace

Option traceOption(std::string &where) {
  return {"--trace", &where, "FILE|stderr|syslog",
          "Where the trace goes: stderr, syslog, or a file to append to"};
}

std::unique_ptr<LogSink> openTrace(const std::string &where) {
  try {
    return std::make_unique<LoggerSink>(sinkFor(where));
  } catch (const spdlog::spdlog_ex &) {
    throw host::Error(where + ": the trace cannot be written");
  }
}

}  // namespace kwopde::app
