#include "tests/support/JobAttributes.h"

#include <cups/cups.h>

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
  int job = 0;
  while (attributesOf(job + 1).count("job-id") > 0) ++job;
  return job;
}

}  // namespace kwopde::test
