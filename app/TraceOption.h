// Where the trace goes, as chosen on the command line.
#pragma once

#include <CLI/App.hpp>
#include <memory>
#include <string>

#include "platform/LogSink.h"

namespace kwopde::app {

/// Adds --trace to `command`; it sets `where`.
CLI::Option *addTraceOption(CLI::App &command, std::string &where);

/// Returns a sink for `where`: "stderr", "syslog", or the name of a file to append to. Throws
/// `Error` when the file cannot be written.
std::unique_ptr<LogSink> openTrace(const std::string &where);

}  // namespace kwopde::app
