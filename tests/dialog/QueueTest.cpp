// Real printing to the queues of a private CUPS server; scripts/with-cups runs this program.
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QPrintEngine>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QSlider>
#include <QTimer>
#include <iomanip>
#include <sstream>

#include "attach/kwopde/attach.h"
#include "dialog/ModuleLoader.h"
#include "dialog/QueueDialog.h"
#include "dialog/SettingsDialog.h"
#include "host/Error.h"
#include "host/TraceTo.h"
#include "queue/CupsConnection.h"
#include "queue/Presets.h"
#include "queue/PrintJob.h"
#include "queue/PrintQueue.h"
#include "tests/support/Dialogs.h"
#include "tests/support/JobAttributes.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestPpd.h"
#include "tests/support/Walk.h"

namespace kwopde::test {
namespace {

using host::PrintQueue;
using testing::HasSubstr;

std::string folder() {
  return qEnvironmentVariable("KWOPDE_CUPS").toStdString();
}

/// A document of `size` bytes that no filter can convert unless it begins with `start`.
std::string document(const std::string &name, const std::string &start, std::size_t size = 0) {
  static const TemporaryFolder folder;
  return folder.write(name, start + std::string(size, 'x'));
}

/// The value of a job's attribute on the server; empty when it has none.
std::string attribute(int job, const char *name) {
  return attributesOf(job)[name];
}

/// Sends a job that nobody cancels, and returns its number.
int send(const host::PrintJob &job) {
  return host::send(job, [](auto, auto) { return true; }).value();
}

/// Keeps the trace.
struct Lines final : LogSink {
  void writeLine(std::string_view line) override { text.append(line).append("\n"); }
  std::string text;
};

TEST(Queue, JobHasItsDocuments) {
  const std::string first = document("first.txt", "first ", 200000);
  const std::string second = document("second.txt", "second");
  long long last = 0;
  const auto id =
      host::send({"kwo-1200", "Title", {first, second}, {}}, [&](long long sent, long long total) {
        EXPECT_GE(sent, last);
        EXPECT_EQ(total, 200012);
        last = sent;
        return true;
      });
  ASSERT_TRUE(id);
  EXPECT_EQ(last, 200012);
  EXPECT_EQ(attribute(*id, "job-name"), "Title");
  std::ostringstream spooled;
  spooled << folder() << "/spool/d" << std::setw(5) << std::setfill('0') << *id;
  EXPECT_EQ(contents(spooled.str() + "-001"), contents(first));
  EXPECT_EQ(contents(spooled.str() + "-002"), contents(second));
}

TEST(Queue, JobHasAsMuchOfALongTitleAsTheServerTakes) {
  std::string title;
  for (int i = 0; i < 40000; ++i) title += "\u00e9";
  const int id = send({"kwo-1200", title, {document("a.txt", "a")}, {}});
  EXPECT_EQ(attribute(id, "job-name"), title.substr(0, 254));
}

TEST(Queue, JobThatAPersonCancelsLeavesNothingBehind) {
  const std::string large = document("large.txt", "text", 3000000);
  const int before = send({"kwo-1200", "Before", {large}, {}});
  EXPECT_FALSE(
      host::send({"kwo-1200", "Cancelled", {large}, {}}, [](auto, auto) { return false; }));
  EXPECT_EQ(send({"kwo-1200", "Next", {large}, {}}), before + 2);
  EXPECT_EQ(attribute(before + 1, "job-id"), "");
}

TEST(Queue, SaysWhatIsInTheWay) {
  const auto why = [](auto &&act) -> std::string {
    try {
      act();
    } catch (const host::Error &error) {
      return error.what();
    }
    return {};
  };
  EXPECT_EQ(PrintQueue("").name(), "kwo-7032") << "the server's default";
  EXPECT_THAT(why([] { PrintQueue("nowhere"); }), HasSubstr("there is no printer nowhere"));
  EXPECT_THAT(why([] { PrintQueue("kwo-1200/none"); }), HasSubstr("kwo-1200 has no preset none"));
  EXPECT_THAT(why([] { send({"kwo-1200", "", {"/nope"}, {}}); }),
              "/nope: No such file or directory");
  EXPECT_THAT(why([] { send({"nowhere", "", {document("a.txt", "a")}, {}}); }),
              HasSubstr("nowhere took no job"));
  ASSERT_EQ(std::system("/usr/sbin/lpadmin -p raw -E -v file:/dev/null 2>/dev/null"), 0);
  EXPECT_THAT(why([] { PrintQueue("raw").openSession(); }),
              HasSubstr("the printer raw has no PPD"));
  ASSERT_EQ(std::system("/usr/sbin/lpadmin -p kwo-1200 -c class 2>/dev/null"), 0);
  EXPECT_TRUE(PrintQueue("class").openSession()) << "has the panels of its first printer";
  ASSERT_EQ(std::system("/usr/sbin/cupsreject kwo-basic"), 0);
  EXPECT_THAT(why([] { send({"kwo-basic", "", {document("a.txt", "a")}, {}}); }),
              testing::MatchesRegex("the printer kwo-basic took no job: .*not accepting jobs.*"));
}

TEST(Queue, KeepsItsPresetsWhenAnotherOneCannotBeSaved) {
  const host::Presets presets("kwo-7032");
  presets.save("matte", {{"printFinish", "Matte"}});
  EXPECT_THROW(presets.save("torn", {{"note", "one line\nDest kwo-7032/stray note=1"}}),
               host::Error);
  EXPECT_THAT(presets.names(), testing::ElementsAre("matte"));
  EXPECT_EQ(PrintQueue("kwo-7032/matte").openSession()->markedChoice("printFinish"), "Matte");
  presets.remove("matte");
}

TEST(Queue, IsReadAgainWhenItChangedAndIsAlwaysAsIfItWere) {
  const auto setUp = [](const std::string &quality) {
    const std::string ppd = document(
        "again.ppd",
        ppdText(option("quality", "Quality", quality, {{"Fine", "Fine"}, {"Draft", "Draft"}}) +
                option("scale", "Scale", "100", {{"100", "100"}}) +
                "*Customscale True: \"pop\"\n*ParamCustomscale Scale/Percent: 1 int 10 400\n"));
    const std::string add = "/usr/sbin/lpadmin -p again -E -v file:/dev/null -P " + ppd;
    return std::system((add + " 2>/dev/null").c_str()) == 0;
  };
  /// What is marked, and every text.
  const auto state = [](const host::PpdSession &session) {
    std::vector<std::string> all;
    session.ppd().forEachOption([&](const ppd_option_t &option) {
      all.push_back(session.markedChoice(option.keyword).value_or("nothing"));
      for (int i = 0; i < option.num_choices; ++i) all.emplace_back(option.choices[i].text);
    });
    return all;
  };
  ASSERT_TRUE(setUp("Fine"));
  const PrintQueue queue("again");
  auto session = queue.openSession();
  ppd_file_t *const first = session->ppdFile();
  const auto asRead = state(*session);
  const auto second = queue.openSession();
  EXPECT_NE(second->ppdFile(), first) << "while it is in use";
  EXPECT_EQ(state(*second), asRead);
  EXPECT_TRUE(session->mark("scale", "Custom.87") && session->mark("quality", "Draft"));
  EXPECT_NE(state(*session), asRead);
  session.reset();
  session = queue.openSession();
  EXPECT_EQ(session->ppdFile(), first) << "was read again";
  EXPECT_EQ(state(*session), asRead);
  session.reset();
  ASSERT_TRUE(setUp("Draft"));
  EXPECT_NE(state(*queue.openSession()), asRead);
}

class QtDialog : public testing::Test {
protected:
  static QStringList options(QPrinter &printer) {
    return printer.printEngine()
        ->property(QPrintEngine::PrintEnginePropertyKey(0xfe00))
        .toStringList();
  }
  /// Those behind Qt's.
  static QStringList tabs(const QDialog &dialog) { return tabTitles(dialog, 2); }
  void SetUp() override { printer_.setPrinterName("kwo-7032"); }

  QPrinter printer_;
};

TEST_F(QtDialog, ShowsThePanelsOfTheChosenPrinter) {
  QPrintDialog dialog(&printer_);
  attachPanels(&dialog);
  auto *printers = dialog.findChild<QComboBox *>("printers");
  EXPECT_EQ(tabs(dialog), QStringList({"Media", "Color", "Sharpen", "Summary"}));
  showAt(dialog, 2);
  for (const QLabel *label : dialog.findChildren<QLabel *>())
    EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
  printers->setCurrentText("kwo-basic");
  EXPECT_EQ(tabs(dialog), QStringList({"Media", "Color", "Summary"}));
  printers->setCurrentIndex(printers->count() - 1);  // a PDF file
  EXPECT_TRUE(tabs(dialog).isEmpty());
  dialog.accept();
  EXPECT_FALSE(options(printer_).contains("pageScale"));
}

TEST_F(QtDialog, IsWorkedByTheKeyboardAloneAndSeenWithoutScrolling) {
  const auto check = [&](const char *print) {
    dialog::QueueDialog dialog(dialog::loadModule(), printer_, {document("photo.txt", "photo")});
    expectUsable(dialog, 2);
    EXPECT_THAT(dialog.windowTitle().toStdString(), HasSubstr("photo.txt"));
    auto *buttons = dialog.findChild<QDialogButtonBox *>();
    QEvent languageWasLoaded(QEvent::LanguageChange);
    QApplication::sendEvent(buttons, &languageWasLoaded);
    QApplication::processEvents();
    EXPECT_EQ(buttons->button(QDialogButtonBox::Ok)->text().toStdString(), print);
    dialog::SettingsDialog settings(dialog::loadModule(), {"kwo-7032"}, "kwo-7032");
    expectUsable(settings, 0);
  };
  check("&Print");
  const Speaking german(QLocale::German);
  check("&Drucken");
}

TEST_F(QtDialog, MayBeDeletedWhileItsPanelsTellSomething) {
  auto *dialog = new QPrintDialog(&printer_);
  attachPanels(dialog);
  showAt(*dialog, 2);
  retype(widget<QLineEdit>(*dialog, "pageScaleEdit"), "9999");
  QTimer::singleShot(0, qApp, [&dialog] { delete std::exchange(dialog, nullptr); });
  dialog->accept();
  QApplication::processEvents();
  EXPECT_EQ(dialog, nullptr);
  auto *told = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
  ASSERT_NE(told, nullptr);
  EXPECT_THAT(told->text().toStdString(), HasSubstr("Page Scale cannot be"));
  EXPECT_EQ(told->textFormat(), Qt::PlainText);
  told->button(QMessageBox::Close)->click();
}

TEST_F(QtDialog, LeavesTheLanguageOfTheApplicationAlone) {
  const auto forgetAll = [] { const Speaking german(QLocale::German); };  // at its end
  forgetAll();
  const QLocale before;
  QLocale::setDefault(QLocale::German);
  {
    QPrintDialog dialog(&printer_);
    attachPanels(&dialog);
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancel");
  }
  QLocale::setDefault(before);
  forgetAll();
}

TEST_F(QtDialog, GivesPanelsRoomWhereItFoldsThemAway) {
  QPrintDialog open(&printer_);
  attachPanels(&open, true);
  QPrintDialog folded(&printer_);
  attachPanels(&folded);
  for (QPrintDialog *dialog : {&open, &folded}) {
    auto *tabs = dialog->findChild<QTabWidget *>();
    EXPECT_EQ(tabs->isVisibleTo(dialog), dialog == &open);
    showAt(*dialog, 3);
    EXPECT_GE(tabs->currentWidget()->height(), 20 * dialog->fontMetrics().height());
  }
}

// Qt's plug-in attaches the panels to every dialog of a process, our own among them.
TEST_F(QtDialog, OfOursHasThePanelsOnceAndSavesEachOnce) {
  dialog::QueueDialog dialog(dialog::loadModule(), printer_, {});
  attachPanels(&dialog);
  EXPECT_EQ(tabs(dialog), QStringList({"Media", "Color", "Sharpen", "Summary"}));
  for (const int page : {2, 3, 4}) showAt(dialog, page);  // an unseen one has nothing to save
  Lines trace;
  const host::TraceTo tracing(dialog::loadModule(), &trace);
  dialog.accept();
  EXPECT_EQ(
      QString::fromStdString(trace.text).count(QRegularExpression("BEGIN.*saveSettingsToPPD:")), 3);
}

TEST_F(QtDialog, TwoDialogsOfOneQueueKeepTheirSettingsApart) {
  QPrinter other;
  other.setPrinterName("kwo-7032");
  QPrintDialog first(&printer_);
  QPrintDialog second(&other);
  attachPanels(&first);
  attachPanels(&second);
  showAt(first, 2);
  showAt(second, 3);
  first.findChild<QLineEdit *>("pageScaleEdit")->setText("85");
  second.findChild<QSlider *>("gammaSlider")->setSliderPosition(1789);
  first.accept();
  second.accept();
  const QStringList a = options(printer_);
  const QStringList b = options(other);
  EXPECT_EQ(a.value(a.indexOf("pageScale") + 1), "85");
  EXPECT_FALSE(a.contains("imageGamma"));
  EXPECT_EQ(b.value(b.indexOf("imageGamma") + 1), "1.780000");
  EXPECT_FALSE(b.contains("pageScale"));
}

TEST_F(QtDialog, SendsWhatWasSetAndSaysSoInTheTrace) {
  Lines trace;
  const host::TraceTo tracing(dialog::loadModule(), &trace);
  dialog::QueueDialog dialog(dialog::loadModule(), printer_, {document("photo.txt", "photo")});
  showAt(dialog, 4);
  dialog.findChild<QLineEdit *>("amountLabel")->setText("20");
  printer_.setCopyCount(3);
  dialog.accept();
  ASSERT_TRUE(dialog.jobId());
  EXPECT_EQ(attribute(*dialog.jobId(), "sharpnessAmount"), "20");
  EXPECT_EQ(attribute(*dialog.jobId(), "job-name"), "photo.txt");
  EXPECT_THAT(trace.text, HasSubstr(") request key=sharpnessAmount wanted=20 answer=granted\n"));
  EXPECT_THAT(trace.text, testing::EndsWith(fmt::format(") sent job={}\n", *dialog.jobId())));
}

TEST_F(QtDialog, SendsOneJobForADoubleClickAndNoneAfterASignal) {
  const std::string large = document("twice.txt", "text", 300000);
  dialog::QueueDialog twice(dialog::loadModule(), printer_, {large});
  auto *printers = twice.findChild<QComboBox *>("printers");
  QTimer::singleShot(0, &twice, [&] {
    QTest::keyClick(printers, Qt::Key_Down);
    twice.accept();
  });
  twice.accept();
  ASSERT_TRUE(twice.jobId());
  EXPECT_EQ(printers->currentText(), "kwo-7032");
  EXPECT_EQ(attribute(*twice.jobId() + 1, "job-name"), "");

  dialog::QueueDialog ended(dialog::loadModule(), printer_, {large});
  QTimer::singleShot(0, &ended, [] { raise(SIGTERM); });
  ended.accept();
  EXPECT_EQ(ended.result(), QDialog::Rejected);
  const int next = send({"kwo-7032", "Next", {large}, {}});
  EXPECT_EQ(next, *twice.jobId() + 2) << "it was sent in part";
  EXPECT_EQ(attribute(next - 1, "job-id"), "");
}

TEST_F(QtDialog, StaysOpenWithItsSettingsWhenPrintingFails) {
  ASSERT_EQ(std::system("/usr/sbin/cupsreject kwo-7032"), 0);
  const std::string path = document("retried.txt", "text");
  dialog::QueueDialog dialog(dialog::loadModule(), printer_, {path});
  showAt(dialog, 2);
  dialog.findChild<QLineEdit *>("pageScaleEdit")->setText("85");
  QStringList messages;
  const auto answer = [&](QMessageBox::StandardButton button) {
    QTimer::singleShot(0, &dialog, [&messages, button] {
      auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
      if (!box) return;
      messages.append(box->text());
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      box->button(button)->click();
    });
  };
  answer(QMessageBox::Close);
  dialog.accept();
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialog.findChild<QLineEdit *>("pageScaleEdit")->text(), "85");
  ASSERT_EQ(messages.size(), 1);
  EXPECT_TRUE(messages[0].contains("not accepting jobs")) << messages[0].toStdString();

  ASSERT_EQ(std::system("/usr/sbin/cupsaccept kwo-7032"), 0);
  answer(QMessageBox::Close);
  dialog.accept();
  ASSERT_TRUE(dialog.jobId());
  EXPECT_EQ(attribute(*dialog.jobId(), "pageScale"), "85");
}

// Last, since there is no server afterwards.
TEST(ServerGone, IsReportedInTheMiddleOfADocument) {
  const std::string large = document("large.txt", "text", 30000000);
  const int pid = std::stoi(contents(folder() + "/cupsd.pid"));
  const auto kill = [&](long long, long long) { return ::kill(pid, SIGKILL) == 0 || true; };
  EXPECT_THROW(host::send({"kwo-1200", "", {large}, {}}, kill), host::JobError);
  EXPECT_THROW(PrintQueue("kwo-1200"), host::JobError);
}

}  // namespace
}  // namespace kwopde::test
