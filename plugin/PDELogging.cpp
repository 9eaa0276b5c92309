#include "plugin/PDELogging.h"

#include <cstdlib>
#include <span>
#include <utility>
#include <vector>

#include "platform/Escaped.h"
#include "platform/SystemLog.h"

namespace kwopde {

namespace {

/// How a line's marker stands in the call tree.
struct Marker {
  std::string_view word;
  int depthBefore;  // added to the depth before the line is formed
  int depthAfter;   // and after
};
constexpr Marker kEntry{"BEGIN", 0, 1};
constexpr Marker kExit{"END", -1, 0};
constexpr Marker kFree{"LOG", 0, 0};

SystemLog systemLog;
LogSink *sink = &systemLog;
std::int32_t indent = 0;

/// A text buffer on loan, so that tracing does not allocate once its buffers have grown. Lines
/// nest: a description may trace while its own line is being formed.
class ScratchText {
public:
  ScratchText() {
    if (!idle().empty()) {
      text_ = std::move(idle().back());
      idle().pop_back();
      text_.clear();
    }
  }
  ScratchText(const ScratchText &) = delete;
  ScratchText &operator=(const ScratchText &) = delete;
  ~ScratchText() { idle().push_back(std::move(text_)); }
  std::string &operator*() { return text_; }

private:
  static std::vector<std::string> &idle() {
    // Never destroyed: an object may be dropped, and trace, after static destruction.
    static auto *const buffers = new std::vector<std::string>;
    return *buffers;
  }
  std::string text_;
};

/// The line as a format of its own, in which the arguments are still to be filled in.
void Format(std::string &out, const Object *self, const Marker &marker, std::string_view format) {
  if (self) {
    indent += marker.depthBefore;
    // Four spaces a level; a depth below zero indents by its magnitude.
    out.append(4 * static_cast<std::size_t>(std::abs(std::int64_t{indent})), ' ');
    out += marker.word;
    out += " self(";
    self->appendDescription(out);
    out += ") ";
    indent += marker.depthAfter;
  } else {
    out += marker.word;
    out += ' ';
  }
  out += format;
}

void write(const Object *self, const Marker &marker, std::string_view format,
           std::span<const PrintfArgument> arguments) {
  ScratchText composed;
  Format(*composed, self, marker, format);
  ScratchText line;
  appendPrintf(*line, *composed, arguments);
  if (isPlain(*line)) return sink->writeLine(*line);
  ScratchText escaped;  // a text of the PPD cannot pass for lines of ours
  appendEscaped(*escaped, *line);
  sink->writeLine(*escaped);
}

std::span<const PrintfArgument> spanOf(std::initializer_list<PrintfArgument> arguments) {
  return {arguments.begin(), arguments.size()};
}

}  // namespace

void PDEProlog(const Object *self, std::string_view format,
               std::initializer_list<PrintfArgument> arguments) {
  write(self, kEntry, format, spanOf(arguments));
}

void PDEEpilog(const Object *self, std::string_view format,
               std::initializer_list<PrintfArgument> arguments) {
  write(self, kExit, format, spanOf(arguments));
}

void PDELog(const Object *self, std::string_view format,
            std::initializer_list<PrintfArgument> arguments) {
  write(self, kFree, format, spanOf(arguments));
}

LogSink *setTraceSink(LogSink *newSink) {
  LogSink *const before = std::exchange(sink, newSink ? newSink : &systemLog);
  return before == &systemLog ? nullptr : before;
}

}  // namespace kwopde
