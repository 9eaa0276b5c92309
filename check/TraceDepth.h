// Follows the call tree in a trace.
#pragma once

#include <algorithm>

#include "platform/LogSink.h"

namespace kwopde::check {

class TraceDepth final : public LogSink {
public:
  void writeLine(std::string_view line) override {
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    if (line.starts_with("BEGIN self(")) ++depth_;
    if (line.starts_with("END self(")) --depth_;
    ++lines_;
  }

  /// Calls that have begun and not ended.
  int depth() const { return depth_; }
  long lines() const { return lines_; }

private:
  int depth_ = 0;
  long lines_ = 0;
};

}  // namespace kwopde::check
