// Loads interface files made with Xcode's Interface Builder.
#pragma once

#include "platform/Bundle.h"

namespace kwopde::cocoa {

/// Looks for the files in the bundle that this code is in.
class CocoaInterfaceLoader final : public InterfaceLoader {
public:
  bool loadNibNamed(std::string_view name, InterfaceOwner &owner) override;
};

}  // namespace kwopde::cocoa
