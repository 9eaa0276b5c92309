// What the tabs of Qt's own print dialog have set on a QPrinter, by CUPS's names.
#pragma once

#include <QPrintDialog>
#include <QPrinter>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "host/JobOptions.h"

namespace kwopde::dialog {

/// Lets `job` carry what `dialog`, once accepted, has set on its printer in place of what is saved:
/// sides, copies and order, and from its Properties paper size, orientation, pages per sheet
/// and the rest, named as Qt's print engine names them. What the dialog shows as nothing chosen
/// replaces a saved choice too. Properties that nobody has opened have shown nothing, and what is
/// saved stands.
void setPrinterOptions(const QPrintDialog &dialog, host::JobOptions &job);

/// Lets `job` carry the sides and the paper that `dialog` shows now, which are not on its printer
/// before it is accepted.
void setShownOptions(const QPrintDialog &dialog, host::JobOptions &job);

/// Returns the paper that the Properties of `dialog` show, by the PPD's name; none when nobody has
/// opened them.
std::optional<std::string> shownPaper(const QPrintDialog &dialog);

/// Returns the choice of the PPD option Duplex that is set on `printer`.
std::string duplexChoice(const QPrinter &printer);

/// Returns the options of a PPD that Qt's tabs have in hand.
std::set<std::string> optionsOfQt();

/// Returns the print engine's list of CUPS options. KDE's applications use it too.
std::vector<host::OptionChoice> cupsOptions(const QPrinter &printer);

/// Replaces that list.
void setCupsOptions(QPrinter &printer, const std::vector<host::OptionChoice> &options);

}  // namespace kwopde::dialog
