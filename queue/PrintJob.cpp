#include "queue/PrintJob.h"

#include <cups/cups.h>
#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "host/CupsOptions.h"
#include "host/Error.h"
#include "queue/CupsConnection.h"

namespace kwopde::host {

namespace {

struct Document {
  std::string name;
  Stream stream;
};

std::vector<Document> openDocuments(const std::vector<std::string> &paths, long long &total) {
  std::vector<Document> documents;
  for (const std::string &path : paths) {
    Document document{documentName(path), openOnce(path)};
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (!error) total += static_cast<long long>(size);
    documents.push_back(std::move(document));
  }
  return documents;
}

/// Returns as much of `text` as a name on the server can have, in whole characters.
std::string nameOf(const std::string &text) {
  std::size_t size = std::min<std::size_t>(text.size(), 255);
  while (size > 0 && size < text.size() && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80)
    --size;
  return text.substr(0, size);
}

/// Returns the MIME type of the documents, as lp(1) has it of the options.
std::string formatOf(const std::vector<OptionChoice> &options) {
  const CupsOptions list(options);
  if (cupsGetOption("raw", list.count, list.options)) return CUPS_FORMAT_RAW;
  const char *format = cupsGetOption("document-format", list.count, list.options);
  return format ? format : CUPS_FORMAT_AUTO;
}

/// Time for cancelling a job, whose sender may be waiting for it.
constexpr auto kCancelTime = std::chrono::seconds(5);

/// A job on the server, which prints it once it has the last document. Failures throw `JobError`.
class ServerJob {
public:
  ServerJob(CupsConnection &server, const PrintJob &job)
      : server_(server),
        queue_(job.queue),
        resource_("/printers/" + job.queue),
        format_(formatOf(job.options)) {
    const IppMessage request = requestAbout(queue_, IPP_OP_CREATE_JOB);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 nameOf(job.title).c_str());
    CupsOptions options(job.options);
    for (const ipp_tag_t group : {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION})
      cupsEncodeOptions2(request.get(), options.count, options.options, group);
    const std::string what = "took no job";
    const IppMessage answer = expect([&] { return server_.ask(request, resource_); }, what, what);
    ipp_attribute_t *id = ippFindAttribute(answer.get(), "job-id", IPP_TAG_INTEGER);
    id_ = id ? ippGetInteger(id, 0) : 0;
    if (id_ < 1) fail(what, "its server gave the job no number");
  }

  int id() const { return id_; }

  /// Returns whether the server has all of the documents, but did not say that it took them.
  bool mayBePrinted() const { return mayBePrinted_; }

  /// Calls `progress` after every block, with its size. Returns false when that cancelled.
  bool sendDocument(Document &document, bool isLast,
                    const std::function<bool(std::size_t)> &progress) {
    const IppMessage request = aboutThis(IPP_OP_SEND_DOCUMENT);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
                 nameOf(document.name).c_str());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                 format_.c_str());
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", isLast ? 1 : 0);
    bool taken = server_.start(request, resource_);
    std::array<char, 65536> block;
    const int file = fileno(document.stream.get());
    while (taken) {
      if (!waitToRead(file, [&] { return progress(0); })) return false;
      const ssize_t size = read(file, block.data(), block.size());
      if (size < 0 && errno == EINTR) continue;
      if (size < 0) throw Error(fmt::format("{}: {}", document.name, std::strerror(errno)));
      if (size == 0) break;
      const auto length = static_cast<std::size_t>(size);
      taken = server_.write(block.data(), length);
      if (!progress(length)) return false;
    }
    const std::string broken = "did not take all of the document " + document.name;
    mayBePrinted_ = taken && isLast;
    const auto answer = [&] {
      IppMessage given = server_.answer();
      mayBePrinted_ = false;
      return given;
    };
    expect(answer, taken ? "did not confirm the document " + document.name : broken,
           "refused the document " + document.name);
    if (!taken) fail(broken, "its server stopped listening");
    return true;
  }

  /// What is left of a cancelled job: its record, for whoever looks into what went wrong, or
  /// nothing.
  enum class Leave { record, nothing };

  /// Cancels the job on the server, unless it is done. Returns whether it was cancelled.
  bool cancel(Leave leave) {
    const auto end = std::chrono::steady_clock::now() + kCancelTime;
    // On a connection of its own: the other one may be in the middle of a document.
    try {
      CupsConnection server([end] { return std::chrono::steady_clock::now() < end; });
      const IppMessage request = aboutThis(IPP_OP_CANCEL_JOB);
      if (leave == Leave::nothing) ippAddBoolean(request.get(), IPP_TAG_OPERATION, "purge-job", 1);
      return faultIn(server.ask(request, "/jobs/")).empty();
    } catch (const JobError &) {
      return false;
    }
  }

private:
  IppMessage aboutThis(ipp_op_t operation) const {
    IppMessage request = requestAbout(queue_, operation);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", id_);
    return request;
  }

  template <class Ask>
  IppMessage expect(Ask ask, const std::string &unanswered, const std::string &refused) const {
    IppMessage answer;
    try {
      answer = ask();
    } catch (const JobError &error) {
      fail(unanswered, error.what());
    }
    if (const std::string fault = faultIn(answer); !fault.empty()) fail(refused, fault);
    return answer;
  }

  [[noreturn]] void fail(const std::string &what, const std::string &why) const {
    throw JobError(fmt::format("the printer {} {}: {}", queue_, what, why));
  }

  CupsConnection &server_;
  std::string queue_;
  std::string resource_;
  std::string format_;  // of every document
  int id_ = 0;
  bool mayBePrinted_ = false;
};

/// Throws the error of a job that was not sent: `what` happened, and what to do about it.
[[noreturn]] void failWithAdvice(const std::string &what, ServerJob *job) {
  const bool isGone = !job || job->cancel(ServerJob::Leave::record);
  if (job && job->mayBePrinted())
    throw UnsureJobError(what +
                         ". It may have been printed: look at the queue before you print it again");
  throw JobError(what + (isGone ? ". Check the printer and try again"
                                : fmt::format(". Cancel its job {} and try again", job->id())));
}

}  // namespace

std::string documentName(const std::string &path) {
  return path == kStandardInput ? "(stdin)" : std::filesystem::path(path).filename().string();
}

std::optional<int> send(const PrintJob &job, const SendProgress &progress) {
  long long total = 0;
  auto documents = openDocuments(job.documents, total);
  long long sent = 0;
  bool isWanted = true;
  const auto goesOn = [&] { return isWanted = isWanted && progress(sent, total); };
  std::optional<CupsConnection> server;
  try {
    server.emplace(goesOn);
  } catch (const JobError &) {
    if (isWanted) throw;
    return {};
  }
  std::optional<ServerJob> serverJob;
  try {
    serverJob.emplace(*server, job);
    for (auto &document : documents) {
      const bool isLast = &document == &documents.back();
      const bool isWhole = serverJob->sendDocument(document, isLast, [&](std::size_t size) {
        sent += static_cast<long long>(size);
        return goesOn();
      });
      if (!isWhole) break;
      if (isLast) return serverJob->id();
    }
  } catch (const JobError &error) {
    if (isWanted) failWithAdvice(error.what(), serverJob ? &*serverJob : nullptr);
  } catch (const std::exception &error) {
    if (serverJob && serverJob->mayBePrinted()) failWithAdvice(error.what(), &*serverJob);
    if (serverJob) serverJob->cancel(ServerJob::Leave::record);
    throw;
  }
  if (serverJob && !serverJob->cancel(ServerJob::Leave::nothing))
    throw UnsureJobError(fmt::format(
        "the printer {} did not cancel its job {}, which may have been printed: look at the queue",
        job.queue, serverJob->id()));
  return {};
}

}  // namespace kwopde::host
