// A print dialog in a process of its own, so that a crash costs one dialog, and a desktop whose
// theme asks the portal cannot wait for itself.
#pragma once

#include <QJsonObject>
#include <QProcess>

namespace kwopde::portal {

class DialogProcess final : public QObject {
  Q_OBJECT

public:
  /// Opens the dialog for what an application asks; `request` has "title", "parent", "settings" and
  /// "pageSetup". The parent owns this, and the dialog ends with it.
  DialogProcess(const QJsonObject &request, QObject *parent);
  ~DialogProcess() override;

signals:
  /// A person has accepted: "settings" and "pageSetup" for the application, and "job".
  void accepted(const QJsonObject &answer);
  void cancelled();
  /// It could not be shown, or crashed.
  void failed();

private:
  void read(int status, QProcess::ExitStatus how);

  QProcess process_;
};

}  // namespace kwopde::portal
