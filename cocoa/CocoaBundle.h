// A bundle of the system as the core sees it.
#pragma once

#include "cocoa/NativeObject.h"
#include "platform/Bundle.h"

namespace kwopde::cocoa {

/// A string table is a file TABLE.strings, the usual one Localizable.strings.
class CocoaBundle final : public NativeObject<Bundle> {
public:
  using NativeObject::NativeObject;

  std::optional<std::string> localizedStringForKey(const std::string &key, const std::string *value,
                                                   const std::string *table) const override;
};

}  // namespace kwopde::cocoa
