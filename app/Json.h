// JSON as a result of a command.
#pragma once

#include <nlohmann/json.hpp>

namespace kwopde::app {

/// Writes `json` as a line to standard output, or with an `indent` as several. Bytes that are no
/// text are U+FFFD, and what would be a control character on a terminal is escaped.
void writeJson(const nlohmann::json &json, int indent = -1);

}  // namespace kwopde::app
