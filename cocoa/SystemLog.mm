#include "cocoa/SystemLog.h"

#include "cocoa/Strings.h"

namespace kwopde::cocoa {

void SystemLog::writeLine(std::string_view line) {
  NSLog(@"%@", stringFrom(line));
}

}  // namespace kwopde::cocoa
