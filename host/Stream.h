// Files as the CUPS library and the C library read them.
#pragma once

#include <cstddef>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>

namespace kwopde::host {

/// How many bytes a PPD, or an answer of a server, has at most; of a packed PPD, unpacked.
inline constexpr std::size_t kMostBytes = 32 << 20;

struct CloseStream {
  void operator()(std::FILE *stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<std::FILE, CloseStream>;

/// Makes an empty file that is in memory only. Throws `Error`, which calls it `name`, when there is
/// no room.
Stream makeMemoryFile(const std::string &name);

/// Opens the file at `path`, with "-" standard input. Throws `Error` with the path when it cannot
/// be read.
Stream openOnce(const std::string &path);

/// Opens it for being read more than once: what can be
/// read only once, such as a pipe, is copied into memory, up to 32 MB. Throws as `openOnce` does.
Stream openRepeatable(const std::string &path);

/// Waits until there is something to read from the descriptor `file`, or its end, and asks `goesOn`
/// every 50 ms meanwhile. Returns false once that does.
bool waitToRead(int file, const std::function<bool()> &goesOn);

}  // namespace kwopde::host
