// Files that a command is given.
#pragma once

#include <fstream>
#include <istream>
#include <string>
#include <vector>

namespace kwopde::app {

/// Opens the file at `path` and reads a first byte. Throws `host::Error` when that fails.
std::ifstream openReadable(const std::string &path);

/// Throws `host::Error` for the first of `paths` that cannot be read, and when "-", which is
/// standard input, is among them twice. A pipe, which can be read only once, is left alone.
void expectReadable(const std::vector<std::string> &paths);

/// A text: a file, or standard input for "-".
class TextSource {
public:
  explicit TextSource(const std::string &name);
  std::istream &stream() { return *stream_; }

  /// Returns what messages call it.
  const std::string &name() const { return name_; }

private:
  std::string name_;
  std::ifstream file_;
  std::istream *stream_;
};

}  // namespace kwopde::app
