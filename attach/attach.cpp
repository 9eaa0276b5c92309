#include "attach/kwopde/attach.h"

#include <QEvent>
#include <QPrintDialog>

#include "dialog/ModuleLoader.h"
#include "dialog/PlainText.h"
#include "dialog/PrintDialogPanels.h"
#include "dialog/Translations.h"
#include "host/Error.h"

namespace kwopde {

namespace {

/// Settles the panels when the dialog goes away accepted. That is before anybody hears `accepted`,
/// whatever the application connected to it, and however it opened the dialog.
class Settling final : public QObject {
public:
  Settling(QPrintDialog &dialog, dialog::PrintDialogPanels &panels)
      : QObject(&panels), dialog_(dialog), panels_(panels) {
    dialog.installEventFilter(this);
  }

  bool eventFilter(QObject *, QEvent *event) override {
    if (event->type() == QEvent::Hide && dialog_.result() == QDialog::Accepted) settle();
    return false;
  }

private:
  void settle() {
    panels_.settle();
    panels_.handOver();
    // The application prints now, so this can only be told. Waiting would handle events, and Qt
    // does not survive that the application deletes the dialog while it is being hidden.
    QStringList problems = panels_.refusals();
    const QString replaced = panels_.followPpd(nullptr).value_or(QString());
    if (!replaced.isEmpty()) problems.append(replaced);
    if (const QString conflicts = panels_.conflicts(); !conflicts.isEmpty())
      problems.append(conflicts);
    if (problems.isEmpty()) return;
    dialog::tell(dialog_, problems.join("\n\n"));
  }

  QPrintDialog &dialog_;
  dialog::PrintDialogPanels &panels_;
};

}  // namespace

bool attachPanels(QPrintDialog *dialog, bool openOptions) {
  if (!dialog) return false;
  if (dialog->property(dialog::kHasPanels).toBool()) return true;
  try {
    PlugInModule &module = dialog::loadModule();
    dialog::installTranslations();
    new Settling(*dialog, *new dialog::PrintDialogPanels(module, *dialog));  // the dialog's
    if (openOptions) dialog::expandOptions(*dialog);
    return true;
  } catch (const host::Error &error) {
    dialog::log(error.what());
    return false;
  }
}

}  // namespace kwopde
