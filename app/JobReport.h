// What a command tells of a job.
#pragma once

#include <vector>

#include "queue/PrintJob.h"

namespace kwopde::app {

/// Writes the choices that a job carries to standard output, a `key=choice` line each.
void printChoices(const std::vector<host::OptionChoice> &choices);

/// Tells on standard error that `job` was sent and got the number `id`.
void reportSent(const host::PrintJob &job, int id);

}  // namespace kwopde::app
