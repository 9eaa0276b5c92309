// A print-support plug-in of Qt that is the one for CUPS, and attaches the panels to every print
// dialog of the process. Qt loads it at a process's first QPrinter where QT_PRINTER_MODULE=kwopde.
#include <qpa/qplatformprintersupport.h>
#include <qpa/qplatformprintplugin.h>

#include <QApplication>
#include <QEvent>
#include <QPluginLoader>
#include <QPrintDialog>

#include "attach/kwopde/attach.h"

namespace kwopde {

namespace {

/// Attaches the panels to each dialog that is about to be shown for the first time.
class Attaching final : public QObject {
public:
  using QObject::QObject;

  bool eventFilter(QObject *object, QEvent *event) override {
    if (event->type() == QEvent::Polish)
      if (auto *dialog = qobject_cast<QPrintDialog *>(object)) attachPanels(dialog);
    return false;
  }
};

/// Watches the dialogs of the process from now on; an application without widgets has none.
void watchDialogs() {
  auto *const application = qobject_cast<QApplication *>(QCoreApplication::instance());
  if (!application) return;
  const auto watch = [application] { application->installEventFilter(new Attaching(application)); };
  // A printer can be made in any thread, and a dialog in this one only.
  QMetaObject::invokeMethod(application, watch, Qt::AutoConnection);
}

/// Returns Qt's support for CUPS, owned by the caller; null where Qt has none.
QPlatformPrinterSupport *cupsSupport() {
  for (const QString &folder : QCoreApplication::libraryPaths()) {
    QPluginLoader loader(folder + "/printsupport/libcupsprintersupport.so");
    if (auto *plugin = qobject_cast<QPlatformPrinterSupportPlugin *>(loader.instance()))
      return plugin->create("cupsprintersupport");
  }
  return nullptr;
}

}  // namespace

class PrinterSupportPlugin final : public QPlatformPrinterSupportPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QPlatformPrinterSupportFactoryInterface_iid FILE "kwopde.json")

public:
  QPlatformPrinterSupport *create(const QString &) override {
    watchDialogs();
    return cupsSupport();
  }
};

}  // namespace kwopde

#include "PrinterSupportPlugin.moc"
