// A host that marks what it is asked for and remembers what was asked; and a trace that is kept.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/HostCallback.h"
#include "platform/LogSink.h"
#include "tests/support/TestPpd.h"

namespace kwopde::test {

class RecordingHost final : public HostCallback {
public:
  explicit RecordingHost(ppd_file_t *ppd) : ppd_(ppd) {}
  ~RecordingHost() override {
    if (atEnd) atEnd();
  }

  std::string_view className() const override { return "RecordingHost"; }
  ppd_file_t *ppdFile() override {
    asked.emplace_back("ppdFile");
    return ppd_;
  }
  bool respondsToSelector(std::string_view) const override {
    asked.emplace_back("respondsToSelector");
    return true;
  }
  bool willChangePPDOptionKeyValue(const std::string *key, const std::string *choice) override;

  bool refuses = false;
  std::function<void()> atEnd;
  mutable std::vector<std::string> asked;  // operations without requests
  std::vector<std::string> requests;       // "KEY=CHOICE", with nil for null

private:
  ppd_file_t *ppd_;
};

/// Keeps the trace while it lives.
class TraceRecorder final : public LogSink {
public:
  TraceRecorder();
  ~TraceRecorder() override;

  void writeLine(std::string_view line) override { lines_.emplace_back(line); }

  /// The lines since the last call, with every address as "0x1" and null as "0x0".
  std::vector<std::string> take();

  /// The same without what every line has: indentation and "self(...)"; "BEGIN panelName:".
  std::vector<std::string> takeMessages();

private:
  LogSink *before_;
  std::vector<std::string> lines_;
};

}  // namespace kwopde::test
