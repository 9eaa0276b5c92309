#include "host/Stream.h"

#include <fmt/format.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "host/Error.h"

namespace kwopde::host {

namespace {

constexpr std::size_t kMostBytes = 32 << 20;

Error failure(const std::string &name) {
  return Error(fmt::format("{}: {}", name, std::strerror(errno)));
}

Stream copyOf(std::FILE *source, const std::string &name) {
  Stream copy = makeMemoryFile(name);
  std::array<char, 16384> block;
  std::size_t total = 0;
  while (const auto size = std::fread(block.data(), 1, block.size(), source)) {
    total += size;
    if (total > kMostBytes)
      throw Error(fmt::format("{}: has more than {} MB", name, kMostBytes >> 20));
    if (std::fwrite(block.data(), 1, size, copy.get()) != size) throw failure(name);
  }
  if (std::ferror(source) || std::fflush(copy.get()) != 0) throw failure(name);
  std::rewind(copy.get());
  return copy;
}

}  // namespace

Stream makeMemoryFile(const std::string &name) {
  Stream file(fdopen(memfd_create("kwopde", MFD_CLOEXEC), "w+b"));
  if (!file) throw failure(name);
  return file;
}

Stream openOnce(const std::string &path) {
  Stream file(path == "-" ? fdopen(dup(STDIN_FILENO), "rb") : std::fopen(path.c_str(), "rb"));
  struct stat kind{};
  if (!file || fstat(fileno(file.get()), &kind) != 0) throw failure(path);
  if (S_ISDIR(kind.st_mode)) errno = EISDIR;
  if (S_ISDIR(kind.st_mode)) throw failure(path);
  return file;
}

Stream openRepeatable(const std::string &path) {
  Stream file = openOnce(path);
  struct stat kind{};
  fstat(fileno(file.get()), &kind);
  if (!S_ISREG(kind.st_mode)) return copyOf(file.get(), path);
  if (std::getc(file.get()) == EOF && std::ferror(file.get())) throw failure(path);
  std::rewind(file.get());
  return file;
}

}  // namespace kwopde::host
