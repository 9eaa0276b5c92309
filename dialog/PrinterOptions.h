// What the tabs of Qt's own print dialog have set on a QPrinter, by CUPS's names.
#pragma once

#include <QPrinter>
#include <set>
#include <string>
#include <vector>

#include "host/JobOptions.h"

namespace kwopde::dialog {

/// Lets `job` carry what the tabs of Qt's dialog hold, in place of what is saved for it, named as
/// Qt's print engine names it: paper size, sides, copies, orientation, and what is in
/// `cupsOptions`. What the tabs show and Qt does not write down is taken as they show it: a saved
/// "hold for ever" is gone when the tab says "Print Immediately".
void setPrinterOptions(const QPrinter &printer, host::JobOptions &job);

/// Returns the choice of the PPD option Duplex that is set on `printer`.
std::string duplexChoice(const QPrinter &printer);

/// Returns the options of a PPD that Qt's tabs have in hand.
std::set<std::string> optionsOfQt();

/// Returns the print engine's list of CUPS options. KDE's applications use it too.
std::vector<host::OptionChoice> cupsOptions(const QPrinter &printer);

/// Replaces that list.
void setCupsOptions(QPrinter &printer, const std::vector<host::OptionChoice> &options);

}  // namespace kwopde::dialog
