#include "cocoa/SystemLog.h"

#import <Foundation/Foundation.h>
#include <utf8.h>

#include "cocoa/Strings.h"

namespace kwopde::cocoa {

void SystemLog::writeLine(std::string_view line) {
  NSLog(@"%@", stringFrom(utf8::replace_invalid(line)));
}

}  // namespace kwopde::cocoa
