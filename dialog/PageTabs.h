// What every dialog with pages in its tabs has: keys that turn the tabs, and help.
#pragma once

class QDialogButtonBox;
class QPushButton;
class QTabWidget;

namespace kwopde::dialog {

/// Lets Ctrl+Tab and Ctrl+Shift+Tab turn the tabs wherever the focus is in the window, which Qt
/// does only while it is inside them.
void addTabKeys(QTabWidget &tabs);

/// Adds a button to `buttons`, and the help key, for the help of the page that is open. It is
/// disabled while that is no page of ours. Owned by `buttons`.
QPushButton *addHelp(QDialogButtonBox &buttons, QTabWidget &tabs);

}  // namespace kwopde::dialog
