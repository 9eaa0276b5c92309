// Files of tests, in a folder that no other test, run or user shares.
#pragma once

#include <string>

namespace kwopde::test {

/// Makes a new folder in the system's temporary folder, and removes it with all that is in it.
/// Throws std::system_error when it cannot be made.
class TemporaryFolder {
public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder &) = delete;
  TemporaryFolder &operator=(const TemporaryFolder &) = delete;
  ~TemporaryFolder();

  /// Writes a file of that name and returns its path.
  std::string write(const std::string &name, const std::string &contents) const;

private:
  std::string path_;
};

/// Returns what is in the file at `path`; nothing when it cannot be read.
std::string contents(const std::string &path);

}  // namespace kwopde::test
