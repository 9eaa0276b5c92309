// A bundle of the system as the core sees it.
#pragma once

#import <AppKit/AppKit.h>

#include "platform/Bundle.h"

namespace kwopde::cocoa {

/// Borrows the bundle. A string table is a file TABLE.strings, the usual one Localizable.strings.
class CocoaBundle final : public Bundle {
public:
  explicit CocoaBundle(NSBundle *bundle) : bundle_(bundle) {}

  std::string_view className() const override { return "NSBundle"; }
  std::optional<std::string> localizedStringForKey(const std::string &key, const std::string *value,
                                                   const std::string *table) const override;

private:
  NSBundle *bundle_;
};

}  // namespace kwopde::cocoa
