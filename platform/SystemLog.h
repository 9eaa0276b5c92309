// The system log of a process without NSLog.
#pragma once

#include "platform/LogSink.h"

namespace kwopde {

/// Writes to syslog, which adds the time and the program; the process stands before each line. The
/// application's own openlog is left as it is.
class SystemLog : public LogSink {
public:
  void writeLine(std::string_view line) override;
};

}  // namespace kwopde
