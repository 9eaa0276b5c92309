#include "dialog/Notices.h"

namespace kwopde::dialog {

Notices::Notices(host::PpdSession &session) : session_(session) {
  session_.addObserver(this);
}

Notices::~Notices() {
  session_.removeObserver(this);
}

void Notices::requestWasAnswered(const std::string *key, const std::string *choice,
                                 const host::Answer &answer) {
  if (!key || !choice) return;
  const QString option = QString::fromStdString(*key);
  const QString before = sentences_.value(option);
  const QString now = sentence(*key, *choice, answer);
  if (now == before) return;
  if (now.isEmpty())
    sentences_.remove(option);
  else
    sentences_[option] = now;
  emit changed(QStringList(sentences_.values()).join('\n'));
}

QString Notices::sentence(const std::string &key, const std::string &choice,
                          const host::Answer &answer) const {
  const host::PpdFile &ppd = session_.ppd();
  const QString option = QString::fromStdString(ppd.textOf(key));
  const QString wanted = QString::fromStdString(ppd.textOf(key, choice));
  switch (answer.reason) {
    case host::Answer::Reason::granted:
      if (answer.changes.empty()) return {};
      return tr("Changed %1, to go with %2: %3.").arg(text(answer.changes), option, wanted);
    case host::Answer::Reason::conflict:
      return tr("%1 cannot be %2 together with %3.").arg(option, wanted, text(answer.conflicts));
    case host::Answer::Reason::outsideLimits:
      if (const auto limits = session_.limits(key))
        return tr("%1 cannot be %2: this printer takes %3 to %4.")
            .arg(option, wanted)
            .arg(limits->minimum)
            .arg(limits->maximum);
      [[fallthrough]];
    case host::Answer::Reason::unlisted:
      return tr("%1 cannot be %2: this printer has no such choice.").arg(option, wanted);
    case host::Answer::Reason::unwilling:
    case host::Answer::Reason::unknownOption:
      return {};
  }
  return {};
}

QString Notices::text(const std::vector<host::OptionChoice> &choices) const {
  QStringList texts;
  for (const auto &[key, choice] : choices)
    texts.append(tr("%1: %2").arg(QString::fromStdString(session_.ppd().textOf(key)),
                                  QString::fromStdString(session_.ppd().textOf(key, choice))));
  return texts.join(", ");
}

}  // namespace kwopde::dialog
