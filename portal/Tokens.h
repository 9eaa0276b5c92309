// What people have settled in a dialog, until the application sends its document for it.
#pragma once

#include <QDeadlineTimer>
#include <QJsonObject>
#include <QString>
#include <map>
#include <optional>

namespace kwopde::portal {

class Tokens {
public:
  /// Keeps `job` for the application `appId`. Returns a token for it: random, not 0, good once and
  /// for five minutes.
  quint32 add(const QString &appId, const QJsonObject &job);

  /// Returns what was kept under `token`, and forgets it; none for another application, and when
  /// its time is over.
  std::optional<QJsonObject> take(quint32 token, const QString &appId);

  /// Returns whether nothing is kept that could still be asked for.
  bool isEmpty();

private:
  struct Entry {
    QString appId;
    QJsonObject job;
    QDeadlineTimer end;
  };

  void dropOld();

  std::map<quint32, Entry> entries_;
};

}  // namespace kwopde::portal
