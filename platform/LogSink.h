// Where the trace's lines go.
#pragma once

#include <string_view>

namespace kwopde {

class LogSink {
public:
  LogSink() = default;
  LogSink(const LogSink &) = delete;
  LogSink &operator=(const LogSink &) = delete;
  virtual ~LogSink() = default;

  /// Takes one finished line, without a line end or another control character than tabs; `line` is
  /// valid only during the call. The sink adds its own prefix (time, process), and must not call
  /// the plug-in.
  virtual void writeLine(std::string_view line) = 0;
};

}  // namespace kwopde
