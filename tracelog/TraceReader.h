// Reads the trace of print dialogs back from a log.
#pragma once

#include <istream>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kwopde::tracelog {

/// A line of the trace, and what the log says of it.
struct Line {
  enum class Marker { begin, end, log, host };

  std::string time;  // as the log has it; empty when it does not say
  long process = 0;  // 0 when the log does not say
  int depth = 0;     // how many calls it is inside of
  Marker marker = Marker::log;
  std::string object;  // "<MediaPDE: 0x55d0>"; empty for none
  std::string text;    // what is told of the object
};

/// What the host has answered to a panel.
struct Request {
  std::string time;
  std::string panel;  // the class of the panel that asked; empty when the host asked itself
  std::string key;
  std::string wanted;
  std::string answer;  // "granted", or why not
  std::string detail;  // limits, conflicts, what is marked instead

  bool isRefused() const { return answer != "granted"; }
};

/// A plug-in with its panels, from its host's question for them on; or a job without panels.
struct Dialog {
  std::string time;  // of its first line
  long process = 0;
  std::map<std::string, std::string> facts;  // "version", "printer", "ppd", "options", "job", "why"
  std::vector<Request> requests;
  std::vector<Line> lines;

  /// Returns the fact; empty when the host did not write it.
  std::string fact(const std::string &name) const;
};

/// Returns the line of the trace in `logged`, a line of a log with whatever stands before the
/// trace; none when there is none.
std::optional<Line> parseLine(std::string_view logged);

/// Returns the dialogs in a log, in the order of their first lines: a file of --trace, a system
/// log, or what `journalctl -o export` writes. The lines of other programs are passed over.
std::vector<Dialog> readDialogs(std::istream &log);

}  // namespace kwopde::tracelog
