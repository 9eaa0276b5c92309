// kwopde-portal: the backend of the desktop's print portal. The bus starts it when an application
// asks; it ends when nothing is left to do.
#include <QCoreApplication>
#include <QDBusConnection>

#include "portal/PrintPortal.h"

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  QObject desktop;
  const auto *const portal = new kwopde::portal::PrintPortal(&desktop);
  QObject::connect(portal, &kwopde::portal::PrintPortal::idle, &application,
                   &QCoreApplication::quit);
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.registerObject(kwopde::portal::kObjectPath, &desktop) ||
      !bus.registerService(kwopde::portal::kBusName)) {
    qCritical("kwopde-portal: %s", qPrintable(bus.lastError().message()));
    return 1;
  }
  return QCoreApplication::exec();
}
