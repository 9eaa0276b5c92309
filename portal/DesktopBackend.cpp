#include "portal/DesktopBackend.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QStandardPaths>
#include <limits>

#include "portal/PrintPortal.h"

namespace kwopde::portal {

namespace {

/// A backend that some package has installed.
struct Backend {
  QString busName;
  QStringList desktops;  // lower case
};

/// Returns the values of a key file with one group; QSettings takes a semicolon for the line's end.
QHash<QString, QString> valuesIn(const QString &path) {
  QHash<QString, QString> values;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return values;
  for (const QString &line : QString::fromUtf8(file.readAll()).split('\n')) {
    const auto sign = line.indexOf('=');
    if (sign > 0) values[line.left(sign).trimmed()] = line.mid(sign + 1).trimmed();
  }
  return values;
}

QList<Backend> printBackends() {
  QList<Backend> backends;
  const auto folders =
      QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, "xdg-desktop-portal/portals",
                                QStandardPaths::LocateDirectory);
  for (const QString &folder : folders)
    for (const QFileInfo &file :
         QDir(folder).entryInfoList({"*.portal"}, QDir::Files, QDir::Name)) {
      const auto values = valuesIn(file.filePath());
      const QString name = values.value("DBusName");
      if (name == kBusName || !values.value("Interfaces").split(';').contains(kPrintInterface))
        continue;
      backends.append({name, values.value("UseIn").toLower().split(';')});
    }
  return backends;
}

QDBusMessage callTo(const QString &backend, const QString &path, const QString &interface,
                    const QString &method) {
  return QDBusMessage::createMethodCall(backend, path, interface, method);
}

}  // namespace

QString desktopBackend(const QString &desktop) {
  const QList<Backend> backends = printBackends();
  // GTK's serves every desktop that has none.
  for (const QString &wanted : desktop.toLower().split(':') + QStringList{"gtk"})
    for (const Backend &backend : backends)
      if (backend.desktops.contains(wanted) || backend.busName.endsWith('.' + wanted))
        return backend.busName;
  return backends.isEmpty() ? QString() : backends.front().busName;
}

void forward(Request &request, const QString &backend) {
  QDBusMessage call = callTo(backend, kObjectPath, kPrintInterface, request.call().member());
  call.setArguments(request.call().arguments());
  QDBusConnection bus = QDBusConnection::sessionBus();
  // A person takes as long as it takes.
  auto *answer =
      new QDBusPendingCallWatcher(bus.asyncCall(call, std::numeric_limits<int>::max()), &request);
  QObject::connect(answer, &QDBusPendingCallWatcher::finished, &request,
                   [&request, answer] { request.answer(answer->reply()); });
  const QString path = request.call().arguments().value(0).value<QDBusObjectPath>().path();
  QObject::connect(&request, &Request::closed, &request, [backend, path] {
    QDBusConnection::sessionBus().send(
        callTo(backend, path, "org.freedesktop.impl.portal.Request", "Close"));
  });
}

}  // namespace kwopde::portal
