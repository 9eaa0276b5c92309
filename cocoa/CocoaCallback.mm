#include "cocoa/CocoaCallback.h"

#include "cocoa/BundleClasses.h"
#include "cocoa/Strings.h"

namespace kwopde::cocoa {

CocoaCallback::CocoaCallback(id host)
    : host_(host), className_(textOf(NSStringFromClass([host class]))) {}

ppd_file_t *CocoaCallback::ppdFile() {
  return [host_ respondsToSelector:@selector(ppdFile)] ? [host_ ppdFile] : nullptr;
}

bool CocoaCallback::respondsToSelector(std::string_view selector) const {
  return [host_ respondsToSelector:NSSelectorFromString(stringFrom(selector))];
}

bool CocoaCallback::willChangePPDOptionKeyValue(const std::string *key,
                                                const std::string *ppdChoice) {
  return [host_ willChangePPDOptionKeyValue:stringFrom(key) ppdChoice:stringFrom(ppdChoice)];
}

}  // namespace kwopde::cocoa
