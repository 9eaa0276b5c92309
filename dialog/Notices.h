// What a session refused or changed by itself, in sentences for people.
#pragma once

#include <QMap>
#include <QObject>
#include <QString>

#include "host/PpdSession.h"

namespace kwopde::host {

class Notices final : public QObject, public SessionObserver {
  Q_OBJECT

public:
  /// Listens to `session` while it lives; borrowed.
  explicit Notices(PpdSession &session);
  ~Notices() override;

  void requestWasAnswered(const std::string *key, const std::string *choice,
                          const Answer &answer) override;
  void willAnnounce(const OptionChoice &) override {}

signals:
  /// All that there is to say now, a sentence a line; empty when there is nothing. An option's
  /// sentence stands until the option is asked for again.
  void changed(const QString &text);

private:
  QString sentence(const std::string &key, const std::string &choice, const Answer &answer) const;
  QString text(const std::vector<OptionChoice> &choices) const;

  PpdSession &session_;
  QMap<QString, QString> sentences_;  // by option
};

}  // namespace kwopde::host
