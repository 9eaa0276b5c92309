#include "cocoa/CocoaBundle.h"

#include "cocoa/Strings.h"

namespace kwopde::cocoa {

std::optional<std::string> CocoaBundle::localizedStringForKey(const std::string &key,
                                                              const std::string *value,
                                                              const std::string *table) const {
  return textOf([bundle_ localizedStringForKey:stringFrom(&key)
                                         value:stringFrom(value)
                                         table:stringFrom(table)]);
}

}  // namespace kwopde::cocoa
