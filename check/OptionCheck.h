// Whether what a panel offers of an option can be marked.
#pragma once

#include <cups/ppd.h>

#include "check/Findings.h"
#include "check/PpdLines.h"
#include "platform/PanelInspector.h"

namespace kwopde::check {

/// Checks the kind, the default and the keywords of `option`.
void checkOption(ppd_file_t *ppd, ppd_option_t &option, const PanelOption &row,
                 const PpdLines::Option &lines, Findings &findings);

}  // namespace kwopde::check
