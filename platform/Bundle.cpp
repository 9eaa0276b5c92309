#include "platform/Bundle.h"

#include <utility>

namespace kwopde {

namespace {
InterfaceLoader *interfaceLoader = nullptr;
}

bool Bundle::loadNibNamed(std::string_view name, InterfaceOwner &owner) {
  return interfaceLoader && interfaceLoader->loadNibNamed(name, owner);
}

InterfaceLoader *Bundle::setInterfaceLoader(InterfaceLoader *loader) {
  return std::exchange(interfaceLoader, loader);
}

}  // namespace kwopde
