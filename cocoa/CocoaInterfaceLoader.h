// Loads interface files made with Xcode's Interface Builder.
#pragma once

#import <Foundation/Foundation.h>

#include "platform/Bundle.h"

/// What an object answers that interface files are loaded for. It takes an outlet by "setOUTLET:".
@protocol KWOPDEOutlets
/// Gives up the outlets that were set since the last call, by name.
- (NSDictionary *)takeOutlets;
@end

namespace kwopde::cocoa {

/// The owner that it is given has to stand for an object with outlets, which the file is loaded for
/// and whose bundle has the file.
class CocoaInterfaceLoader final : public InterfaceLoader {
public:
  bool loadNibNamed(std::string_view name, InterfaceOwner &owner) override;
};

}  // namespace kwopde::cocoa
