// An application's document on its way to the printer, or into a file.
#pragma once

#include <QDBusUnixFileDescriptor>
#include <QJsonObject>
#include <QObject>
#include <atomic>
#include <memory>

namespace kwopde::portal {

class Sending final : public QObject {
  Q_OBJECT

public:
  /// Copies what can be read from `document`, a file or a pipe, and sends it as `job` says: to
  /// "queue" with "options" and "title", or into the file "file". Works in a thread of its own,
  /// since the application may write slowly and the server may wait.
  Sending(const QDBusUnixFileDescriptor &document, const QJsonObject &job, QObject *parent);

  /// Cancels what is not done.
  ~Sending() override;

signals:
  void sent();
  void failed(const QString &why);

private:
  std::shared_ptr<std::atomic<bool>> isCancelled_ = std::make_shared<std::atomic<bool>>(false);
};

}  // namespace kwopde::portal
