// What a dialog has to know of a printer before it shows the panels.
#pragma once

#include <QCoreApplication>
#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "queue/PrintQueue.h"

class QWidget;

namespace kwopde::dialog {

/// Sets up a session before its panels are shown.
using Prepare = std::function<void(host::PpdSession &)>;

struct Printer {
  Q_DECLARE_TR_FUNCTIONS(kwopde::dialog::Printer)

public:
  host::PrintQueue queue;  // fetched
  std::vector<std::string> presets;

  /// Asks the server for the printer, or preset of one, `destination` ("photo/glossy"); in any
  /// thread. Throws as `PrintQueue` does; without presets when only those did not come.
  static Printer find(const std::string &destination, const host::GoesOn &goesOn);

  /// Asks whether `destination` has another PPD now than that of `session`; waits as `askAndWait`
  /// does. Returns a sentence that says so; an empty one when it has not, or the server does not
  /// answer in time; none when a person cancelled.
  static std::optional<QString> tellOfNewPpd(QWidget *window, const QString &destination,
                                             const host::PpdSession &session);

  /// Returns what marks in another session of the printer what is set in this one, as far as that
  /// has it. What is the PPD's default in both stays so.
  static Prepare copyOf(const host::PpdSession &session);
};

}  // namespace kwopde::dialog
