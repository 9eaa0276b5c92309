#include "platform/SystemLog.h"

#include <syslog.h>
#include <unistd.h>

namespace kwopde {

void SystemLog::writeLine(std::string_view line) {
  syslog(LOG_USER | LOG_INFO, "[%ld] %.*s", static_cast<long>(getpid()),
         static_cast<int>(line.size()), line.data());
}

}  // namespace kwopde
