#include <fmt/compile.h>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "bench/Samples.h"
#include "bench/Work.h"
#include "choice/Utility.h"
#include "host/PpdSession.h"
#include "panels/MediaPDE.h"
#include "plugin/KWOPDEPlugin.h"
#include "plugin/PDELogging.h"

namespace kwopde::bench {

namespace {

using Once = std::function<void()>;

/// Keeps the compiler from leaving out what makes `value`.
template <class T>
void use(const T &value) {
  asm volatile("" : : "r"(&value) : "memory");
}

Once session() {
  const auto host = std::make_shared<WillingHost>(openPpd(kSample), true);
  return [host] { wholeSession(host); };
}

Once openingAPpd() {
  return [] { openPpd(kSample); };
}

Once readingAPpd() {
  return [] { host::PpdFile::open(kSample); };
}

/// A traced line as the parts that it is made of.
struct LineParts {
  int indent;
  std::string marker;
  std::string className;
  std::uint64_t address;
  std::string message;
};

LineParts split(const std::string &line) {
  LineParts parts;
  parts.indent = static_cast<int>(line.find_first_not_of(' '));
  const auto self = line.find(" self(<");
  if (self == line.npos) return {parts.indent, line, "", 0, ""};
  parts.marker = line.substr(static_cast<std::size_t>(parts.indent),
                             self - static_cast<std::size_t>(parts.indent));
  const auto name = self + 7;
  const auto colon = line.find_first_of(": ", name);
  parts.className = line.substr(name, colon - name);
  parts.address = std::strtoull(line.c_str() + line.find("0x", colon), nullptr, 16);
  parts.message = line.substr(std::min(line.find(">) ", colon) + 3, line.size()));
  return parts;
}

/// Returns the lines of a session, in their parts.
std::vector<LineParts> sessionLines() {
  class Lines final : public LogSink {
  public:
    void writeLine(std::string_view line) override { parts.push_back(split(std::string(line))); }
    std::vector<LineParts> parts;
  } lines;
  LogSink *const before = setTraceSink(&lines);
  session()();
  setTraceSink(before);
  return lines.parts;
}

Once formattingItsLines() {
  return [lines = sessionLines(), text = std::string()]() mutable {
    for (const LineParts &line : lines) {
      text.clear();
      fmt::format_to(std::back_inserter(text), "{:{}}{} self(<{}: {:#x}>) {}", "", line.indent,
                     line.marker, line.className, line.address, line.message);
      use(text);
    }
  };
}

/// The least that a line can take: its parts, one after the other, in a text with room for them.
Once appendingItsLines() {
  return [lines = sessionLines(), text = std::string()]() mutable {
    for (const LineParts &line : lines) {
      text.assign(static_cast<std::size_t>(line.indent), ' ');
      text.append(line.marker).append(" self(<").append(line.className).append(": ");
      fmt::format_to(std::back_inserter(text), FMT_COMPILE("{:#x}"), line.address);
      text.append(">) ").append(line.message);
      use(text);
    }
  };
}

/// A pick among `count` choices of a panel, the last of them.
Once pickOn(const std::shared_ptr<HostCallback> &host, int count) {
  module();
  const auto panel = PanelBase::initWithCallback<MediaPDE>(host, nullptr);
  panel->restoreValuesAndReturnError(nullptr);
  panel->panelView();
  panel->willShow();
  return [panel, last = count - 1] {
    headless::UserInput user;
    user.pick(*panel->printQualityPopUp.get(), last);
  };
}

/// On a host that marks nothing.
Once pick(int count) {
  return pickOn(std::make_shared<WillingHost>(ppdWithChoices(count), false), count);
}

std::shared_ptr<host::PpdSession> sessionOf(const std::string &options) {
  return std::make_shared<host::PpdSession>(host::PpdFile::read(ppdFile(options).get(), "options"));
}

Once markedPick(int count) {
  return pickOn(sessionOf(optionText("printQuality", count)), count);
}

/// Two options of `count` choices, of which only the first ones go with each other's others.
std::string pairs(int count) {
  std::string text = optionText("one", count) + optionText("two", count);
  for (int i = 1; i < count; ++i) text += fmt::format("*UIConstraints: *one C{0} *two C{0}\n", i);
  return text;
}

/// A request for a number that no constraint names; `hasConflict` is whether two other options are
/// marked against each other.
Once request(bool hasConflict) {
  std::string scale = "*OpenUI *scale/Scale: PickOne\n*Defaultscale: 100\n";
  for (int i = 0; i <= 200; ++i) scale += fmt::format("*scale {0}/{0}: \"\"\n", i);
  const auto session = sessionOf(scale + "*CloseUI: *scale\n" + pairs(1000));
  for (const char *key : {"one", "two"})
    if (hasConflict) session->mark(key, "C7");
  return [session, key = std::string("scale"), choice = std::string("85")] {
    session->willChangePPDOptionKeyValue(&key, &choice);
  };
}

/// A request for a choice that constraints name, one for every choice; `hasConflict` is whether the
/// other option has to give way.
Once namedRequest(int count, bool hasConflict) {
  return [session = sessionOf(pairs(count)), key = std::string("one"),
          choice = std::string(hasConflict ? "C7" : "C8")] {
    session->mark("one", "C0");
    session->mark("two", "C7");
    session->willChangePPDOptionKeyValue(&key, &choice);
  };
}

/// Fills the stand-in pop-up of the headless toolkit with the choices of a PPD.
Once fill(int count) {
  module();
  const auto host = std::make_shared<WillingHost>(ppdWithChoices(count), false);
  const auto panel = PanelBase::initWithCallback<MediaPDE>(host, nullptr);
  panel->panelView();
  return [panel] {
    const auto list = ArrayFromPPDOption(panel->printQualityOption);
    InitPopUpFromArray(*panel->printQualityPopUp.get(), list.get());
  };
}

/// What a choice and its menu item cannot do without: an object, a text, and a reference to it.
Once fillFloor(int count) {
  std::vector<std::string> titles;
  titles.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) titles.push_back(fmt::format("Choice number {:06}", i));
  return [titles] {
    std::vector<std::shared_ptr<std::array<char, sizeof(PDEChoice)>>> list;
    std::vector<MenuItem> items;
    list.reserve(titles.size());
    items.reserve(titles.size());
    for (const std::string &title : titles) {
      list.push_back(std::make_shared<std::array<char, sizeof(PDEChoice)>>());
      list.back()->front() = title.front();
    }
    for (const std::string &title : titles) items.push_back({title, nullptr});
    use(items);
  };
}

Once tracingALine() {
  return [object = std::make_shared<KWOPDEPlugIn>(), key = std::string("pageScale")] {
    PDELog(object.get(), "saveIntToPPD:(%@, %d)", {key, 85});
  };
}

Once formattingTheLine() {
  return [object = std::make_shared<KWOPDEPlugIn>(), key = std::string("pageScale"),
          text = std::string()]() mutable {
    text.clear();
    fmt::format_to(std::back_inserter(text), "{:{}}{} self(<{}: {}>) saveIntToPPD:({}, {})", "", 0,
                   "LOG", object->className(), fmt::ptr(object.get()), key, 85);
    use(text);
  };
}

}  // namespace

std::vector<Work> works() {
  std::vector<Work> all{{"session", 20, session},
                        {"openingAPpd", 5, openingAPpd},
                        {"readingAPpd", 5, readingAPpd},
                        {"formattingItsLines", 20, formattingItsLines},
                        {"appendingItsLines", 20, appendingItsLines},
                        {"request", 20, [] { return request(false); }},
                        {"request+conflict", 20, [] { return request(true); }},
                        {"tracingALine", 1000, tracingALine},
                        {"formattingTheLine", 1000, formattingTheLine}};
  for (const int count : {10, 1000, 10000, 100000}) {
    const auto add = [&](const char *name, int times, const auto &work) {
      all.push_back({fmt::format("{}/{}", name, count), times, [=] { return work(count); }});
    };
    const int fills = std::max(10, 20000 / count);
    add("fill", fills, fill);
    add("fillFloor", fills, fillFloor);
    add("pick", 200, pick);
    add("markedPick", 20, markedPick);
    add("named", 5, [](int choices) { return namedRequest(choices, false); });
    add("named+conflict", 5, [](int choices) { return namedRequest(choices, true); });
  }
  return all;
}

}  // namespace kwopde::bench
