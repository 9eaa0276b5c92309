// The host's callback object in an AppKit dialog.
#pragma once

#import <AppKit/AppKit.h>

#include "platform/HostCallback.h"

namespace kwopde::cocoa {

/// Borrows the host's callback object: every panel object retains it on its own.
class CocoaCallback final : public HostCallback {
public:
  explicit CocoaCallback(id host);

  std::string_view className() const override { return className_; }

  /// Returns null when the host has no operation of this name.
  ppd_file_t *ppdFile() override;
  bool respondsToSelector(std::string_view selector) const override;
  bool willChangePPDOptionKeyValue(const std::string *key, const std::string *ppdChoice) override;

private:
  id host_;
  std::string className_;
};

}  // namespace kwopde::cocoa
