#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "app/Commands.h"
#include "app/Files.h"
#include "app/Output.h"
#include "host/Error.h"
#include "platform/Escaped.h"
#include "tracelog/TraceReader.h"

namespace kwopde::app {

namespace {

using tracelog::Dialog;
using tracelog::Line;
using tracelog::Request;

struct TraceOptions {
  std::string file;
  bool refused = false;
  bool tree = false;
  bool full = false;
  std::vector<std::string> diff;  // numbers of dialogs, two or none
};

/// How a terminal shows a text. Other outputs, and people who set NO_COLOR, get none of it.
enum class Look { plain, heading, good, bad, faint };

/// Returns `text` on one line as `look` has it.
std::string shown(std::string_view text, Look look) {
  static const bool isColoured = isatty(STDOUT_FILENO) != 0 && !std::getenv("NO_COLOR");
  constexpr std::string_view kCodes[] = {"", "1", "32", "31", "2"};
  const std::string_view code = kCodes[static_cast<int>(look)];
  std::string escaped;
  appendEscaped(escaped, text);
  return isColoured && !code.empty() ? fmt::format("\x1b[{}m{}\x1b[0m", code, escaped) : escaped;
}

void write(const std::string &line) {
  writeResult(line + '\n');
}

std::string headingOf(const Dialog &dialog, std::size_t number) {
  std::string heading = fmt::format("Dialog {}", number);
  if (!dialog.time.empty()) heading += "  " + dialog.time;
  if (dialog.process != 0) heading += fmt::format("  process {}", dialog.process);
  for (const char *name : {"printer", "ppd", "version"})
    if (const std::string fact = dialog.fact(name); !fact.empty())
      heading += fmt::format("  {} {}", name, fact);
  return heading;
}

/// Returns the time of day in a log's time.
std::string_view timeOfDay(std::string_view time) {
  const auto start = time.find_last_of(" T");
  return start == time.npos ? time : time.substr(start + 1);
}

/// Writes rows below their titles, each column as wide as its widest cell. The last is the
/// request's answer, in its colour.
void writeTable(const std::vector<Request> &requests) {
  std::vector<std::vector<std::string>> rows{{"time", "panel", "option", "wanted", "answer"}};
  for (const Request &request : requests)
    rows.push_back({std::string(timeOfDay(request.time)),
                    request.panel.empty() ? "-" : request.panel, request.key, request.wanted,
                    request.detail.empty()
                        ? request.answer
                        : fmt::format("{} ({})", request.answer, request.detail)});
  std::vector<std::size_t> widths(rows.front().size());
  for (const auto &row : rows)
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  for (std::size_t r = 0; r < rows.size(); ++r) {
    std::string line;
    for (std::size_t i = 0; i + 1 < widths.size(); ++i)
      line += fmt::format("  {:{}}", rows[r][i], widths[i]);
    const Look ofAnswer = r > 0 && requests[r - 1].isRefused() ? Look::bad : Look::good;
    write(shown(line, r == 0 ? Look::faint : Look::plain) + "  " +
          shown(rows[r].back(), r == 0 ? Look::faint : ofAnswer));
  }
}

void writeSummary(const Dialog &dialog, bool onlyRefused) {
  std::vector<Request> requests = dialog.requests;
  if (onlyRefused)
    std::erase_if(requests, [](const Request &request) { return !request.isRefused(); });
  if (!requests.empty()) writeTable(requests);
  if (onlyRefused) return;
  if (const std::string options = dialog.fact("options"); dialog.facts.contains("options"))
    write(shown("  the job carries " + (options.empty() ? "nothing" : options), Look::plain));
  if (const std::string job = dialog.fact("job"); !job.empty())
    write(shown("  sent as job " + job, Look::good));
  if (const std::string why = dialog.fact("why"); !why.empty())
    write(shown("  not sent: " + why, Look::bad));
}

/// Writes the calls, indented; unless `full`, without what a call of the host does inside.
void writeTree(const Dialog &dialog, bool full) {
  constexpr std::string_view kWords[] = {"BEGIN", "END", "LOG", "HOST"};
  int folded = 0;
  for (const Line &line : dialog.lines) {
    const bool isHosts = line.marker == Line::Marker::host;
    const bool isRefusal = line.text == "Request refused";
    if (!full && !isHosts && !isRefusal && (line.depth > 0 || line.marker != Line::Marker::begin)) {
      folded += line.depth > 0;
      continue;
    }
    if (folded > 0) write(shown(fmt::format("      … {} lines", folded), Look::faint));
    folded = 0;
    const std::string indent(static_cast<std::size_t>(2 + 4 * line.depth), ' ');
    write(shown(fmt::format("{}{} ", indent, kWords[static_cast<int>(line.marker)]), Look::faint) +
          shown(line.object, Look::faint) + " " +
          shown(line.text, isRefusal ? Look::bad
                           : isHosts ? Look::heading
                                     : Look::plain));
  }
  if (folded > 0) write(shown(fmt::format("      … {} lines", folded), Look::faint));
}

/// Returns what the dialog asked for last, and what its job carried, by key.
std::map<std::string, std::string> settingsOf(const Dialog &dialog) {
  std::map<std::string, std::string> settings = dialog.facts;
  for (const Request &request : dialog.requests)
    settings[request.key] = request.isRefused() ? request.wanted + ", refused" : request.wanted;
  return settings;
}

/// Writes in what two dialogs differ. Returns whether they do.
bool writeDifference(const Dialog &first, const Dialog &second) {
  auto before = settingsOf(first);
  auto after = settingsOf(second);
  std::set<std::string> keys;
  for (const auto &settings : {before, after})
    for (const auto &[key, value] : settings) keys.insert(key);
  bool differ = false;
  for (const std::string &key : keys) {
    if (before.contains(key) && after.contains(key) && before[key] == after[key]) continue;
    differ = true;
    if (before.contains(key)) write(shown(fmt::format("- {}: {}", key, before[key]), Look::bad));
    if (after.contains(key)) write(shown(fmt::format("+ {}: {}", key, after[key]), Look::good));
  }
  return differ;
}

const Dialog &dialogAt(const std::vector<Dialog> &dialogs, const std::string &number) {
  for (std::size_t i = 0; i < dialogs.size(); ++i)
    if (number == std::to_string(i + 1)) return dialogs[i];
  throw host::Error(fmt::format("--diff {}: the dialogs are 1 to {}", number, dialogs.size()));
}

int readTrace(const TraceOptions &options) {
  TextSource source(options.file);
  const auto dialogs = tracelog::readDialogs(source.stream());
  if (dialogs.empty()) {
    tell("kwopde: {}: there is no dialog in it", source.name());
    return kNotDone;
  }
  if (!options.diff.empty()) {
    if (options.diff.size() != 2)
      throw host::Error("--diff: name two dialogs, as in --diff 1 --diff 2");
    const Dialog &first = dialogAt(dialogs, options.diff.front());
    return writeDifference(first, dialogAt(dialogs, options.diff.back())) ? kNotDone : kDone;
  }
  bool isFirst = true;
  for (std::size_t i = 0; i < dialogs.size(); ++i) {
    const Dialog &dialog = dialogs[i];
    const bool hasRefusal = std::any_of(dialog.requests.begin(), dialog.requests.end(),
                                        [](const Request &request) { return request.isRefused(); });
    if (options.refused && !hasRefusal) continue;
    if (!isFirst) write("");
    isFirst = false;
    write(shown(headingOf(dialog, i + 1), Look::heading));
    if (options.tree || options.full)
      writeTree(dialog, options.full);
    else
      writeSummary(dialog, options.refused);
  }
  return kDone;
}

}  // namespace

Command traceCommand() {
  const auto options = std::make_shared<TraceOptions>();
  return {
      "trace",
      "Reads a trace: what each dialog asked for, what was answered, what its job carries",
      {{"--refused", &options->refused, "", "Shows only what was refused, and why"},
       {"--tree", &options->tree, "", "Shows the calls of each dialog, folded"},
       {"--full", &options->full, "", "Shows all lines of the tree"},
       {"--diff", &options->diff, "N",
        "Shows in what two dialogs differ; given twice, with their numbers"},
       {"file", &options->file, "FILE",
        "A file of --trace, a system log, or what journalctl -o export writes; - is standard input",
        Option::Check::required}},
      [options] { return readTrace(*options); }};
}

}  // namespace kwopde::app
