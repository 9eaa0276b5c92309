#include "tests/support/RecordingHost.h"

#include <QRegularExpression>
#include <QString>
#include <utility>

#include "plugin/PDELogging.h"

namespace kwopde::test {

bool RecordingHost::willChangePPDOptionKeyValue(const std::string *key, const std::string *choice) {
  requests.push_back((key ? *key : "nil") + "=" + (choice ? *choice : "nil"));
  ppd_option_t *option = key ? ppdFindOption(ppd_, key->c_str()) : nullptr;
  if (refuses || !option || !choice || !ppdFindChoice(option, choice->c_str())) return false;
  ppdMarkOption(ppd_, key->c_str(), choice->c_str());
  return true;
}

TraceRecorder::TraceRecorder() : before_(setTraceSink(this)) {}

TraceRecorder::~TraceRecorder() {
  setTraceSink(before_);
}

std::vector<std::string> TraceRecorder::take() {
  static const QRegularExpression address("0x[1-9a-f][0-9a-f]*");
  for (std::string &line : lines_)
    line = QString::fromStdString(line).replace(address, "0x1").toStdString();
  return std::exchange(lines_, {});
}

std::vector<std::string> TraceRecorder::takeMessages() {
  static const QRegularExpression self("^ *(BEGIN|END|LOG) self\\(<[^>]*>\\) ");
  auto lines = take();
  for (std::string &line : lines)
    line = QString::fromStdString(line).replace(self, "\\1 ").toStdString();
  return lines;
}

}  // namespace kwopde::test
