#include "cocoa/Strings.h"

namespace kwopde::cocoa {

NSString *stringFrom(std::string_view text) {
  return [[[NSString alloc] initWithBytes:text.data()
                                   length:text.size()
                                 encoding:NSUTF8StringEncoding] autorelease];
}

NSString *stringFrom(const std::string *text) {
  return text ? stringFrom(std::string_view(*text)) : nil;
}

std::string textOf(NSString *string) {
  const char *text = [string UTF8String];
  return text ? text : "";
}

}  // namespace kwopde::cocoa
