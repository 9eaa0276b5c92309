// Applications that print through the desktop's portal, on a private bus and a private server.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <array>
#include <cstdlib>
#include <set>
#include <vector>

#include "tests/support/JobAttributes.h"

namespace kwopde::test {
namespace {

constexpr const char *kName = "org.freedesktop.impl.portal.desktop.kwopde";
constexpr const char *kInterface = "org.freedesktop.impl.portal.Print";
constexpr const char *kDesktop = "/org/freedesktop/portal/desktop";

struct Answer {
  quint32 response = 99;
  QVariantMap results;
};

/// Returns a map that came inside of a variant.
QVariantMap mapOf(const QVariant &value) {
  return qdbus_cast<QVariantMap>(value);
}

class Portal : public testing::Test {
protected:
  void SetUp() override { start("print"); }
  void TearDown() override {
    service_.kill();
    service_.waitForFinished();
  }

  /// Starts the service, with somebody who does `what` at each of its dialogs.
  void start(const QString &what) {
    if (service_.state() == QProcess::Running) TearDown();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("QT_QPA_PLATFORMTHEME", "xdgdesktopportal");
    environment.insert("QT_PLUGIN_PATH", KWOPDE_TEST_PLUGINS);
    environment.insert("QT_QPA_GENERIC_PLUGINS", "person");
    environment.insert("KWOPDE_PERSON", what);
    environment.insert("XDG_DATA_DIRS", folder_.path());
    environment.insert("XDG_CURRENT_DESKTOP", "test:GNOME");
    service_.setProcessEnvironment(environment);
    service_.start(KWOPDE_PORTAL, QStringList());
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return bus_.interface()->isServiceRegistered(kName).value(); }, 5000));
  }

  static QDBusObjectPath handle() {
    static int number = 0;
    return QDBusObjectPath(QString("/request/%1").arg(++number));
  }

  /// Calls the service as the frontend does, for the application "app".
  QDBusPendingCall prepare(const QDBusObjectPath &handle,
                           const QDBusConnection &bus = QDBusConnection::sessionBus()) const {
    auto call = QDBusMessage::createMethodCall(kName, kDesktop, kInterface, "PreparePrint");
    const QVariantMap pageSetup{
        {"Name", "iso_a4"}, {"Width", 210.0}, {"Height", 297.0}, {"Orientation", "portrait"}};
    call << QVariant::fromValue(handle) << "app" << "x11:4000f8" << "&Print…"
         << QVariantMap{{"output-basename", "letter"}} << pageSetup << QVariantMap();
    return bus.asyncCall(call, 30000);
  }
  Answer print(int document, quint32 token, const QString &app = "app") const {
    return wait(startPrint(document, token, app));
  }
  QDBusPendingCall startPrint(int document, quint32 token, const QString &app = "app") const {
    auto call = QDBusMessage::createMethodCall(kName, kDesktop, kInterface, "Print");
    call << QVariant::fromValue(handle()) << app << "" << "Print"
         << QVariant::fromValue(QDBusUnixFileDescriptor(document))
         << QVariantMap{{"token", token}, {"modal", true}};
    return bus_.asyncCall(call, 30000);
  }
  static Answer wait(const QDBusPendingCall &call) {
    QDBusPendingCallWatcher watcher(call);
    watcher.waitForFinished();
    const auto values = watcher.reply().arguments();
    return values.size() == 2 ? Answer{values[0].toUInt(), qdbus_cast<QVariantMap>(values[1])}
                              : Answer{};
  }
  static void close(const QDBusObjectPath &handle) {
    QDBusConnection::sessionBus().send(QDBusMessage::createMethodCall(
        kName, handle.path(), "org.freedesktop.impl.portal.Request", "Close"));
  }

  /// Returns how many dialogs the service has open.
  qsizetype dialogs() const {
    const QString tasks = QString("/proc/%1/task").arg(service_.processId());
    qsizetype count = 0;
    for (const QString &task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      QFile children(tasks + '/' + task + "/children");
      if (children.open(QIODevice::ReadOnly))
        count += QString(children.readAll()).split(' ', Qt::SkipEmptyParts).size();
    }
    return count;
  }

  int document() const {
    return ::open(write("letter.txt", "a letter").toLocal8Bit(), O_RDONLY | O_CLOEXEC);
  }

  /// Writes a file of that name and returns its path.
  QString write(const QString &name, const QByteArray &contents) const {
    QFile file(folder_.filePath(name));
    if (file.open(QIODevice::WriteOnly)) file.write(contents);
    return file.fileName();
  }

  QTemporaryDir folder_;
  QProcess service_;
  QDBusConnection bus_ = QDBusConnection::sessionBus();
};

TEST_F(Portal, PrintsWhatWasSetInItsDialog) {
  const Answer prepared = wait(prepare(handle()));
  ASSERT_EQ(prepared.response, 0U);
  const QVariantMap settings = mapOf(prepared.results["settings"]);
  EXPECT_EQ(settings["n-copies"], "1");
  EXPECT_EQ(settings["print-pages"], "ranges");
  EXPECT_EQ(settings["page-ranges"], "1-2");  // pages 2 and 3
  const QVariantMap pageSetup = mapOf(prepared.results["page-setup"]);
  EXPECT_EQ(pageSetup["Name"], "iso_a4_210x297mm");
  EXPECT_EQ(qRound(pageSetup["Height"].toDouble()), 297);
  for (const char *length :
       {"Width", "Height", "MarginTop", "MarginBottom", "MarginLeft", "MarginRight"})
    EXPECT_EQ(pageSetup[length].typeId(), QMetaType::Double) << length;
  const quint32 token = prepared.results["token"].toUInt();
  EXPECT_NE(token, 0U);

  ASSERT_EQ(print(document(), token).response, 0U);
  auto job = attributesOf(lastJob());
  EXPECT_EQ(job["job-name"], "letter");
  EXPECT_EQ(job["pageScale"], "85");
  EXPECT_EQ(job["copies"], "2");
  EXPECT_EQ(job["media"], "iso_a4_210x297mm");
  EXPECT_EQ(job.count("page-ranges"), 0U);
}

TEST_F(Portal, ReadsSlowPipesWithoutMakingOthersWait) {
  std::vector<QDBusPendingCall> slow;
  std::vector<int> ends;
  for (int i = 0; i < QThread::idealThreadCount(); ++i) {
    const quint32 token = wait(prepare(handle())).results["token"].toUInt();
    std::array<int, 2> pipe;
    ASSERT_EQ(pipe2(pipe.data(), O_CLOEXEC), 0);
    slow.push_back(startPrint(pipe[0], token));
    ::close(pipe[0]);
    ends.push_back(pipe[1]);
    ASSERT_GT(::write(pipe[1], "first ", 6), 0);
  }
  EXPECT_EQ(wait(prepare(handle())).response, 0U);
  for (const QDBusPendingCall &call : slow) EXPECT_FALSE(call.isFinished());
  for (const int end : ends) {
    ASSERT_GT(::write(end, "second", 6), 0);
    ::close(end);
  }
  for (const QDBusPendingCall &call : slow) EXPECT_EQ(wait(call).response, 0U);
}

TEST_F(Portal, TakesATokenOnceAndFromItsOwnApplication) {
  const quint32 token = wait(prepare(handle())).results["token"].toUInt();
  start("cancel");  // a service that does not know the token any more
  const int before = lastJob();
  EXPECT_EQ(print(document(), token).response, 1U);
  EXPECT_EQ(lastJob(), before);
  start("print");
  const quint32 other = wait(prepare(handle())).results["token"].toUInt();
  // With a dialog first, all the same.
  EXPECT_EQ(print(document(), other, "another").response, 0U);
  auto job = attributesOf(lastJob());
  EXPECT_EQ(job["pageScale"], "85");
  EXPECT_EQ(job["page-ranges"], "2-3") << "of a document that was made before";
}

TEST_F(Portal, ClosesItsDialogWithTheApplication) {
  start("wait");
  const QDBusObjectPath path = handle();
  const QDBusPendingCall call = prepare(path);
  ASSERT_TRUE(QTest::qWaitFor([&] { return dialogs() == 1; }, 5000));
  close(path);
  EXPECT_EQ(wait(call).response, 2U);
  EXPECT_TRUE(QTest::qWaitFor([&] { return dialogs() == 0; }, 5000));

  {
    const auto application = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "other");
    prepare(handle(), application);
    ASSERT_TRUE(QTest::qWaitFor([&] { return dialogs() == 1; }, 5000));
  }
  QDBusConnection::disconnectFromBus("other");
  EXPECT_TRUE(QTest::qWaitFor([&] { return dialogs() == 0; }, 5000));
}

TEST_F(Portal, LosesOneDialogToACrashAndServesFourAtOnce) {
  start("crash");
  EXPECT_EQ(wait(prepare(handle())).response, 2U);
  start("print");
  std::vector<QDBusPendingCall> calls;
  calls.reserve(4);
  for (int i = 0; i < 4; ++i) calls.push_back(prepare(handle()));
  std::set<quint32> tokens;
  for (const QDBusPendingCall &call : calls) tokens.insert(wait(call).results["token"].toUInt());
  EXPECT_EQ(tokens.size(), 4U);
  EXPECT_EQ(tokens.count(0), 0U);
}

/// A desktop's own backend.
class OtherBackend final : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")

public slots:
  Q_SCRIPTABLE quint32 PreparePrint(const QDBusObjectPath &, const QString &app, const QString &,
                                    const QString &, const QVariantMap &, const QVariantMap &,
                                    const QVariantMap &, QVariantMap &results) {
    results["app"] = app;
    return 0;
  }
};

TEST_F(Portal, LeavesAMachineWithoutOurPrintersToTheDesktop) {
  OtherBackend backend;
  auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "backend");
  bus.registerObject(kDesktop, &backend, QDBusConnection::ExportScriptableSlots);
  ASSERT_TRUE(bus.registerService("org.freedesktop.impl.portal.desktop.gnome"));
  QDir().mkpath(folder_.path() + "/xdg-desktop-portal/portals");
  write("xdg-desktop-portal/portals/gnome.portal",
        "[portal]\nDBusName=org.freedesktop.impl.portal.desktop.gnome\n"
        "Interfaces=org.freedesktop.impl.portal.FileChooser;org.freedesktop.impl.portal."
        "Print\nUseIn=gnome\n");
  for (const char *queue : {"kwo-7032", "kwo-1200", "kwo-basic"})
    ASSERT_EQ(std::system((std::string("/usr/sbin/lpadmin -x ") + queue).c_str()), 0);
  QDBusPendingCallWatcher watcher(prepare(handle()));
  ASSERT_TRUE(QTest::qWaitFor([&] { return watcher.isFinished(); }, 10000));
  const Answer answer = wait(watcher);
  EXPECT_EQ(answer.response, 0U);
  EXPECT_EQ(answer.results["app"], "app");
  QDBusConnection::disconnectFromBus("backend");
}

}  // namespace
}  // namespace kwopde::test

#include "PortalTest.moc"
