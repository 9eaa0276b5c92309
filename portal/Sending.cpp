#include "portal/Sending.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QPointer>
#include <QSaveFile>
#include <QTemporaryFile>
#include <QThread>
#include <array>
#include <cerrno>
#include <cstring>

#include "host/Error.h"
#include "host/Stream.h"
#include "queue/PrintJob.h"

namespace kwopde::portal {

namespace {

host::Error noRoom(const QFileDevice &file) {
  return host::Error("there is no room for the document: " + file.errorString().toStdString());
}

/// Copies what `from` has, to its end; false when `isCancelled` comes first. Throws `host::Error`.
bool copy(int from, QFileDevice &to, const std::atomic<bool> &isCancelled) {
  if (from < 0) throw host::Error("the document cannot be read: it came without a descriptor");
  std::array<char, 65536> block;
  while (host::waitToRead(from, [&] { return !isCancelled; }) && !isCancelled) {
    const ssize_t size = ::read(from, block.data(), block.size());
    if (size == 0) return true;
    if (size < 0 && errno != EINTR)
      throw host::Error("the document cannot be read: " + std::string(std::strerror(errno)));
    if (size > 0 && to.write(block.data(), size) != size) throw noRoom(to);
  }
  return false;
}

host::PrintJob jobOf(const QJsonObject &job, const QString &document) {
  host::PrintJob result{job["queue"].toString().toStdString(),
                        job["title"].toString().toStdString(),
                        {document.toStdString()},
                        {}};
  const QJsonObject options = job["options"].toObject();
  for (auto option = options.begin(); option != options.end(); ++option)
    result.options.push_back({option.key().toStdString(), option.value().toString().toStdString()});
  return result;
}

/// Returns whether the job was sent; false when it was cancelled. Throws `host::Error`.
bool send(int document, const QJsonObject &job, const std::atomic<bool> &isCancelled) {
  if (const QString path = job["file"].toString(); !path.isEmpty()) {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && copy(document, file, isCancelled) && file.commit())
      return true;
    if (!isCancelled) throw host::Error((path + ": " + file.errorString()).toStdString());
    return false;
  }
  QTemporaryFile file;
  if (!file.open()) throw host::Error(file.errorString().toStdString());
  if (!copy(document, file, isCancelled)) return false;
  if (!file.flush()) throw noRoom(file);
  return host::send(jobOf(job, file.fileName()), [&](long long, long long) { return !isCancelled; })
      .has_value();
}

}  // namespace

Sending::Sending(const QDBusUnixFileDescriptor &document, const QJsonObject &job, QObject *parent)
    : QObject(parent) {
  // Not one of a pool, which has as many as the machine has cores.
  QThread *const thread =
      QThread::create([document, job, isCancelled = isCancelled_, guard = QPointer<Sending>(this)] {
        QString why;
        try {
          if (!send(document.fileDescriptor(), job, *isCancelled)) return;
        } catch (const host::Error &error) {
          why = QString::fromStdString(error.what());
        }
        // Told in the thread of the portal, and only while somebody waits for it there.
        QMetaObject::invokeMethod(qApp, [guard, why] {
          if (guard && why.isEmpty()) emit guard->sent();
          if (guard && !why.isEmpty()) emit guard->failed(why);
        });
      });
  connect(thread, &QThread::finished, thread, &QObject::deleteLater);
  thread->start();
}

Sending::~Sending() {
  *isCancelled_ = true;
}

}  // namespace kwopde::portal
