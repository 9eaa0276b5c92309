// The constraints of a PPD, UIConstraints and cupsUIConstraints alike.
#pragma once

#include <cups/ppd.h>

#include <optional>
#include <string>
#include <vector>

#include "host/CupsOptions.h"

namespace kwopde::host {

/// Returns the marked choices of other options that `choice` of `option` does not go with, whether
/// it is marked or not. Conflicts that the others have among themselves do not count.
std::vector<OptionChoice> conflictsOf(ppd_file_t *ppd, const ppd_option_t &option,
                                      const std::string &choice);

/// Returns every marked choice that does not go with another one.
std::vector<OptionChoice> allConflicts(ppd_file_t *ppd);

/// Returns what to mark, besides `choice` of `option`, so that nothing conflicts any more; none
/// when the CUPS library finds nothing. Marks nothing.
std::optional<std::vector<OptionChoice>> resolve(ppd_file_t *ppd, const ppd_option_t &option,
                                                 const std::string &choice);

}  // namespace kwopde::host
