#include "app/JobReport.h"

#include <fmt/format.h>

#include <cstdio>

namespace kwopde::app {

void printChoices(const std::vector<host::OptionChoice> &choices) {
  for (const auto &[key, choice] : choices) fmt::print("{}={}\n", key, choice);
}

void reportSent(const host::PrintJob &job, int id) {
  fmt::print(stderr, "sent job {}-{}\n", job.queue, id);
}

}  // namespace kwopde::app
