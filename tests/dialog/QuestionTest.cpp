// Questions to a server beside the events of the windows; scripts/with-cups runs this program.
#include <cups/cups.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>
#include <future>
#include <memory>

#include "dialog/ModuleLoader.h"
#include "dialog/PrintDialogPanels.h"
#include "dialog/Question.h"
#include "dialog/QueueDialog.h"
#include "dialog/SettingsDialog.h"
#include "host/Error.h"
#include "tests/support/Dialogs.h"

namespace kwopde::test {
namespace {

using dialog::Question;
using testing::HasSubstr;

/// Dialogs that never wait, so that every answer is late.
class Questions : public testing::Test {
protected:
  void SetUp() override { qputenv("KWOPDE_PATIENCE", "0"); }
  void TearDown() override {
    Question::waitForAll();
    cupsSetServer(nullptr);
    ippSetPort(0);
    qunsetenv("KWOPDE_TIMEOUT");
  }

  static std::string shown(const QDialog &dialog) {
    for (const QLabel *label : dialog.findChildren<QLabel *>())
      if (label->isVisible() && label->wordWrap()) return label->text().toStdString();
    return {};
  }
  /// Makes this thread, and what it asks, use a server that hears and says what `answer` is.
  void useServer(const QByteArray &answer) {
    ASSERT_TRUE(server_.listen(QHostAddress::LocalHost));
    QObject::connect(&server_, &QTcpServer::newConnection, [this, answer] {
      QTcpSocket *client = server_.nextPendingConnection();
      QObject::connect(client, &QTcpSocket::readyRead, [client, answer] {
        client->readAll();
        client->write(answer);
      });
    });
    cupsSetServer(("127.0.0.1:" + std::to_string(server_.serverPort())).c_str());
    ippSetPort(server_.serverPort());
  }

  QTcpServer server_;
  PlugInModule &module_ = dialog::loadModule();
};

TEST_F(Questions, AreAnsweredInThisThreadAsReturnedOrThrown) {
  std::promise<void> isSeenOpen;
  QThread *asked = nullptr;
  QThread *told = nullptr;
  const Question good(
      [&](const host::GoesOn &goesOn) {
        isSeenOpen.get_future().wait();
        asked = QThread::currentThread();
        return goesOn() ? 7 : 0;
      },
      [&](std::future<int> answer) {
        told = QThread::currentThread();
        EXPECT_EQ(answer.get(), 7);
      });
  EXPECT_FALSE(told);
  isSeenOpen.set_value();
  Question::waitForAll();
  EXPECT_EQ(told, QThread::currentThread());
  EXPECT_NE(asked, told);
  QWidget window;
  const auto fails = [](const host::GoesOn &) -> int { throw host::JobError("no server"); };
  EXPECT_THROW(dialog::askAndWait(&window, fails), host::JobError);
  qputenv("KWOPDE_PATIENCE", "10000");
  EXPECT_EQ(dialog::askAndWait(nullptr, [](const host::GoesOn &) { return 8; }), 8);
}

TEST_F(Questions, EndWhenNobodyWantsTheAnswer) {
  const auto untilTold = [](const host::GoesOn &goesOn) {
    while (goesOn()) QThread::msleep(1);
    return 0;
  };
  const auto none = [](std::future<int>) { FAIL() << "was not wanted"; };
  std::make_unique<Question>(untilTold, none).reset();
  EXPECT_FALSE(dialog::askAndWait(nullptr, untilTold));
  QWidget window;
  QTimer::singleShot(50, &window, [&window] { window.findChild<QProgressDialog *>()->cancel(); });
  EXPECT_FALSE(dialog::askAndWait(&window, untilTold));
  auto *gone = new QWidget;
  QTimer::singleShot(50, gone, [gone] { delete gone; });
  EXPECT_FALSE(dialog::askAndWait(gone, untilTold));
}

TEST_F(Questions, ShowTabsWhenTheAnswerIsThereAndOnlyThoseOfTheChosenPrinter) {
  QPrinter printer;
  printer.setPrinterName("kwo-7032");
  auto dialog = std::make_unique<QPrintDialog>(&printer);
  new dialog::PrintDialogPanels(module_, *dialog);
  dialog->show();
  EXPECT_EQ(tabTitles(*dialog).size(), 2) << "Qt's";
  Question::waitForAll();
  EXPECT_EQ(tabTitles(*dialog, 2), QStringList({"Media", "Color", "Sharpen", "Summary"}));
  auto *printers = dialog->findChild<QComboBox *>("printers");
  for (const char *name : {"kwo-1200", "kwo-7032", "kwo-1200", "kwo-basic"})
    printers->setCurrentText(name);
  EXPECT_EQ(tabTitles(*dialog).size(), 2);
  Question::waitForAll();
  EXPECT_EQ(tabTitles(*dialog, 2), QStringList({"Media", "Color", "Summary"}));
  printers->setCurrentText("kwo-1200");
  dialog.reset();  // while it is asked
  QApplication::processEvents();
}

TEST_F(Questions, HoldAJobUntilThePrinterIsKnown) {
  cups_dest_t *saved = cupsGetNamedDest(nullptr, "kwo-7032", nullptr);
  saved->num_options = cupsAddOption("pageScale", "85", saved->num_options, &saved->options);
  ASSERT_EQ(cupsSetDests2(nullptr, 1, saved), 0);
  cupsFreeDests(1, saved);
  QPrinter printer;
  printer.setPrinterName("kwo-7032");
  dialog::QueueDialog dialog(module_, printer, {});
  dialog.show();
  dialog.accept();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_THAT(dialog.job().options, testing::Contains(testing::FieldsAre("pageScale", "85")));
}

TEST_F(Questions, LeaveTheSettingsDialogAliveWhileAServerIsSilent) {
  useServer({});
  qputenv("KWOPDE_TIMEOUT", "1");
  dialog::SettingsDialog settings(module_, {"a", "b"}, "a");
  settings.show();
  const auto *save = settings.findChild<QDialogButtonBox *>()->buttons().constFirst();  // "Save"
  EXPECT_THAT(shown(settings), HasSubstr("Asking the printer"));
  EXPECT_FALSE(save->isEnabled());
  settings.findChild<QComboBox *>("printers")->setCurrentText("b");
  settings.accept();
  EXPECT_TRUE(settings.isVisible()) << "nothing could be saved";
  int events = 0;
  QTimer ticking;
  QObject::connect(&ticking, &QTimer::timeout, [&] { ++events; });
  ticking.start(10);
  Question::waitForAll();
  EXPECT_GT(events, 10);
  EXPECT_THAT(shown(settings), HasSubstr("did not answer within 1 s"));
  EXPECT_EQ(settings.problem().toStdString(), shown(settings));
  EXPECT_FALSE(save->isEnabled());
}

TEST_F(Questions, AskForAPasswordWhereTheWindowsAre) {
  useServer(
      "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"CUPS\"\r\n"
      "Content-Length: 0\r\n\r\n");
  static QThread *askedIn;
  askedIn = nullptr;
  cupsSetPasswordCB2(
      [](const char *, http_t *, const char *, const char *, void *) -> const char * {
        askedIn = QThread::currentThread();
        return nullptr;
      },
      nullptr);
  dialog::SettingsDialog settings(module_, {"a"}, "a");
  settings.show();
  Question::waitForAll();
  cupsSetPasswordCB2(nullptr, nullptr);
  EXPECT_EQ(askedIn, QThread::currentThread());
  EXPECT_THAT(shown(settings), HasSubstr("Unauthorized"));
}

}  // namespace
}  // namespace kwopde::test
