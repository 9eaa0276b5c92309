#include "host/PpdFile.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "host/Error.h"

namespace kwopde::host {

namespace {

struct CloseStream {
  void operator()(std::FILE *stream) const { std::fclose(stream); }
};

void visitGroups(const ppd_group_t *groups, int count,
                 const std::function<void(const ppd_option_t &)> &visit) {
  for (int g = 0; g < count; ++g) {
    for (int o = 0; o < groups[g].num_options; ++o) visit(groups[g].options[o]);
    visitGroups(groups[g].subgroups, groups[g].num_subgroups, visit);
  }
}

}  // namespace

PpdFile PpdFile::open(const std::string &path) {
  // Opened here, since the library tells neither a folder nor a missing file from a bad one.
  const std::unique_ptr<std::FILE, CloseStream> stream(std::fopen(path.c_str(), "rb"));
  if (!stream || (std::getc(stream.get()) == EOF && std::ferror(stream.get())))
    throw Error(fmt::format("{}: {}", path, std::strerror(errno)));
  if (ppd_file_t *ppd = ppdOpenFile(path.c_str())) {
    ppdMarkDefaults(ppd);
    return PpdFile(ppd);
  }
  int line = 0;
  const ppd_status_t status = ppdLastError(&line);
  throw Error(fmt::format("{}:{}: {}", path, line, ppdErrorString(status)));
}

std::string PpdFile::nickname() const {
  return ppd_->nickname ? ppd_->nickname : "";
}

void PpdFile::forEachOption(const std::function<void(const ppd_option_t &)> &visit) const {
  visitGroups(ppd_->groups, ppd_->num_groups, visit);
}

}  // namespace kwopde::host
