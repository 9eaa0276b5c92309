// An open PPD file.
#pragma once

#include <cups/ppd.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <string>

namespace kwopde::host {

/// What is shown in place of a password.
inline constexpr const char *kHidden = "•••";

class PpdFile {
public:
  /// Opens the PPD at `path`, a file, a pipe or "-" for standard input. Puts its texts into the
  /// user's language, trims those that a field of the records has cut in the middle of a character,
  /// shows U+FFFD for bytes that are no text, and marks the defaults. Throws `Error` with
  /// the file, the line and the CUPS library's reason when it cannot be read, or is
  /// larger than `fingerprintOf` takes.
  static PpdFile open(const std::string &path);

  /// Reads it the same way from the beginning of `file`, which stays the caller's. Messages call it
  /// `name`.
  static PpdFile read(std::FILE *file, const std::string &name);

  /// Reads it as `read` does, with the texts as the file has them, in its own language.
  static PpdFile readAsWritten(std::FILE *file, const std::string &name);

  /// Owned by this object.
  ppd_file_t *get() const { return ppd_.get(); }

  /// Reads all of a PPD, packed or not, and returns a number that tells it from others. Throws
  /// `Error` when it has more than 32 MB unpacked, or so many options that reading it would take
  /// minutes.
  static std::size_t fingerprintOf(std::FILE *file, const std::string &name);

  /// Returns the number of the PPD that was read.
  std::size_t fingerprint() const { return fingerprint_; }

  /// Returns the printer's name for people.
  std::string nickname() const;

  /// Returns the text for people of an option, or of one of its choices; the keyword when it has
  /// none, or the PPD does not have it. A custom value is its own text; a password shows nothing of
  /// itself.
  std::string textOf(const std::string &key) const;
  std::string textOf(const std::string &key, const std::string &choice) const;

  /// Returns whether a custom value of the option holds a password or a passcode.
  bool isSecret(const std::string &key) const;

  /// Calls `visit` for every option, group by group.
  void forEachOption(const std::function<void(const ppd_option_t &)> &visit) const;

private:
  struct Close {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
  };

  PpdFile(ppd_file_t *ppd, std::size_t fingerprint) : ppd_(ppd), fingerprint_(fingerprint) {}

  std::unique_ptr<ppd_file_t, Close> ppd_;
  std::size_t fingerprint_;
};

}  // namespace kwopde::host
