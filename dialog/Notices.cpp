#include "dialog/Notices.h"

#include <QLocale>
#include <algorithm>
#include <utility>

namespace kwopde::dialog {

namespace {

/// Returns `number` as people write it.
QString numberText(double number) {
  return QLocale().toString(number, 'g', 10);
}

}  // namespace

Notices::Notices(host::PpdSession &session) : session_(session) {
  session_.addObserver(this);
}

Notices::~Notices() {
  session_.removeObserver(this);
}

void Notices::requestWasAnswered(const std::string *key, const std::string *choice,
                                 const host::Answer &answer) {
  if (!key || !choice) return;
  std::erase_if(notices_, [&](const Notice &notice) { return isAbout(notice, *key); });
  if (!answer.granted() || !answer.changes.empty()) notices_.push_back({*key, *choice, answer});
  tell();
  emit marked();
}

void Notices::willAnnounce(const host::OptionChoice &change) {
  std::erase_if(notices_, [&](const Notice &notice) {
    return !notice.answer.granted() && notice.key == change.key;
  });
  tell();
  emit marked();
}

void Notices::undo() {
  const auto last = lastToUndo();
  if (last == notices_.rend()) return;
  const Notice notice = std::move(*last);
  notices_.erase(std::next(last).base());
  if (!notice.answer.before.empty()) session_.mark(notice.key, notice.answer.before);
  for (const auto &change : notice.answer.changes)
    if (!change.before.empty()) session_.mark(change.key, change.before);
  tell();
}

std::vector<Notices::Notice>::reverse_iterator Notices::lastToUndo() {
  return std::find_if(notices_.rbegin(), notices_.rend(), [this](const Notice &notice) {
    return notice.answer.granted() && !sentence(notice).isEmpty();
  });
}

bool Notices::stands(const host::Answer::Change &change) const {
  return session_.markedChoice(change.key) == change.choice;
}

std::vector<Notices::Refusal> Notices::refusals() const {
  std::vector<Refusal> refusals;
  for (const Notice &notice : notices_) {
    if (notice.answer.granted()) continue;
    const auto kept = session_.markedChoice(notice.key);
    QString text = sentence(notice);
    if (kept) text += ' ' + tr("The job would print %1.").arg(textOf(notice.key, *kept));
    if (!text.isEmpty()) refusals.push_back({notice.key, text});
  }
  return refusals;
}

bool Notices::isAbout(const Notice &notice, const std::string &key) const {
  const auto &changes = notice.answer.changes;
  return notice.key == key || std::any_of(changes.begin(), changes.end(),
                                          [&](const auto &change) { return change.key == key; });
}

QString Notices::sentence(const Notice &notice) const {
  const auto &[key, choice, answer] = notice;
  const QString option = titleOf(key);
  const QString wanted = textOf(key, choice);
  using Reason = host::Answer::Reason;
  switch (answer.reason) {
    case Reason::granted: {
      QStringList sentences;
      for (const auto &change : answer.changes)
        if (stands(change))
          sentences.append(tr("Changed %1 from %2 to %3, to go with %4: %5.")
                               .arg(titleOf(change.key), textOf(change.key, change.before),
                                    textOf(change.key, change.choice), option, wanted));
      return sentences.join('\n');
    }
    case Reason::conflict:
      return tr("%1 cannot be %2 together with %3.")
          .arg(option, wanted, listText(answer.conflicts));
    case Reason::outsideLimits:
      if (const auto range = session_.range(key))
        return tr("%1 cannot be %2: this printer takes %3 to %4.")
            .arg(option, numberText(host::wholeNumber(choice).value_or(0)),
                 numberText(range->minimum), numberText(range->maximum));
      [[fallthrough]];
    case Reason::unlisted:
      return tr("%1 cannot be %2: this printer has no such choice.").arg(option, wanted);
    case Reason::unwilling:
    case Reason::unknownOption:
      return {};
  }
  return {};
}

QString Notices::titleOf(const std::string &key) const {
  return QString::fromStdString(session_.ppd().textOf(key));
}

QString Notices::textOf(const std::string &key, const std::string &choice) const {
  return QString::fromStdString(session_.ppd().textOf(key, choice));
}

QString Notices::conflicts() const {
  const auto choices = session_.conflicts();
  return choices.empty() ? QString()
                         : tr("This printer cannot do these together: %1.").arg(listText(choices));
}

QString Notices::listText(const std::vector<host::OptionChoice> &choices) const {
  QStringList texts;
  for (const auto &[key, choice] : choices)
    texts.append(tr("%1: %2").arg(titleOf(key), textOf(key, choice)));
  return texts.join(", ");
}

void Notices::tell() {
  QStringList sentences;
  for (const Notice &notice : notices_)
    if (const QString text = sentence(notice); !text.isEmpty()) sentences.append(text);
  if (const QString text = conflicts(); !text.isEmpty()) sentences.append(text);
  const QString all = sentences.join('\n');
  if (all == told_) return;
  told_ = all;
  emit changed(all, lastToUndo() != notices_.rend());
}

}  // namespace kwopde::dialog
