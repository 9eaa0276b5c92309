// What a session refused or changed by itself, in sentences for people.
#pragma once

#include <QObject>
#include <QString>
#include <vector>

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
  void willAnnounce(const host::OptionChoice &change) override;

  /// A request that was refused, and that nobody has taken back since.
  struct Refusal {
    std::string key;
    QString sentence;  // what the printer takes, and what the job keeps
    bool operator==(const Refusal &) const = default;
  };

  /// Returns the refusals that stand, in the order of asking.
  std::vector<Refusal> refusals() const;

  /// Returns what is marked and does not go together, as a sentence; empty when all does.
  QString conflicts() const;

  /// Puts back what the last granted request changed, and the option that it was for.
  void undo();

  /// Emits `changed` when there is something new to say.
  void tell();

signals:
  /// All that there is to say now, a sentence a line; empty when there is nothing. A sentence
  /// stands until one of its options is asked for again, or marked otherwise. `canUndo` is whether
  /// `undo` has something to put back.
  void changed(const QString &text, bool canUndo);

  /// The session was asked for something, or marked something by itself.
  void marked();

private:
  struct Notice {
    std::string key;
    std::string choice;
    host::Answer answer;
  };

  bool isAbout(const Notice &notice, const std::string &key) const;
  QString sentence(const Notice &notice) const;
  QString titleOf(const std::string &key) const;
  QString textOf(const std::string &key, const std::string &choice) const;
  QString listText(const std::vector<host::OptionChoice> &choices) const;
  bool stands(const host::Answer::Change &change) const;
  std::vector<Notice>::reverse_iterator lastToUndo();

  host::PpdSession &session_;
  std::vector<Notice> notices_;
  QString told_;
};

}  // namespace kwopde::dialog
