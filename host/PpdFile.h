// An open PPD file.
#pragma once

#include <cups/ppd.h>

#include <functional>
#include <memory>
#include <string>

namespace kwopde::host {

class PpdFile {
public:
  /// Opens the PPD at `path` and marks its defaults. Throws `Error` with the file, the line and the
  /// CUPS library's reason when it cannot be read.
  static PpdFile open(const std::string &path);

  /// Owned by this object.
  ppd_file_t *get() const { return ppd_.get(); }

  /// The printer's name for people.
  std::string nickname() const;

  /// Calls `visit` for every option, group by group.
  void forEachOption(const std::function<void(const ppd_option_t &)> &visit) const;

private:
  struct Close {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
  };

  explicit PpdFile(ppd_file_t *ppd) : ppd_(ppd) {}

  std::unique_ptr<ppd_file_t, Close> ppd_;
};

}  // namespace kwopde::host
