// The host's own lines in the trace: what the panels cannot know of a dialog.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/PpdSession.h"
#include "platform/LogSink.h"

namespace kwopde::host {

/// Tells which printer and PPD a session is for, how every request was answered and why, and what a
/// job carries. A line reads "HOST self(<PpdSession: 0x55d0>) request key=pageScale wanted=9 …":
/// the session's address is that in the panels' lines, and values with blanks are in double quotes.
class HostLog final : public SessionObserver {
public:
  /// Writes to `sink`, or to the system log when that is null, from now on; begins with a line of
  /// what was opened. Both are borrowed.
  HostLog(LogSink *sink, PpdSession &session);
  ~HostLog() override;

  void requestWasAnswered(const std::string *key, const std::string *choice,
                          const Answer &answer) override;
  void willAnnounce(const OptionChoice &change) override;

  /// Tells what a job is about to carry.
  void carries(const std::vector<OptionChoice> &options);

  /// Tells of the job `id` that the server has confirmed, or why there is none.
  void jobWasSent(int id);
  void jobFailed(std::string_view why);

private:
  struct Fact {
    std::string_view name;
    std::string value;
  };
  void write(std::string_view what, const std::vector<Fact> &facts);
  std::string listText(const std::vector<OptionChoice> &choices) const;
  std::string shown(const std::string &key, const std::string &choice) const;

  LogSink *sink_;
  PpdSession &session_;
};

}  // namespace kwopde::host
