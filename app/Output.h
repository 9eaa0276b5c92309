// What the commands write. Nothing here throws: a job that was sent stays sent when nobody can be
// told of it.
#pragma once

#include <fmt/format.h>

#include <string>
#include <string_view>
#include <utility>

namespace kwopde::app {

/// Opens those of the streams 0 to 2 that are closed on /dev/null, so that no other file gets their
/// number and is written into.
void openStandardStreams();

/// Writes `text` to standard output as it is.
void writeResult(std::string_view text) noexcept;

/// Write a line: a result to standard output, or a message to standard error, where one that cannot
/// be written is dropped. Control characters are escaped.
void writeResultLine(std::string_view text) noexcept;
void writeMessage(std::string_view text) noexcept;

/// Notes that output could not be written. `what` says which, and why.
void noteLostOutput(std::string_view what) noexcept;

/// Writes all results out. Returns whether every output could be written, and tells the first that
/// could not.
bool finishOutput() noexcept;

template <class... Arguments>
void printLine(fmt::format_string<Arguments...> format, Arguments &&...arguments) {
  writeResultLine(fmt::format(format, std::forward<Arguments>(arguments)...));
}

template <class... Arguments>
void tell(fmt::format_string<Arguments...> format, Arguments &&...arguments) {
  writeMessage(fmt::format(format, std::forward<Arguments>(arguments)...));
}

}  // namespace kwopde::app
