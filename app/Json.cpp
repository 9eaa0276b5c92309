#include "app/Json.h"

#include <string>

#include "app/Output.h"
#include "platform/Escaped.h"

namespace kwopde::app {

void writeJson(const nlohmann::json &json, int indent) {
  const auto text = [&](int by, bool asAscii) {
    return json.dump(by, ' ', asAscii, nlohmann::json::error_handler_t::replace);
  };
  // Those above ASCII are the only ones that JSON lets stand.
  writeResult(text(indent, !isPlain(text(-1, false))) + '\n');
}

}  // namespace kwopde::app
