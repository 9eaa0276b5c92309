#include "portal/Request.h"

#include <QDBusObjectPath>
#include <utility>

namespace kwopde::portal {

Request::Request(const QDBusMessage &call)
    : call_(call),
      caller_(call.service(), QDBusConnection::sessionBus(),
              QDBusServiceWatcher::WatchForUnregistration) {
  call_.setDelayedReply(true);
  connect(&caller_, &QDBusServiceWatcher::serviceUnregistered, this, &Request::Close);
  const auto path = call_.arguments().value(0).value<QDBusObjectPath>().path();
  QDBusConnection::sessionBus().registerObject(path, this, QDBusConnection::ExportScriptableSlots);
}

void Request::answer(Response response, const QVariantMap &results) {
  send(call_.createReply({static_cast<quint32>(response), results}));
}

void Request::answer(const QDBusMessage &reply) {
  send(reply.type() == QDBusMessage::ErrorMessage
           ? call_.createErrorReply(reply.errorName(), reply.errorMessage())
           : call_.createReply(reply.arguments()));
}

void Request::Close() {
  if (isAnswered_) return;
  emit closed();
  answer(ended);
}

void Request::send(const QDBusMessage &reply) {
  if (std::exchange(isAnswered_, true)) return;
  QDBusConnection::sessionBus().send(reply);
  deleteLater();
}

}  // namespace kwopde::portal
