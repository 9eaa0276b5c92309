#include "app/Files.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>

#include "host/Error.h"
#include "queue/PrintJob.h"

namespace kwopde::app {

std::ifstream openReadable(const std::string &path) {
  errno = 0;
  std::ifstream file(path);
  file.peek();
  if (file.bad() || !file.is_open())
    throw host::Error(fmt::format("{}: {}", path, std::strerror(errno ? errno : EIO)));
  file.clear();
  return file;
}

void expectReadable(const std::vector<std::string> &paths) {
  if (std::count(paths.begin(), paths.end(), host::kStandardInput) > 1)
    throw host::Error("standard input can be read only once: - is given twice");
  for (const std::string &path : paths) {
    std::error_code error;
    if (path == host::kStandardInput || std::filesystem::is_fifo(path, error)) continue;
    openReadable(path);
  }
}

TextSource::TextSource(const std::string &name) : name_(name == "-" ? "standard input" : name) {
  if (name != "-") file_ = openReadable(name);
  stream_ = name == "-" ? &std::cin : &file_;
}

}  // namespace kwopde::app
