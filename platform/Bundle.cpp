#include "platform/Bundle.h"

namespace kwopde {

namespace {
InterfaceLoader *interfaceLoader = nullptr;
}

bool Bundle::loadNibNamed(std::string_view name, InterfaceOwner &owner) {
  return interfaceLoader && interfaceLoader->loadNibNamed(name, owner);
}

void Bundle::setInterfaceLoader(InterfaceLoader *loader) {
  interfaceLoader = loader;
}

}  // namespace kwopde
