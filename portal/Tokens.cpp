#include "portal/Tokens.h"

#include <QRandomGenerator>
#include <chrono>

namespace kwopde::portal {

namespace {

constexpr std::chrono::minutes kLife(5);

}  // namespace

quint32 Tokens::add(const QString &appId, const QJsonObject &job) {
  dropOld();
  quint32 token = 0;
  while (token == 0 || entries_.count(token) > 0) token = QRandomGenerator::system()->generate();
  entries_[token] = {appId, job, QDeadlineTimer(kLife)};
  return token;
}

std::optional<QJsonObject> Tokens::take(quint32 token, const QString &appId) {
  dropOld();
  const auto entry = entries_.find(token);
  if (entry == entries_.end() || entry->second.appId != appId) return {};
  QJsonObject job = entry->second.job;
  entries_.erase(entry);
  return job;
}

bool Tokens::isEmpty() {
  dropOld();
  return entries_.empty();
}

void Tokens::dropOld() {
  std::erase_if(entries_, [](const auto &entry) { return entry.second.end.hasExpired(); });
}

}  // namespace kwopde::portal
