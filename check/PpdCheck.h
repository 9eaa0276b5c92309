// What the extension will make of a PPD, for those who write PPDs.
#pragma once

#include <string>
#include <vector>

#include "platform/PlugIn.h"

namespace kwopde::check {

struct Finding {
  enum class Severity {
    note,     // as the PPD may well be meant
    warning,  // something that a user can set does not reach the printer
    error,    // something is shown or marked wrongly
  };
  Severity severity;
  std::string option;  // its keyword; empty when it is about the whole file
  int line;            // of the file, from 1; 0 when it is not known
  std::string message;
  std::string advice;  // what to do
};

struct PpdReport {
  std::string file;
  std::vector<std::string> panels;  // classes of the panels that appear, in order
  std::vector<Finding> findings;

  /// Returns whether there is more to find than notes.
  bool isClean() const;
};

/// Looks at the PPD in `file` with the panels of `module`, which it makes and drops; nothing is
/// traced. Throws `Error` when the PPD cannot be read.
PpdReport checkPpd(PlugInModule &module, const std::string &file);

/// "note", "warning" or "error".
std::string_view nameOf(Finding::Severity severity);

}  // namespace kwopde::check
