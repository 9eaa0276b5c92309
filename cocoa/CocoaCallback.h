// The host's callback object in an AppKit dialog.
#pragma once

#include "cocoa/NativeObject.h"
#include "platform/HostCallback.h"

namespace kwopde::cocoa {

class CocoaCallback final : public NativeObject<HostCallback> {
public:
  using NativeObject::NativeObject;

  /// Returns null when the host has no operation of this name.
  ppd_file_t *ppdFile() override;
  bool respondsToSelector(std::string_view selector) const override;
  bool willChangePPDOptionKeyValue(const std::string *key, const std::string *ppdChoice) override;
};

}  // namespace kwopde::cocoa
