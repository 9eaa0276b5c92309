#include "tests/support/TemporaryFolder.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace kwopde::test {

TemporaryFolder::TemporaryFolder()
    : path_(std::filesystem::temp_directory_path() / "kwopde-test-XXXXXX") {
  if (!mkdtemp(path_.data())) throw std::system_error(errno, std::generic_category(), path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::write(const std::string &name, const std::string &contents) const {
  std::string path = path_ + "/" + name;
  std::ofstream(path) << contents;
  return path;
}

std::string contents(const std::string &path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

}  // namespace kwopde::test
