#include "app/JobReport.h"

#include "app/Output.h"

namespace kwopde::app {

void printChoices(const std::vector<host::OptionChoice> &choices) {
  for (const auto &[key, choice] : choices) printLine("{}={}", key, choice);
}

void reportSent(const host::PrintJob &job, int id) {
  tell("sent job {}-{}", job.queue, id);
}

}  // namespace kwopde::app
