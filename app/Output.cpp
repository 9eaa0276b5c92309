#include "app/Output.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "platform/Escaped.h"

namespace kwopde::app {

namespace {

std::string lost;  // the first output that could not be written; empty while there is none

void put(std::string_view text, std::FILE *stream) {
  if (std::fwrite(text.data(), 1, text.size(), stream) != text.size() && stream == stdout)
    noteLostOutput(fmt::format("standard output: {}", std::strerror(errno)));
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

void noteLostOutput(const std::string &what) noexcept {
  if (lost.empty()) lost = what;
}

bool finishOutput() noexcept {
  errno = 0;
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
    noteLostOutput(fmt::format("standard output: {}", std::strerror(errno ? errno : EIO)));
  if (lost.empty()) return true;
  writeMessage("kwopde: " + lost);
  return false;
}

}  // namespace kwopde::app
