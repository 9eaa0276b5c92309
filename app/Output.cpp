#include "app/Output.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "platform/Escaped.h"

namespace kwopde::app {

namespace {

bool isLost = false;  // whether any output could not be written
std::string lost;     // which was the first; empty also for want of memory

void noteLostResult(int error) noexcept {
  try {
    noteLostOutput(fmt::format("standard output: {}", std::strerror(error)));
  } catch (const std::exception &) {
    noteLostOutput({});
  }
}

void put(std::string_view text, std::FILE *stream) noexcept {
  if (std::fwrite(text.data(), 1, text.size(), stream) != text.size() && stream == stdout)
    noteLostResult(errno);
}

void putLine(std::string_view text, std::FILE *stream) noexcept {
  try {
    std::string line;
    appendEscaped(line, text);
    put(line + '\n', stream);
  } catch (const std::exception &) {
    put("?\n", stream);  // no memory for more
  }
}

}  // namespace

void openStandardStreams() {
  // The lowest number that is free is the one that was closed.
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream)
    if (fcntl(stream, F_GETFD) == -1) open("/dev/null", O_RDWR);
}

void writeResult(std::string_view text) noexcept {
  put(text, stdout);
}

void writeResultLine(std::string_view text) noexcept {
  putLine(text, stdout);
}

void writeMessage(std::string_view text) noexcept {
  putLine(text, stderr);
}

void noteLostOutput(std::string_view what) noexcept {
  isLost = true;
  try {
    if (lost.empty()) lost = what;
  } catch (const std::exception &) {
    // It is lost all the same.
  }
}

bool finishOutput() noexcept {
  errno = 0;
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) noteLostResult(errno ? errno : EIO);
  if (!isLost) return true;
  put("kwopde: not all output was written: ", stderr);
  writeMessage(lost);
  return false;
}

}  // namespace kwopde::app
