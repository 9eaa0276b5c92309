// Where a module's trace goes, for a while.
#pragma once

#include "platform/PlugIn.h"

namespace kwopde::host {

/// Sends the trace of `module` to `sink` while this lives, and then where it went before. Both are
/// borrowed; null stands for the module's own sink.
class TraceTo {
public:
  TraceTo(PlugInModule &module, LogSink *sink)
      : module_(module), before_(module.setLogSink(sink)) {}
  TraceTo(const TraceTo &) = delete;
  TraceTo &operator=(const TraceTo &) = delete;
  ~TraceTo() { module_.setLogSink(before_); }

private:
  PlugInModule &module_;
  LogSink *before_;
};

/// Returns where the trace of `module` goes, borrowed; null for the module's own sink.
inline LogSink *traceSinkOf(PlugInModule &module) {
  LogSink *const sink = module.setLogSink(nullptr);
  module.setLogSink(sink);
  return sink;
}

/// Lets the trace of `module` go nowhere while this lives.
class Untraced {
public:
  explicit Untraced(PlugInModule &module) : trace_(module, &nowhere_) {}

private:
  class Nowhere final : public LogSink {
    void writeLine(std::string_view) override {}
  };
  Nowhere nowhere_;
  TraceTo trace_;
};

}  // namespace kwopde::host
