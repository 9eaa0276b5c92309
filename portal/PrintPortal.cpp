#include "portal/PrintPortal.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>
#include <chrono>

#include "host/Error.h"
#include "portal/DesktopBackend.h"
#include "portal/DialogProcess.h"
#include "portal/Sending.h"
#include "queue/PrintQueue.h"

namespace kwopde::portal {

namespace {

/// How long it stays for the next application.
constexpr std::chrono::seconds kIdle(60);

/// What the names of our printers' models begin with, in the PPD files.
constexpr const char *kModels = "KWO ";

/// "&Print…" is a menu's text, not a title.
QString withoutMnemonic(QString title) {
  return title.remove('&').remove("…").remove("...");
}

/// Returns a page setup as the interface has it: its lengths are doubles, which JSON does not tell
/// from whole numbers.
QVariantMap pageSetupOf(const QJsonObject &written) {
  QVariantMap setup = written.toVariantMap();
  for (QVariant &value : setup)
    if (value.typeId() == QMetaType::LongLong) value = value.toDouble();
  return setup;
}

/// Tells the person what no dialog is open for any more.
void notify(const QString &title, const QString &why) {
  auto call = QDBusMessage::createMethodCall("org.freedesktop.Notifications",
                                             "/org/freedesktop/Notifications",
                                             "org.freedesktop.Notifications", "Notify");
  call.setArguments(
      {"kwopde", 0U, "kwopde", title, why.toHtmlEscaped(), QStringList(), QVariantMap(), -1});
  QDBusConnection::sessionBus().send(call);
}

}  // namespace

PrintPortal::PrintPortal(QObject *parent) : QDBusAbstractAdaptor(parent) {
  // The bus asks what the methods take before any of these was used.
  qRegisterMetaType<QDBusObjectPath>();
  qRegisterMetaType<QDBusUnixFileDescriptor>();
  idle_.setInterval(kIdle);
  connect(&idle_, &QTimer::timeout, this, [this] {
    if (requests_ == 0 && tokens_.isEmpty()) emit idle();
  });
  idle_.start();
}

quint32 PrintPortal::PreparePrint(const QDBusObjectPath &, const QString &appId,
                                  const QString &parent, const QString &title,
                                  const QVariantMap &settings, const QVariantMap &pageSetup,
                                  const QVariantMap &, const QDBusMessage &message, QVariantMap &) {
  Request *const request = begin(message);
  const QJsonObject question{{"title", withoutMnemonic(title)},
                             {"parent", parent},
                             {"settings", QJsonObject::fromVariantMap(settings)},
                             {"pageSetup", QJsonObject::fromVariantMap(pageSetup)}};
  const QString name = settings["output-basename"].toString();
  withOurPrinters(request, [=, this] {
    showDialog(request, question, [=, this](const QJsonObject &answer) {
      QJsonObject job = answer["job"].toObject();
      job["title"] = name;
      request->answer(Request::done, {{"settings", answer["settings"].toObject().toVariantMap()},
                                      {"page-setup", pageSetupOf(answer["pageSetup"].toObject())},
                                      {"token", tokens_.add(appId, job)}});
    });
  });
  return {};  // answered later
}

quint32 PrintPortal::Print(const QDBusObjectPath &, const QString &appId, const QString &parent,
                           const QString &title, const QDBusUnixFileDescriptor &document,
                           const QVariantMap &options, const QDBusMessage &message, QVariantMap &) {
  Request *const request = begin(message);
  const auto settled = tokens_.take(options["token"].toUInt(), appId);
  if (settled) {
    send(request, document, *settled, title);
    return {};
  }
  const QJsonObject question{
      {"title", withoutMnemonic(title)}, {"parent", parent}, {"documentIsMade", true}};
  withOurPrinters(request, [=, this] {
    showDialog(request, question, [=, this](const QJsonObject &answer) {
      send(request, document, answer["job"].toObject(), title);
    });
  });
  return {};
}

Request *PrintPortal::begin(const QDBusMessage &message) {
  message.setDelayedReply(true);
  auto *const request = new Request(message);
  ++requests_;
  connect(request, &QObject::destroyed, this, [this] {
    --requests_;
    idle_.start();
  });
  return request;
}

void PrintPortal::withOurPrinters(Request *request, const std::function<void()> &serve) {
  // A server may take its time, or not answer at all: the dialog then says so.
  QThreadPool::globalInstance()->start([serve, waiting = QPointer<Request>(request)] {
    bool areOurs = true;
    try {
      areOurs = !host::PrintQueue::names(kModels).empty();
    } catch (const host::Error &) {
    }
    QMetaObject::invokeMethod(QCoreApplication::instance(), [serve, waiting, areOurs] {
      if (!waiting) return;
      const QString other = desktopBackend(qEnvironmentVariable("XDG_CURRENT_DESKTOP"));
      if (areOurs || other.isEmpty())
        serve();
      else
        forward(*waiting, other);
    });
  });
}

void PrintPortal::showDialog(Request *request, const QJsonObject &question,
                             const std::function<void(const QJsonObject &answer)> &accepted) {
  auto *const dialog = new DialogProcess(question, request);
  connect(request, &Request::closed, dialog, [dialog] { delete dialog; });
  connect(dialog, &DialogProcess::accepted, request, accepted);
  connect(dialog, &DialogProcess::cancelled, request,
          [request] { request->answer(Request::cancelled); });
  connect(dialog, &DialogProcess::failed, request, [request] { request->answer(Request::ended); });
}

void PrintPortal::send(Request *request, const QDBusUnixFileDescriptor &document, QJsonObject job,
                       const QString &title) {
  // GTK's applications all say "Print", and have said the name before.
  if (title != "Print" || job["title"].toString().isEmpty()) job["title"] = title;
  auto *const sending = new Sending(document, job, request);
  connect(request, &Request::closed, sending, [sending] { delete sending; });
  connect(sending, &Sending::sent, request, [request] { request->answer(Request::done); });
  connect(sending, &Sending::failed, request, [request](const QString &why) {
    notify(QCoreApplication::translate("kwopde::portal", "Printing failed"), why);
    request->answer(Request::ended);
  });
}

}  // namespace kwopde::portal
