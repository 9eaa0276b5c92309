// A call of the portal that is being answered: what the frontend can close.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>

namespace kwopde::portal {

class Request final : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Request")

public:
  /// What a call is answered with.
  enum Response : quint32 { done = 0, cancelled = 1, ended = 2 };

  /// Stands at the object path that `call` names first, until it is answered.
  explicit Request(const QDBusMessage &call);

  const QDBusMessage &call() const { return call_; }

  /// Answers the call, once, and deletes this later.
  void answer(Response response, const QVariantMap &results = {});

  /// Answers the call with what somebody else has answered it.
  void answer(const QDBusMessage &reply);

public slots:
  /// The frontend, or the end of it, takes the call back: it is answered with `ended`.
  Q_SCRIPTABLE void Close();

signals:
  /// Whoever works on the call is to stop.
  void closed();

private:
  void send(const QDBusMessage &reply);

  const QDBusMessage call_;
  QDBusServiceWatcher caller_;
  bool isAnswered_ = false;
};

}  // namespace kwopde::portal
