#include "host/PrintJob.h"

#include <cups/cups.h>
#include <fmt/format.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

#include "host/CupsOptions.h"
#include "host/Error.h"
#include "host/PrintQueue.h"

namespace kwopde::host {

namespace {

struct CloseStream {
  void operator()(std::FILE *stream) const { std::fclose(stream); }
};

struct Document {
  std::string name;
  std::unique_ptr<std::FILE, CloseStream> stream;
};

std::vector<Document> openDocuments(const std::vector<std::string> &paths, long long &total) {
  std::vector<Document> documents;
  for (const std::string &path : paths) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    Document document{std::filesystem::path(path).filename(), {}};
    if (!error) document.stream.reset(std::fopen(path.c_str(), "rb"));
    if (!document.stream)
      throw Error(fmt::format("{}: {}", path, error ? error.message() : std::strerror(errno)));
    total += static_cast<long long>(size);
    documents.push_back(std::move(document));
  }
  return documents;
}

/// A job on the server; one that was not finished is cancelled there.
class ServerJob {
public:
  ServerJob(http_t *server, const PrintJob &job) : server_(server), queue_(job.queue) {
    CupsOptions options(job.options);
    id_ = cupsCreateJob(server, queue_.c_str(), job.title.c_str(), options.count, options.options);
    if (id_ == 0) fail("took no job");
  }
  ServerJob(const ServerJob &) = delete;
  ServerJob &operator=(const ServerJob &) = delete;
  ~ServerJob() {
    if (!finished_ && id_ != 0) cancel();
  }

  int id() const { return id_; }

  /// False when `progress` cancelled.
  bool sendDocument(Document &document, bool isLast,
                    const std::function<bool(long long)> &progress) {
    if (cupsStartDocument(server_, queue_.c_str(), id_, document.name.c_str(), CUPS_FORMAT_AUTO,
                          isLast) != HTTP_STATUS_CONTINUE)
      fail("did not take the document " + document.name);
    std::array<char, 65536> block;
    while (const auto size = std::fread(block.data(), 1, block.size(), document.stream.get())) {
      if (cupsWriteRequestData(server_, block.data(), size) != HTTP_STATUS_CONTINUE)
        fail("stopped listening");
      if (!progress(static_cast<long long>(size))) return false;
    }
    if (std::ferror(document.stream.get()))
      throw Error(fmt::format("{}: {}", document.name, std::strerror(errno)));
    if (cupsFinishDocument(server_, queue_.c_str()) > IPP_STATUS_OK_CONFLICTING)
      fail("refused the document " + document.name);
    finished_ = isLast;
    return true;
  }

private:
  [[noreturn]] void fail(const std::string &what) {
    std::string reason = cupsLastErrorString();
    if (reason.ends_with('.')) reason.pop_back();
    if (id_ != 0) cancel();
    id_ = 0;
    throw JobError(fmt::format("the printer {} {}: {}. Check the printer and try again", queue_,
                               what, reason));
  }

  void cancel() {
    // On a connection of its own: the other one may be in the middle of a document.
    try {
      const CupsConnection server;
      cupsCancelJob2(server.get(), queue_.c_str(), id_, 0);
    } catch (const JobError &) {
      // Without a server there is no job either.
    }
  }

  http_t *server_;
  std::string queue_;
  int id_ = 0;
  bool finished_ = false;
};

}  // namespace

std::optional<int> send(const PrintJob &job, const SendProgress &progress) {
  long long total = 0;
  auto documents = openDocuments(job.documents, total);
  const CupsConnection server;
  ServerJob serverJob(server.get(), job);
  long long sent = 0;
  for (auto &document : documents) {
    const bool isLast = &document == &documents.back();
    const bool whole = serverJob.sendDocument(document, isLast, [&](long long size) {
      sent += size;
      return progress(sent, total);
    });
    if (!whole) return {};
  }
  return serverJob.id();
}

}  // namespace kwopde::host
