// What a command tells of a job.
#pragma once

#include <optional>
#include <vector>

#include "queue/PrintJob.h"

namespace kwopde::app {

/// What came of printing, or of a dialog that prints nothing.
struct JobReport {
  std::vector<host::OptionChoice> choices;  // those that differ from the printer's defaults
  std::optional<host::PrintJob> job = {};   // none when nothing was sent
  int id = 0;                               // the job's number

  /// Writes the choices to standard output, a `key=choice` line each, and names the job on standard
  /// error; or writes all of it to standard output, with what else the job carries, as JSON.
  void write(bool asJson) const;
};

}  // namespace kwopde::app
