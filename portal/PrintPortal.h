// The print dialog of applications that ask the desktop for one.
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QJsonObject>
#include <QTimer>
#include <QVariantMap>
#include <functional>

#include "portal/Request.h"
#include "portal/Tokens.h"

namespace kwopde::portal {

inline constexpr const char *kBusName = "org.freedesktop.impl.portal.desktop.kwopde";
inline constexpr const char *kObjectPath = "/org/freedesktop/portal/desktop";
inline constexpr const char *kPrintInterface = "org.freedesktop.impl.portal.Print";

/// Both methods answer with a response, 0 done, 1 cancelled or 2 ended otherwise, and results. On a
/// machine without a printer of ours the desktop's own backend answers.
class PrintPortal final : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")

public:
  explicit PrintPortal(QObject *parent);

public slots:
  /// Shows a dialog. The results are "settings" and "page-setup" for the application to make its
  /// document by, and a "token" for `Print`.
  quint32 PreparePrint(const QDBusObjectPath &handle, const QString &appId, const QString &parent,
                       const QString &title, const QVariantMap &settings,
                       const QVariantMap &pageSetup, const QVariantMap &options,
                       const QDBusMessage &message, QVariantMap &results);

  /// Sends the document as was settled for the "token" of `options`; without a good one it shows a
  /// dialog first.
  quint32 Print(const QDBusObjectPath &handle, const QString &appId, const QString &parent,
                const QString &title, const QDBusUnixFileDescriptor &document,
                const QVariantMap &options, const QDBusMessage &message, QVariantMap &results);

signals:
  /// Nothing is left to do or to keep.
  void idle();

private:
  Request *begin(const QDBusMessage &message);
  void withOurPrinters(Request *request, const std::function<void()> &serve);
  void showDialog(Request *request, const QJsonObject &question,
                  const std::function<void(const QJsonObject &answer)> &accepted);
  void send(Request *request, const QDBusUnixFileDescriptor &document, QJsonObject job,
            const QString &title);

  Tokens tokens_;
  int requests_ = 0;
  QTimer idle_;
};

}  // namespace kwopde::portal
