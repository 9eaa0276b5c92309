#include "app/JobReport.h"

#include "app/Json.h"
#include "app/Output.h"

namespace kwopde::app {

namespace {

nlohmann::json toJson(const std::vector<host::OptionChoice> &choices) {
  auto object = nlohmann::json::object();
  for (const auto &[key, choice] : choices) object[key] = choice;
  return object;
}

}  // namespace

void JobReport::write(bool asJson) const {
  if (!asJson) {
    for (const auto &[key, choice] : choices) printLine("{}={}", key, choice);
    if (job) tell("sent job {}-{}", job->queue, id);
    return;
  }
  nlohmann::json report{{"choices", toJson(choices)}};
  if (job)
    report["job"] = {{"id", id},
                     {"printer", job->queue},
                     {"title", job->title},
                     {"options", toJson(job->options)}};
  writeJson(report);
}

}  // namespace kwopde::app
