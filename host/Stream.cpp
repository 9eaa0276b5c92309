#include "host/Stream.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "host/Error.h"

namespace kwopde::host {

namespace {

Error failure(const std::string &name) {
  return Error(fmt::format("{}: {}", name, std::strerror(errno)));
}

Stream copyOf(std::FILE *source, const std::string &name) {
  Stream copy = makeMemoryFile(name);
  std::array<char, 16384> block;
  std::size_t total = 0;
  while (!std::feof(source)) {
    const std::size_t size = std::fread(block.data(), 1, block.size(), source);
    if (std::ferror(source)) throw failure(name);
    total += size;
    if (total > kMostBytes)
      throw Error(fmt::format("{}: has more than {} MB", name, kMostBytes >> 20));
    if (std::fwrite(block.data(), 1, size, copy.get()) != size) throw failure(name);
  }
  if (std::fflush(copy.get()) != 0 || std::fseek(copy.get(), 0, SEEK_SET) != 0) throw failure(name);
  return copy;
}

}  // namespace

Stream makeMemoryFile(const std::string &name) {
  Stream file(fdopen(memfd_create("kwopde", MFD_CLOEXEC), "w+b"));
  if (!file) throw failure(name);
  return file;
}

Stream openOnce(const std::string &path) {
  const int number = path == "-" ? dup(STDIN_FILENO) : ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (number < 0) throw failure(path);
  Stream file(fdopen(number, "rb"));
  if (!file) throw failure(path);
  std::error_code error;
  if (std::filesystem::is_directory(path, error))
    throw Error(fmt::format("{}: {}", path, std::strerror(EISDIR)));
  return file;
}

Stream openRepeatable(const std::string &path) {
  Stream file = openOnce(path);
  struct stat kind{};
  if (fstat(fileno(file.get()), &kind) != 0) throw failure(path);
  return S_ISREG(kind.st_mode) ? std::move(file) : copyOf(file.get(), path);
}

bool waitToRead(int file, const std::function<bool()> &goesOn) {
  constexpr int kLook = 50;  // milliseconds
  pollfd ready{file, POLLIN, 0};
  for (int found = 0; (found = poll(&ready, 1, kLook)) == 0 || (found < 0 && errno == EINTR);)
    if (!goesOn()) return false;
  return true;
}

}  // namespace kwopde::host
