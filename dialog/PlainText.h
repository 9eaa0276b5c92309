// Texts from elsewhere, shown as they are: a server, a PPD or a file name must not bring markup.
#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace kwopde::dialog {

/// Makes a label that shows `text`, where a line starts in the application's reading direction: Qt
/// goes by that of the text.
QLabel *plainLabel(const QString &text);

/// Lets every label in `window` show its text as it is, also those that Qt made.
void showPlainly(QWidget &window);

/// Tells the person at `window`, and waits until that is read, or the window is deleted.
void warn(QWidget *window, const QString &text);

/// Tells the person, and the application's log, without waiting: in front of the window from which
/// `closing` was opened.
void tell(const QWidget &closing, const QString &text);

/// Tells the application's log, on one line.
void log(const char *text);

/// Asks the person at `window`. Returns whether they chose `verb`.
bool confirm(QWidget *window, const QString &question, const QString &verb);

}  // namespace kwopde::dialog
