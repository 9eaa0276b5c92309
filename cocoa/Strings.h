// Text of the core, UTF-8, and string objects.
#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace kwopde::cocoa {

/// Returns an autoreleased string object; null and what is not UTF-8 give nil.
NSString *stringFrom(const std::string *text);
NSString *stringFrom(std::string_view text);

/// Returns the string object's text; nil gives an empty one.
std::string textOf(NSString *string);

}  // namespace kwopde::cocoa
