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
  std::string title;                   // of which the server gets 255 bytes at most
  std::vector<std::string> documents;  // paths, "-" for standard input; all of them are one job
  std::vector<OptionChoice> options;   // of the PPD, and job attributes such as "copies"
};

/// A document that is standard input.
inline constexpr const char *kStandardInput = "-";

/// Returns what a document is called that is at `path`: its file name, as lp(1) has it.
std::string documentName(const std::string &path);

/// How far a job has been sent, in bytes, of a total that knows nothing of pipes; false cancels
/// it. Called after every block that was
/// taken, and about every 50 ms while the server's answer is awaited.
using SendProgress = std::function<bool(long long sent, long long total)>;

/// Sends `job` and returns its number once the server has confirmed the last document; none when
/// `progress` cancelled it. A job that was not sent whole is cancelled on the server, and
/// gone from it when `progress` cancelled it. Throws
/// `Error` for a document that cannot be read, and `JobError` when the server is gone, refuses the
/// job or does not say that it took it; the message tells whether it may have been printed all the
/// same.
std::optional<int> send(const PrintJob &job, const SendProgress &progress);

}  // namespace kwopde::host
