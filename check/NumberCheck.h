// Whether panels can show and save the numbers of a PPD.
#pragma once

#include <cups/ppd.h>

#include <string>

#include "check/Findings.h"
#include "check/PpdLines.h"
#include "platform/PanelInspector.h"

namespace kwopde::check {

/// Checks that a panel reads the number that a choice stands for from `text`, shown for it at
/// `place`. A choice that stands for none is left alone.
void checkNumberText(const ppd_choice_t &choice, const std::string &text, const PanelOption &row,
                     const FaultyChoice &place, Findings &findings);

/// Checks that what a panel shows of the numbers of `option`, and all that its slider reaches, can
/// be saved. `slider` is null when there is none.
void checkNumbers(ppd_file_t *ppd, ppd_option_t &option, const PanelOption &row,
                  const Slider *slider, const PpdLines::Option &lines, Findings &findings);

}  // namespace kwopde::check
