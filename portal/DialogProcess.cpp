#include "portal/DialogProcess.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>

namespace kwopde::portal {

namespace {

/// Exit statuses of the dialog's program.
constexpr int kAccepted = 0;
constexpr int kCancelled = 1;

/// The program with the dialogs, beside this one.
QString program() {
  return QCoreApplication::applicationDirPath() + "/kwopde-dialogs";
}

}  // namespace

DialogProcess::DialogProcess(const QJsonObject &request, QObject *parent) : QObject(parent) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  // These ask the portal for dialogs, which waits for this one.
  if (environment.value("QT_QPA_PLATFORMTHEME") == "xdgdesktopportal")
    environment.remove("QT_QPA_PLATFORMTHEME");
  environment.remove("GTK_USE_PORTAL");
  // Its own dialog has the panels already.
  environment.remove("QT_PRINTER_MODULE");
  process_.setProcessEnvironment(environment);
  process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  connect(&process_, &QProcess::finished, this, &DialogProcess::read);
  connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) emit failed();
  });
  process_.start(program(), {"portal-dialog"});
  process_.write(QJsonDocument(request).toJson(QJsonDocument::Compact));
  process_.closeWriteChannel();
}

DialogProcess::~DialogProcess() {
  process_.disconnect(this);
  process_.kill();  // it has nothing to clear away
  process_.waitForFinished(1000);
}

void DialogProcess::read(int status, QProcess::ExitStatus how) {
  const auto answer = QJsonDocument::fromJson(process_.readAllStandardOutput());
  if (how == QProcess::NormalExit && status == kCancelled)
    emit cancelled();
  else if (how == QProcess::NormalExit && status == kAccepted && answer.isObject())
    emit accepted(answer.object());
  else
    emit failed();
}

}  // namespace kwopde::portal
