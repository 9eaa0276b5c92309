#include "cocoa/CocoaBundle.h"

namespace kwopde::cocoa {

std::optional<std::string> CocoaBundle::localizedStringForKey(const std::string &key,
                                                              const std::string *value,
                                                              const std::string *table) const {
  NSString *text = [native_ localizedStringForKey:stringFrom(&key)
                                            value:stringFrom(value)
                                            table:stringFrom(table)];
  return text ? std::optional(textOf(text)) : std::nullopt;
}

}  // namespace kwopde::cocoa
