// What a session refused or changed by itself, in sentences for people.
#pragma once

#include <QMap>
#include <QObject>
#include <QString>

#include "host/PpdSession.h"

namespace kwopde::dialog {

class Notices final : public QObject, public host::SessionObserver {
  Q_OBJECT

public:
  /// Listens to `session` while it lives; borrowed.
  explicit Notices(host::PpdSession &session);
  ~Notices() override;

  void requestWasAnswered(const std::string *key, const std::string *choice,
                          const host::Answer &answer) override;
  void willAnnounce(const host::OptionChoice &) override {}

signals:
  /// All that there is to say now, a sentence a line; empty when there is nothing. An option's
  /// sentence stands until the option is asked for again.
  void changed(const QString &text);

private:
  QString sentence(const std::string &key, const std::string &choice,
                   const host::Answer &answer) const;
  QString text(const std::vector<host::OptionChoice> &choices) const;

  host::PpdSession &session_;
  QMap<QString, QString> sentences_;  // by option
};

}  // namespace kwopde::dialog
