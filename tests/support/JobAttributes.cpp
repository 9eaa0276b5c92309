#include "tests/support/JobAttributes.h"

#include <cups/cups.h>

#include <algorithm>
#include <array>

namespace kwopde::test {

std::map<std::string, std::string> attributesOf(int job) {
  ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr,
               ("ipp://localhost/jobs/" + std::to_string(job)).c_str());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ipp_t *response = cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/");
  std::map<std::string, std::string> attributes;
  for (auto *found = ippFirstAttribute(response); found; found = ippNextAttribute(response)) {
    std::array<char, 512> text{};
    ippAttributeString(found, text.data(), text.size());
    if (const char *name = ippGetName(found)) attributes[name] = text.data();
  }
  ippDelete(response);
  return attributes;
}

int lastJob() {
  cups_job_t *jobs = nullptr;
  const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
  int last = 0;
  for (int i = 0; i < count; ++i) last = std::max(last, jobs[i].id);
  cupsFreeJobs(count, jobs);
  return last;
}

}  // namespace kwopde::test
