#include "tests/support/RecordingHost.h"

#include <regex>

#include "plugin/PDELogging.h"

namespace kwopde::test {

bool RecordingHost::willChangePPDOptionKeyValue(const std::string *key, const std::string *choice) {
  requests.push_back((key ? *key : "nil") + "=" + (choice ? *choice : "nil"));
  if (duringRequest) duringRequest();
  ppd_option_t *option = key ? ppdFindOption(ppd_, key->c_str()) : nullptr;
  if (refuses || !option || !choice || !ppdFindChoice(option, choice->c_str())) return false;
  ppdMarkOption(ppd_, key->c_str(), choice->c_str());
  return true;
}

TraceRecorder::TraceRecorder() {
  setTraceSink(this);
}

TraceRecorder::~TraceRecorder() {
  setTraceSink(nullptr);
}

std::vector<std::string> TraceRecorder::take() {
  static const std::regex address("0x[1-9a-f][0-9a-f]*");
  for (std::string &line : lines_) line = std::regex_replace(line, address, "0x1");
  return std::exchange(lines_, {});
}

std::vector<std::string> TraceRecorder::takeMessages() {
  static const std::regex self("^ *(BEGIN|END|LOG) self\\(<[^>]*>\\) ");
  auto lines = take();
  for (std::string &line : lines) line = std::regex_replace(line, self, "$1 ");
  return lines;
}

}  // namespace kwopde::test
