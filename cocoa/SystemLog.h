// The system log of an AppKit process.
#pragma once

#include "platform/LogSink.h"

namespace kwopde::cocoa {

/// Writes with NSLog, which adds the time and the process. Bytes that are not UTF-8 (a PPD can hold
/// any) show as U+FFFD.
class SystemLog final : public LogSink {
public:
  void writeLine(std::string_view line) override;
};

}  // namespace kwopde::cocoa
