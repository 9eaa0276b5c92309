#include "cocoa/CocoaCallback.h"

#include "cocoa/BundleClasses.h"

namespace kwopde::cocoa {

ppd_file_t *CocoaCallback::ppdFile() {
  return [native_ respondsToSelector:@selector(ppdFile)] ? [native_ ppdFile] : nullptr;
}

bool CocoaCallback::respondsToSelector(std::string_view selector) const {
  return [native_ respondsToSelector:NSSelectorFromString(stringFrom(selector))];
}

bool CocoaCallback::willChangePPDOptionKeyValue(const std::string *key,
                                                const std::string *ppdChoice) {
  return [native_ willChangePPDOptionKeyValue:stringFrom(key) ppdChoice:stringFrom(ppdChoice)];
}

}  // namespace kwopde::cocoa
