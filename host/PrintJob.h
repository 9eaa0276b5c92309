// Sends documents to a printer queue.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/PpdSession.h"

namespace kwopde::host {

struct PrintJob {
  std::string queue;
  std::string title;
  std::vector<std::string> documents;  // paths; all of them are one job
  std::vector<OptionChoice> options;   // of the PPD, and job attributes such as "copies"
};

/// How far a job has been sent, in bytes; false cancels it.
using SendProgress = std::function<bool(long long sent, long long total)>;

/// Sends `job` and returns its number on the server; none when `progress` cancelled it. A job that
/// was not sent whole is cancelled on the server. Throws `Error` for a document that cannot be
/// read, before anything is sent, and `JobError` when the server is gone or refuses the job.
std::optional<int> send(const PrintJob &job, const SendProgress &progress);

}  // namespace kwopde::host
