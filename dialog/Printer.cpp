#include "dialog/Printer.h"

#include "dialog/Question.h"
#include "host/Error.h"
#include "queue/Presets.h"

namespace kwopde::dialog {

Printer Printer::find(const std::string &destination, const host::GoesOn &goesOn) {
  Printer printer{host::PrintQueue(destination, goesOn), {}};
  printer.queue.fetch(goesOn);
  try {
    printer.presets = host::Presets(printer.queue.name(), goesOn).names();
  } catch (const host::Error &) {
    // Told when the menu of presets is used.
  }
  return printer;
}

std::optional<QString> Printer::tellOfNewPpd(QWidget *window, const QString &destination,
                                             const host::PpdSession &session) {
  const QString queue = destination.section('/', 0, 0);
  const auto ask = [name = queue.toStdString(),
                    known = session.ppd().fingerprint()](const host::GoesOn &goesOn) {
    return host::PrintQueue::hasOtherPpd(name, known, goesOn);
  };
  try {
    const auto isOther = askAndWait(window, ask);
    if (!isOther && window) return {};
    if (isOther.value_or(false))
      return tr("The printer %1 has got another PPD on its server since this dialog read it.")
          .arg(queue);
  } catch (const host::Error &) {
    // Whoever sends the job is told.
  }
  return QString();
}

Prepare Printer::copyOf(const host::PpdSession &session) {
  return [set = session.settledChoices()](host::PpdSession &other) {
    // What the queue gives or has saved does not come back over a default that was set.
    for (const auto &[key, choice, isDefault] : set)
      if (!isDefault || !other.hasDefaultOfPpd(key)) other.mark(key, choice);
  };
}

}  // namespace kwopde::dialog
