// What a panel may ask of the print dialog.
#pragma once

#include <cups/ppd.h>

#include <string>
#include <string_view>

#include "platform/Object.h"

namespace kwopde {

/// The selector that `HostCallback::respondsToSelector` is asked for.
inline constexpr std::string_view kWillChangePPDOptionKeyValue =
    "willChangePPDOptionKeyValue:ppdChoice:";

/// The host's callback object, which is its host-info object too. A panel retains it.
class HostCallback : public Object {
public:
  /// The open PPD of the queue, or null. It belongs to the host and must stay open, at the same
  /// address, for as long as a panel lives.
  virtual ppd_file_t *ppdFile() = 0;

  /// Whether the host answers the operation. A host that does not answer
  /// `kWillChangePPDOptionKeyValue` gets panels that show but never change the PPD.
  virtual bool respondsToSelector(std::string_view selector) const = 0;

  /// Asks the host to mark the choice with keyword `ppdChoice` of the option `key`. True when it is
  /// marked now; otherwise the marks are as before. The host may mark other options too, and may
  /// announce those from inside the call. Either argument can be null, which is to be refused.
  virtual bool willChangePPDOptionKeyValue(const std::string *key,
                                           const std::string *ppdChoice) = 0;
};

}  // namespace kwopde
