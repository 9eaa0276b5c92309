#include "tracelog/TraceReader.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <regex>
#include <utility>

namespace kwopde::tracelog {

namespace {

constexpr std::pair<std::string_view, Line::Marker> kMarkers[] = {{"BEGIN", Line::Marker::begin},
                                                                  {"END", Line::Marker::end},
                                                                  {"LOG", Line::Marker::log},
                                                                  {"HOST", Line::Marker::host}};

/// Blanks a level of depth.
constexpr std::size_t kIndent = 4;

/// Returns what stands between `before` and `after` in `text`; empty when it is not there.
std::string_view between(std::string_view text, std::string_view before, std::string_view after) {
  const auto start = text.find(before);
  if (start == text.npos) return {};
  text.remove_prefix(start + before.size());
  return text.substr(0, text.find(after));
}

long numberIn(std::string_view text) {
  long number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// Reads time and process from what a log puts before a line.
void readPrefix(std::string_view prefix, Line &line) {
  static const std::regex time(
      R"(\d{4}-\d\d-\d\d[ T]\d\d:\d\d:\d\d(\.\d+)?|[A-Z]\w\w +\d+ \d\d:\d\d:\d\d)");
  static const std::regex process(R"(\[(\d+)\])");
  std::match_results<std::string_view::const_iterator> found;
  if (std::regex_search(prefix.begin(), prefix.end(), found, time)) line.time = found.str();
  if (std::regex_search(prefix.begin(), prefix.end(), found, process))
    line.process = numberIn(found.str(1));
}

/// Returns the facts "name=value" in a host's line.
std::map<std::string, std::string> factsIn(std::string_view text) {
  std::map<std::string, std::string> facts;
  for (std::size_t sign; (sign = text.find('=')) != text.npos;) {
    const std::string_view before = text.substr(0, sign);
    const std::string name(before.substr(before.find_last_of(' ') + 1));
    text.remove_prefix(sign + 1);
    const bool isQuoted = text.starts_with('"');
    std::string value;
    std::size_t at = isQuoted ? 1 : 0;
    for (; at < text.size() && text[at] != (isQuoted ? '"' : ' '); ++at) {
      if (isQuoted && text[at] == '\\' && at + 1 < text.size()) ++at;
      value += text[at];
    }
    text.remove_prefix(std::min(text.size(), at + 1));
    if (!name.empty()) facts.try_emplace(name, std::move(value));
  }
  return facts;
}

/// Returns the class in "<MediaPDE: 0x55d0>".
std::string classOf(std::string_view object) {
  return std::string(between(object, "<", ":"));
}

/// What a log has said so far.
class Reader {
public:
  void add(Line line) {
    Dialog *dialog = dialogOf(line);
    follow(line);
    auto &early = early_[line.process];
    if (!dialog) return early.push_back(std::move(line));
    dialog->lines.insert(dialog->lines.end(), early.begin(), early.end());
    early.clear();
    if (line.marker == Line::Marker::host) learn(*dialog, line);
    dialog->lines.push_back(std::move(line));
  }

  std::vector<Dialog> take() { return std::move(dialogs_); }

private:
  using Key = std::pair<long, std::string>;  // a process, and an object of it

  /// Returns the dialog that the line belongs to, a new one if it begins one; null for none.
  Dialog *dialogOf(const Line &line) {
    const auto host = between(line.text, "withHostInfo:(", ")");
    if (line.marker == Line::Marker::begin && line.text.starts_with("PDEPanelsForType:")) {
      Dialog &dialog = dialogOfHost(line, host, [](const Dialog &open) { return hasPanels(open); });
      known_[{line.process, line.object}] = &dialog - dialogs_.data();
      return &dialog;
    }
    if (line.marker == Line::Marker::host) {
      const bool opens = line.text.starts_with("opened ");
      return &dialogOfHost(line, line.object,
                           [opens](const Dialog &open) { return opens && !open.facts.empty(); });
    }
    const auto callback = between(line.text, "initWithCallback:(", ",");
    if (line.marker == Line::Marker::begin && !callback.empty())
      if (const auto found = known_.find({line.process, std::string(callback)});
          found != known_.end())
        known_[{line.process, line.object}] = found->second;
    const auto found = known_.find({line.process, line.object});
    if (found != known_.end()) return &dialogs_[static_cast<std::size_t>(found->second)];
    // A choice, say, that a panel works on.
    const auto &calls = calls_[line.process];
    const auto caller = calls.empty() ? known_.end() : known_.find({line.process, calls.back()});
    return caller == known_.end() ? nullptr : &dialogs_[static_cast<std::size_t>(caller->second)];
  }

  /// Returns the dialog of the host `object`: a new one unless there is one that is not over.
  template <class IsOver>
  Dialog &dialogOfHost(const Line &line, std::string_view object, IsOver isOver) {
    const Key key{line.process, std::string(object)};
    const auto found = known_.find(key);
    if (found != known_.end())
      if (Dialog &open = dialogs_[static_cast<std::size_t>(found->second)]; !isOver(open))
        return open;
    known_[key] = static_cast<std::ptrdiff_t>(dialogs_.size());
    dialogs_.push_back({line.time, line.process, {}, {}, {}});
    return dialogs_.back();
  }

  static bool hasPanels(const Dialog &dialog) {
    return std::any_of(dialog.lines.begin(), dialog.lines.end(),
                       [](const Line &line) { return line.marker == Line::Marker::begin; });
  }

  void follow(const Line &line) {
    auto &calls = calls_[line.process];
    if (line.marker == Line::Marker::end && !calls.empty()) calls.pop_back();
    if (line.marker == Line::Marker::begin) calls.push_back(line.object);
  }

  void learn(Dialog &dialog, const Line &line) {
    const auto &calls = calls_[line.process];
    auto facts = factsIn(line.text);
    if (!line.text.starts_with("request ")) {
      if (line.text.starts_with("marked ")) return;
      if (line.text.starts_with("sent ")) dialog.facts.erase("why");  // of a try before
      facts.merge(dialog.facts);
      dialog.facts = std::move(facts);
      return;
    }
    std::vector<std::string> details;
    for (const char *name : {"limits", "conflicts", "marked"})
      if (facts.contains(name)) details.push_back(fmt::format("{} {}", name, facts[name]));
    dialog.requests.push_back({line.time, calls.empty() ? "" : classOf(calls.back()), facts["key"],
                               facts["wanted"], facts["answer"],
                               fmt::format("{}", fmt::join(details, "; "))});
  }

  std::vector<Dialog> dialogs_;
  std::map<Key, std::ptrdiff_t> known_;  // hosts, plug-ins and panels: the index of their dialog
  std::map<long, std::vector<Line>> early_;         // of a plug-in that is not asked for panels yet
  std::map<long, std::vector<std::string>> calls_;  // the objects whose methods run, by process
};

/// Returns a journal's microseconds since 1970 as other logs write them.
std::string timeOf(std::string_view microseconds) {
  const long since = numberIn(microseconds);
  return fmt::format("{:%Y-%m-%d %H:%M:%S}.{:03}", fmt::localtime(since / 1000000),
                     since / 1000 % 1000);
}

}  // namespace

std::string Dialog::fact(const std::string &name) const {
  const auto found = facts.find(name);
  return found == facts.end() ? "" : found->second;
}

std::optional<Line> parseLine(std::string_view logged) {
  for (const auto &[word, marker] : kMarkers) {
    const std::string start = std::string(word) + " self(";
    const auto at = logged.find(start);
    if (at == logged.npos || (at > 0 && logged[at - 1] != ' ')) continue;
    const std::string_view prefix = logged.substr(0, at);
    Line line;
    line.marker = marker;
    readPrefix(prefix, line);
    const auto lastWord = prefix.find_last_not_of(' ');
    const std::size_t blanks = lastWord == prefix.npos ? at : at - lastWord - 1;
    line.depth = static_cast<int>(blanks / kIndent);
    const std::string_view rest = logged.substr(at + start.size());
    // A description can hold a parenthesis, but ends with the one before a blank.
    const auto end = rest.find(") ");
    if (end == rest.npos) return {};
    line.object = rest.substr(0, end);
    line.text = rest.substr(end + 2);
    return line;
  }
  return {};
}

std::vector<Dialog> readDialogs(std::istream &log) {
  Reader reader;
  std::map<std::string, std::string, std::less<>> entry;  // of a journal
  const auto addEntry = [&] {
    if (auto line = parseLine(entry["MESSAGE"])) {
      line->time = timeOf(entry["__REALTIME_TIMESTAMP"]);
      line->process = numberIn(entry["_PID"]);
      reader.add(std::move(*line));
    }
    entry.clear();
  };
  std::string text;
  while (std::getline(log, text)) {
    const auto equals = text.find('=');
    if (text.empty()) {
      addEntry();
    } else if (const std::string field = text.substr(0, equals);
               equals != text.npos &&
               (field == "MESSAGE" || field == "_PID" || field == "__REALTIME_TIMESTAMP")) {
      entry[field] = text.substr(equals + 1);
    } else if (auto line = parseLine(text)) {
      reader.add(std::move(*line));
    }
  }
  addEntry();
  return reader.take();
}

}  // namespace kwopde::tracelog
