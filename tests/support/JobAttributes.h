// What a job on the private server carries.
#pragma once

#include <map>
#include <string>

namespace kwopde::test {

/// Returns the attributes of the job, by name; none when the server has no such job.
std::map<std::string, std::string> attributesOf(int job);

/// Returns the number of the newest job; 0 when there was none.
int lastJob();

}  // namespace kwopde::test
