// Where the trace goes, as chosen on the command line.
#pragma once

#include <memory>
#include <string>

#include "app/Command.h"
#include "platform/LogSink.h"

namespace kwopde::app {

/// Returns the option --trace, which sets `where`, borrowed.
Option traceOption(std::string &where);

/// Returns a sink for `where`: "stderr", "syslog", or the name of a file to append to. Throws
/// `Error` when the file cannot be written.
std::unique_ptr<LogSink> openTrace(const std::string &where);

}  // namespace kwopde::app
