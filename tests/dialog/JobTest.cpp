// What is set is what is printed: jobs of kwopde print, of the dialog and of an attached dialog,
// held against those of lp(1) for the same settings, on a private server.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>
#include <QCheckBox>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>
#include <cstdio>
#include <map>
#include <regex>
#include <sstream>

#include "attach/kwopde/attach.h"
#include "dialog/AdvancedOptions.h"
#include "dialog/ModuleLoader.h"
#include "dialog/QueueDialog.h"
#include "dialog/SettingsDialog.h"
#include "host/Error.h"
#include "queue/Presets.h"
#include "tests/support/Dialogs.h"
#include "tests/support/JobAttributes.h"
#include "tests/support/TemporaryFolder.h"

namespace kwopde::test {
namespace {

using testing::Contains;
using testing::Pair;

using Attributes = std::map<std::string, std::string>;

struct Output {
  std::string text;
  int status;
};

Output run(const std::string &command) {
  Output output{{}, 0};
  std::FILE *pipe = popen((command + " 2>&1").c_str(), "r");
  std::array<char, 4096> block;
  while (const auto size = std::fread(block.data(), 1, block.size(), pipe))
    output.text.append(block.data(), size);
  output.status = WEXITSTATUS(pclose(pipe));
  return output;
}

/// Waits until a job went through the filters, and returns what the last of them found marked. A
/// job that does not get there is seen in the server's log.
std::string markedFor(int job) {
  const std::string folder = std::getenv("KWOPDE_CUPS");
  const std::string path = folder + "/tmp/marked-" + std::to_string(job);
  for (int tries = 0; tries < 600 && access(path.c_str(), R_OK) != 0; ++tries) usleep(50000);
  const std::string marked = contents(path);
  EXPECT_NE(marked, "") << run("tail -n 100 " + folder + "/log/error").text;
  return marked;
}

/// What a job carries: its attributes, but for those that tell of this very job, and what the
/// printer's filter finds marked.
Attributes carriedBy(int job) {
  static const std::regex own(
      "(date-)?time-at-.*|job-(uuid|uri|id|name|state.*|printer-.*|more-info|k-octets.*|"
      "impressions.*|media-.*|originating-.*|preserved)|document-.*|number-of-.*|attributes-.*|"
      "compression|printer-uri");
  Attributes attributes = attributesOf(job);
  std::erase_if(attributes, [](const auto &entry) { return std::regex_match(entry.first, own); });
  std::istringstream marked(markedFor(job));
  for (std::string key, choice; std::getline(marked, key, '=') && std::getline(marked, choice);)
    attributes["marked " + key] = choice;
  return attributes;
}

/// The number of the job that a command tells of: "request id is QUEUE-7", "sent job QUEUE-7".
int jobIn(const std::string &output) {
  std::smatch match;
  return std::regex_search(output, match, std::regex("(?:id is|sent job) \\S+-([0-9]+)"))
             ? std::stoi(match[1])
             : 0;
}

class Jobs : public testing::Test {
protected:
  /// Runs lpoptions and lpadmin for what a row has saved and set on the server, and takes it back.
  void given(const std::string &saved, const std::string &serverDefaults) {
    run("rm -f ~/.cups/lpoptions $CUPS_SERVERROOT/lpoptions; lpadmin -x jobs; lpadmin -p jobs -E "
        "-v file:/dev/null -P " +
        written(ppd_) + ' ' + serverDefaults);
    if (!saved.empty()) run("lpoptions " + saved);
  }

  /// A copy of a PPD with our filter at the end of the chain, which the server takes from its own
  /// folder only.
  std::string written(const std::string &ppd) {
    const std::string filter = std::string(std::getenv("KWOPDE_CUPS")) + "/etc/marked-filter";
    run("install -m 755 " KWOPDE_MARKED_FILTER " " + filter);
    return folder_.write("filtered.ppd",
                         std::regex_replace(contents(ppd), std::regex("image/pwg-raster 0 -"),
                                            "application/vnd.cups-pdf 0 " + filter));
  }

  /// The PPD of a printer that has no matte paper in 8x10.
  std::string withoutMatteLargePaper() const {
    return folder_.write("paper.ppd", contents(ppd_) +
                                          "*UIConstraints: *printFinish Matte *PageSize 8x10\n"
                                          "*UIConstraints: *PageSize 8x10 *printFinish Matte\n");
  }

  /// Runs kwopde print with these words.
  Output kwopdePrint(const std::string &words) {
    return run(KWOPDE_COMMAND " print " + words + ' ' + document_);
  }

  /// The attributes of lp's job for these words.
  Attributes byLp(const std::string &words) {
    const Output lp = run("lp " + words + ' ' + document_);
    EXPECT_NE(jobIn(lp.text), 0) << lp.text;
    return carriedBy(jobIn(lp.text));
  }

  TemporaryFolder folder_;
  std::string ppd_ = KWOPDE_SOURCE_FOLDER "/resources/ppd/kwo-7032.ppd";
  std::string document_ = folder_.write("page.txt", "page");
};

TEST_F(Jobs, OfPrintAreThoseOfLp) {
  const struct {
    const char *saved;
    const char *serverDefaults;
    const char *words;  // of both commands
  } rows[] = {
      {"", "", "-d jobs"},
      {"", "", "-d jobs -o printFinish=Satin -o pageScale=85"},
      {"", "", "-d jobs -n 3 -P 1-2 -o landscape -o fit-to-page -o sides=one-sided"},
      {"", "", "-d jobs -o 'printQuality=Draft number-up=2' -t Title"},
      {"-p jobs -o printFinish=Matte -o number-up=2 -o job-sheets=standard", "", "-d jobs"},
      {"-p jobs -o printFinish=Matte -o pageScale=85", "",
       "-d jobs -o printFinish=Glossy -o pageScale=100"},
      {"-p jobs -o PageSize=Custom.300x500 -o sides=two-sided-long-edge", "",
       "-d jobs -o sides=one-sided"},
      {"", "-o pageScale-default=85 -o copies-default=2", "-d jobs"},
      {"", "-o pageScale-default=85", "-d jobs -o pageScale=100"},
      {"-p jobs -o printer-resolution=600dpi", "", "-d jobs -n 010 -o media=8x10"},
      {"-p jobs/photo -o printFinish=Satin -o pageScale=120", "", "-d jobs/photo"},
      {"-p jobs/photo -o printFinish=Satin", "", "-d jobs/photo -o printFinish=Glossy"},
  };
  for (const auto &row : rows) {
    given(row.saved, row.serverDefaults);
    const Output printed = kwopdePrint(row.words);
    ASSERT_EQ(printed.status, 0) << printed.text;
    EXPECT_EQ(carriedBy(jobIn(printed.text)), byLp(row.words)) << row.saved << " | " << row.words;
  }
}

// lp sends every name of an option; a filter sees the same of both jobs.
TEST_F(Jobs, OfPrintAreMarkedAsThoseOfLpByWhateverName) {
  const auto marked = [](Attributes attributes) {
    std::erase_if(attributes,
                  [](const auto &entry) { return !entry.first.starts_with("marked "); });
    return attributes;
  };
  for (const char *words : {"-d jobs -o PageSize=4x6", "-d jobs -o PageSize=5x7"}) {
    given("-p jobs -o media=8x10,Tray2", "");
    const auto print = carriedBy(jobIn(kwopdePrint(words).text));
    EXPECT_EQ(marked(print), marked(byLp(words))) << words;
    EXPECT_THAT(print, Contains(Pair("media", "Tray2"))) << words;
  }
}

TEST_F(Jobs, AreOfTheDocumentsThatAreNamed) {
  given("", "");
  const std::string kwopde = std::string(KWOPDE_COMMAND) + " print -d jobs ";
  for (const std::string words : {"-o raw ", "-o document-format=text/plain "})
    EXPECT_EQ(attributesOf(jobIn(run(kwopde + words + document_).text))["document-format-supplied"],
              attributesOf(
                  jobIn(run("lp -d jobs " + words + document_).text))["document-format-supplied"]);
  const std::string here = "cd $(dirname " + document_ + ") && ";
  folder_.write("[page.txt]", "another page");
  const int job = jobIn(run(here + kwopde + "'[page.txt]' page.txt").text);
  EXPECT_THAT(attributesOf(job)["job-name"], testing::HasSubstr("[page.txt]"));
  EXPECT_EQ(attributesOf(job)["number-of-documents"], "2");
  const Output twice = run(kwopde + "--script - - </dev/null");
  EXPECT_EQ(twice.status, 2);
  EXPECT_THAT(twice.text, testing::HasSubstr("standard input can be read only once"));
  // The server has said no: nothing is printed.
  const Output refused = run(kwopde + "- </dev/null");
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.text, testing::HasSubstr("Check the printer and try again"));
  const Output homeless = run(here + "TMPDIR=/dev/null " + std::string(KWOPDE_COMMAND) +
                              " dialog --snapshot . - </dev/null");
  EXPECT_EQ(homeless.status, 2) << homeless.text;
  // A producer that is silent does not keep it from ending when it is told to.
  const Output told = run(here + "mkfifo silent && (sleep 90 >silent & timeout -k 20 3 " + kwopde +
                          "silent; status=$?; kill $!; exit $status)");
  EXPECT_EQ(told.status, 124) << told.text;
}

TEST_F(Jobs, AreOfWhatComesThroughAPipeToo) {
  given("", "");
  const std::string kwopde = KWOPDE_COMMAND;
  const auto bash = [](const std::string &command) { return run("bash -c '" + command + "'"); };
  for (const std::string &command : {"cat " + document_ + " | " + kwopde + " print -d jobs -",
                                     kwopde + " print -d jobs <(cat " + document_ + ")"}) {
    const Output print = bash(command);
    ASSERT_EQ(print.status, 0) << print.text;
    EXPECT_EQ(attributesOf(jobIn(print.text))["job-k-octets"],
              attributesOf(jobIn(run("lp -d jobs " + document_).text))["job-k-octets"]);
  }
  EXPECT_THAT(bash(kwopde + " check <(cat " + ppd_ + ")").text,
              testing::EndsWith(": Media7032PDE, ColorPDE, SharpenPDE\n"));
}

// Nothing is sent while something that was asked for would not be printed, unless somebody insists.
TEST_F(Jobs, OfPrintAreHeldBackForWhatIsRefused) {
  const struct {
    const char *words;
    const char *says;
    const char *saved = "";
  } rows[] = {
      {"-o printFinish=Matte", "Media Size: 8x10 does not go with Print Finish: Matte",
       "-p jobs -o media=8x10"},
      {"-o media=8x10 -o printFinish=Matte",
       "Print Finish: Matte does not go with Media Size: 8x10"},
      {"-o pageScale=3", "Page Scale cannot be 3: this printer takes 10 to 400"},
      {"-o printQuality=Best", "Print Quality cannot be Best: this printer has no such choice"},
      {"-o dustRemoval=Thorough -o printQuality=Draft",
       "Dust Removal: Thorough does not go with Print Quality: Draft, and would become Off"},
  };
  ppd_ = withoutMatteLargePaper();
  for (const auto &row : rows) {
    given(row.saved, "");
    const std::string words = std::string("-d jobs ") + row.words;
    const Output refused = kwopdePrint(words);
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.text, testing::HasSubstr(row.says));
    EXPECT_EQ(jobIn(refused.text), 0);
    EXPECT_NE(jobIn(kwopdePrint(words + " --force").text), 0);
  }
  const Output resolved =
      kwopdePrint("-d jobs -o dustRemoval=Thorough -o printQuality=Draft -o dustRemoval=Off");
  EXPECT_EQ(resolved.status, 0) << resolved.text;
}

class DialogJobs : public Jobs {
protected:
  /// Saves options that what is set in the dialog has to replace.
  void givenSaved() {
    given(
        "-p jobs -o printFinish=Matte -o pageScale=85 -o sides=two-sided-long-edge "
        "-o PageSize=8x10 -o job-sheets=standard",
        "-o rotateImage-default=Rotate90");
  }

  dialog::QueueDialog queueDialog() {
    printer_.setPrinterName("jobs");
    return {dialog::loadModule(), printer_, {document_}};
  }

  /// Accepts `dialog`, and returns what its job carries; nothing when there is none.
  static Attributes sentBy(dialog::QueueDialog &dialog) {
    dialog.accept();
    EXPECT_TRUE(dialog.jobId());
    return dialog.jobId() ? carriedBy(*dialog.jobId()) : Attributes();
  }

  /// Sets the options of the panel that are saved back to the printer's own.
  static void setPanels(QPrintDialog &dialog) {
    showAt(dialog, 2);
    QTest::keyClick(&widget<QComboBox>(dialog, "printFinishPopUp"), Qt::Key_Home);
    QTest::keyClick(&widget<QComboBox>(dialog, "rotateImagePopUp"), Qt::Key_Home);
    retype(widget<QLineEdit>(dialog, "pageScaleEdit"), "100");
  }

  QPrinter printer_;
};

TEST_F(DialogJobs, CarryWhatItsTabsAndPanelsShow) {
  givenSaved();
  dialog::QueueDialog dialog = queueDialog();
  setPanels(dialog);
  widget<QSpinBox>(dialog, "copies").setValue(3);
  widget<QCheckBox>(dialog, "reverse").setChecked(true);
  widget<QRadioButton>(dialog, "pagesRadioButton").click();
  QTest::keyClicks(&widget<QLineEdit>(dialog, "pagesLineEdit"), "2,4-5");
  widget<QComboBox>(dialog, "pageSetCombo").setCurrentIndex(2);  // even, of the document's
  const auto job = sentBy(dialog);
  given("", "");
  auto lp = byLp(
      "-d jobs -n 3 -P 2,4-5 -o page-set=even -o Collate=True -o PageSize=8x10 -o sides=one-sided "
      "-o outputorder=reverse -o printFinish=Glossy -o pageScale=100 -o rotateImage=None -o "
      "job-sheets=standard");
  EXPECT_EQ(job, lp);
}

TEST_F(DialogJobs, CarryWhatPropertiesHoldsOnceItWasOpened) {
  givenSaved();
  dialog::QueueDialog dialog = queueDialog();
  dialog.show();
  QTimer::singleShot(0, &dialog, [] {
    auto *properties = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    for (auto *box : properties->findChildren<QComboBox *>()) {
      const int index = box->findText("5x7", Qt::MatchContains);
      if (index >= 0 && box->objectName() == "pageSizeCombo") box->setCurrentIndex(index);
      if (box->objectName() == "pagesPerSheetCombo") box->setCurrentIndex(1);
    }
    properties->findChild<QRadioButton *>("landscape")->click();
    properties->accept();
  });
  widget<QPushButton>(dialog, "properties").click();
  const auto job = sentBy(dialog);
  given("", "-o rotateImage-default=Rotate90");
  EXPECT_EQ(job, byLp("-d jobs -o media=5x7 -o landscape -o number-up=2 -o number-up-layout=lrtb "
                      "-o job-sheets=none,none -o sides=one-sided -o printFinish=Matte "
                      "-o pageScale=85"));
}

TEST_F(DialogJobs, OfAttachedDialogsHaveThePanelsAndLeaveTheRestToQt) {
  const auto print = [&](bool withPanels) {
    givenSaved();
    QPrinter printer;
    printer.setPrinterName("jobs");
    QPrintDialog dialog(&printer);
    if (withPanels) {
      EXPECT_TRUE(attachPanels(&dialog));
      EXPECT_TRUE(attachPanels(&dialog));  // which changes nothing
    }
    dialog.open();
    if (withPanels) {
      setPanels(dialog);
      EXPECT_EQ(widget<QTabWidget>(dialog, "tabs").count(), 2 + 4);
    }
    // The application prints as soon as it hears of the choice, and was connected before us.
    int job = 0;
    QObject::connect(&dialog, &QDialog::accepted, [&] {
      QPainter painter(&printer);
      painter.drawText(100, 100, "page");
      painter.end();
      job = jobIn("id is " + run("lpstat -W all -o jobs | tail -1 | cut -d' ' -f1").text);
    });
    dialog.accept();
    return carriedBy(job);
  };
  auto with = print(true);
  const auto without = print(false);
  for (const auto &[key, choice] : std::initializer_list<std::pair<const char *, const char *>>{
           {"printFinish", "Glossy"}, {"pageScale", "100"}, {"rotateImage", "None"}}) {
    const std::string marked = std::string("marked ") + key;
    EXPECT_THAT(with, testing::AllOf(Contains(Pair(key, choice)), Contains(Pair(marked, choice))));
    with.erase(key);
    with[marked] = without.at(marked);
  }
  auto rest = without;
  for (const char *key : {"printFinish", "pageScale", "rotateImage"}) rest.erase(key);
  EXPECT_EQ(with, rest);
}

// A number that is left for a menu of the same panel stays, and one that is refused is put to the
// person before anything is sent.
TEST_F(DialogJobs, KeepWhatIsTypedAndAskAboutWhatIsRefused) {
  given("", "");
  dialog::QueueDialog dialog = queueDialog();
  showAt(dialog, 2);
  QApplication::setActiveWindow(&dialog);
  auto &scale = widget<QLineEdit>(dialog, "pageScaleEdit");
  retype(scale, "85");
  widget<QComboBox>(dialog, "printFinishPopUp").setFocus();
  QTest::keyClick(&widget<QComboBox>(dialog, "printFinishPopUp"), Qt::Key_Down);
  EXPECT_EQ(scale.text(), "85 %");
  retype(scale, "3");
  dialog.findChild<QTabWidget *>()->setCurrentIndex(3);
  dialog.accept();
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialog.focusWidget(), scale.focusProxy());
  EXPECT_EQ(dialog.findChild<QTabWidget *>()->currentIndex(), 2);
  EXPECT_THAT(sentBy(dialog), Contains(Pair("pageScale", "85")));
}

// Qt's Properties and the panels show the same, and the last that was touched wins.
TEST_F(DialogJobs, ShareWhatQtsPropertiesHold) {
  ppd_ = withoutMatteLargePaper();
  given("-p jobs -o dustRemoval=Thorough -o printQuality=Draft", "");
  dialog::QueueDialog dialog = queueDialog();
  showAt(dialog, 2);
  EXPECT_EQ(widget<QLabel>(dialog, "notice").text().toStdString(),
            "This printer cannot do these together: Dust Removal: Thorough, Print Quality: Draft.");
  QTest::keyClick(&widget<QComboBox>(dialog, "dustRemovalPopUp"), Qt::Key_Home);
  EXPECT_EQ(widget<QLabel>(dialog, "notice").text(), QString());
  QTest::keyClick(&widget<QComboBox>(dialog, "rotateImagePopUp"), Qt::Key_End);
  const int rotated = widget<QComboBox>(dialog, "rotateImagePopUp").currentIndex();
  QTimer::singleShot(100, &dialog, [&] {
    auto *properties = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    dialog::AdvancedOptions options(properties);
    EXPECT_EQ(options.choice("Rotate Image"), rotated);
    EXPECT_EQ(options.choice("Dust Removal"), 0);
    options.choose("Mirror Image", 1);
    auto &papers = *properties->findChild<QComboBox *>("pageSizeCombo");
    papers.setCurrentIndex(papers.findText("8x10", Qt::MatchContains));
    properties->accept();
  });
  widget<QPushButton>(dialog, "properties").click();
  EXPECT_EQ(widget<QComboBox>(dialog, "mirrorImagePopUp").currentIndex(), 1);
  EXPECT_EQ(widget<QComboBox>(dialog, "rotateImagePopUp").currentIndex(), rotated);
  // Matte paper comes in no 8x10, and paper is Qt's.
  QTest::keyClick(&widget<QComboBox>(dialog, "printFinishPopUp"), Qt::Key_End);
  EXPECT_THAT(widget<QLabel>(dialog, "notice").text().toStdString(),
              testing::HasSubstr("together with Media Size: 8x10"));
}

// Nor does the settings dialog save them.
TEST_F(DialogJobs, AreNotSentWithTheOptionsOfAPpdThatWasReplaced) {
  /// Accepts `dialog` once the PPD has been replaced, and once more.
  const auto acceptTwice = [this](QDialog &dialog) {
    QTest::keyClick(&widget<QComboBox>(dialog, "printQualityPopUp"), Qt::Key_Home);
    // Back to the PPD's default, which is not what is saved.
    QTest::keyClick(&widget<QComboBox>(dialog, "rotateImagePopUp"), Qt::Key_Home);
    const std::string replaced = folder_.write(
        "replaced.ppd", std::regex_replace(contents(ppd_), std::regex("/Matte:"), "/Velvet:"));
    run("lpadmin -p jobs -P " + written(replaced));
    QString told;
    QTimer::singleShot(100, &dialog, [&] {
      auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
      told = box->text();
      box->button(QMessageBox::Close)->click();
    });
    dialog.accept();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_THAT(told.toStdString(), testing::HasSubstr("jobs has got another PPD"));
    QTest::qWait(10);
    EXPECT_GE(widget<QComboBox>(dialog, "printFinishPopUp").findText("Velvet"), 0);
    dialog.accept();
    EXPECT_FALSE(dialog.isVisible());
  };
  const auto areTheirs = testing::AllOf(Contains(Pair("marked printQuality", "Draft")),
                                        Contains(Pair("marked rotateImage", "None")));
  given("-p jobs -o rotateImage=Rotate90", "");
  dialog::QueueDialog dialog = queueDialog();
  showAt(dialog, 2);
  acceptTwice(dialog);
  ASSERT_TRUE(dialog.jobId());
  EXPECT_THAT(carriedBy(*dialog.jobId()), areTheirs);

  given("", "-o rotateImage-default=Rotate90");
  dialog::SettingsDialog settings(dialog::loadModule(), {"jobs"}, "jobs");
  settings.show();
  acceptTwice(settings);
  EXPECT_THAT(byLp("-d jobs"), areTheirs);
}

// Nor without what is saved for a printer, when the server does not tell.
TEST_F(DialogJobs, AreNotSentWhileNothingIsKnownOfThePrinter) {
  given("-p jobs/photo -o printFinish=Satin", "");
  dialog::QueueDialog dialog = queueDialog();
  dialog.setUnattended();
  dialog.show();
  run("lpoptions -x jobs/photo");
  widget<QComboBox>(dialog, "printers").setCurrentText("jobs/photo");
  dialog.accept();
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_THAT(dialog.problem().toStdString(), testing::HasSubstr("jobs has no preset photo"));
  run("lpoptions -p jobs/photo -o printFinish=Satin");
  dialog.accept();  // asks anew
  EXPECT_THAT(sentBy(dialog), Contains(Pair("printFinish", "Satin")));
}

class Presets : public DialogJobs {
protected:
  /// Triggers an action of the preset menu, and gives the name that it asks for, if it does.
  static void pick(QDialog &dialog, const char *action, const QString &name = {}) {
    QMenu &menu = *dialog.findChild<QToolButton *>("presetMenu")->menu();
    menu.popup({});
    QTimer::singleShot(100, &dialog, [name] {
      auto *question = qobject_cast<QDialog *>(QApplication::activeModalWidget());
      if (auto *input = qobject_cast<QInputDialog *>(question)) input->setTextValue(name);
      if (question) QTest::keyClick(question, Qt::Key_Return);
    });
    menu.findChild<QAction *>(action)->trigger();
    menu.hide();
    QTest::qWait(10);
  }
  static std::string saved(const std::string &key, const std::string &destination = "jobs") {
    const std::string text = run("lpoptions -p " + destination).text;
    std::smatch match;
    return std::regex_search(text, match, std::regex(key + "=(\\S+)")) ? match[1].str() : "";
  }
};

TEST_F(Presets, AreKeptChosenAndDeletedInTheDialog) {
  given("-p jobs -o printFinish=Matte", "");
  dialog::QueueDialog dialog = queueDialog();
  setPanels(dialog);  // printFinish=Glossy, the printer's default
  auto &sides = widget<QRadioButton>(dialog, "duplexLong");
  sides.setEnabled(true);  // as with a printer that does it
  sides.setChecked(true);
  const auto shown = [&] { return widget<QComboBox>(dialog, "presets").currentText(); };
  EXPECT_EQ(shown(), "My settings (changed)");
  pick(dialog, "saveAs", "Warm photo");
  EXPECT_EQ(shown(), "Warm-photo");
  EXPECT_EQ(widget<QComboBox>(dialog, "printers").currentText(), "jobs/Warm-photo");
  EXPECT_EQ(dialog.findChild<QTabWidget *>()->currentWidget()->objectName(), "media");
  EXPECT_EQ(saved("printFinish", "jobs/Warm-photo"), "Glossy");
  EXPECT_EQ(saved("sides", "jobs/Warm-photo"), "two-sided-long-edge");
  EXPECT_EQ(saved("printFinish"), "Matte");
  auto &printers = widget<QComboBox>(dialog, "printers");
  printers.setCurrentText("jobs");
  EXPECT_EQ(widget<QComboBox>(dialog, "presets").count(), 2) << "of a list that was kept";
  QString asked;
  QTimer::singleShot(300, &dialog, [&] {
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box) return;
    asked = box->text();
    for (QAbstractButton *button : box->buttons())
      if (box->buttonRole(button) == QMessageBox::AcceptRole) button->click();
  });
  pick(dialog, "saveAs", "warm photo");  // CUPS does not tell them apart
  EXPECT_EQ(asked.toStdString(), "Replace the preset “Warm-photo”?");
  EXPECT_EQ(shown(), "Warm-photo");
  emit widget<QComboBox>(dialog, "presets").activated(0);
  QTest::qWait(10);
  EXPECT_EQ(widget<QComboBox>(dialog, "printFinishPopUp").currentText(), "Matte");
  emit widget<QComboBox>(dialog, "presets").activated(1);
  QTest::qWait(10);
  EXPECT_EQ(widget<QComboBox>(dialog, "printFinishPopUp").currentText(), "Glossy");
  // As Qt shows, without Duplex.
  EXPECT_EQ(sentBy(dialog), byLp("-d jobs/Warm-photo -o sides=one-sided"));
  dialog.show();
  pick(dialog, "delete");
  EXPECT_EQ(shown(), "My settings");
  EXPECT_TRUE(host::Presets("jobs").names().empty());
}

TEST_F(Presets, OfTheSettingsDialogReachEveryProgram) {
  given("-p jobs -o pageScale=120 -o number-up=2 -o print-color-mode=monochrome -o job-sheets=none",
        "-o pageScale-default=85 -o job-sheets-default=standard,none");
  dialog::SettingsDialog dialog(dialog::loadModule(), {"jobs", "kwo-basic"}, "jobs");
  dialog.show();
  EXPECT_EQ(widget<QLineEdit>(dialog, "pageScaleEdit").text(), "120 %");
  pick(dialog, "reset");
  EXPECT_EQ(widget<QLineEdit>(dialog, "pageScaleEdit").text(), "85 %") << "the queue's own default";
  QTest::keyClick(&widget<QComboBox>(dialog, "printFinishPopUp"), Qt::Key_End);
  dialog.findChild<QTabWidget *>()->setCurrentIndex(1);
  widget<QComboBox>(dialog, "printers").setCurrentText("kwo-basic");
  EXPECT_EQ(dialog.findChild<QTabWidget *>()->currentIndex(), 1);
  widget<QComboBox>(dialog, "printers").setCurrentText("jobs");
  pick(dialog, "reset");
  dialog.findChild<QTabWidget *>()->setCurrentIndex(0);
  QTest::keyClick(&widget<QComboBox>(dialog, "printFinishPopUp"), Qt::Key_End);
  dialog.accept();
  EXPECT_FALSE(dialog.isVisible());
  const auto lp = byLp("-d jobs");
  EXPECT_THAT(lp, Contains(Pair("printFinish", "Matte")));
  EXPECT_THAT(lp, Contains(Pair("pageScale", "85")));
  EXPECT_THAT(lp, Contains(Pair("number-up", "2")));
  EXPECT_THAT(lp, Contains(Pair("print-color-mode", "monochrome")));
  EXPECT_EQ(saved("job-sheets"), "none") << "what is usual elsewhere";
}

TEST_F(Presets, OfTwoProcessesAtOnceAreAllKept) {
  given("-p kwo-basic -o printFinish=Matte", "");
  const auto keep = [](char process) {
    for (char i = 'a'; i < 'k'; ++i)
      host::Presets("jobs").save({process, i}, {{"printFinish", "Satin"}, {"note", {process, i}}});
  };
  const pid_t child = fork();
  if (child == 0) {
    keep('x');
    _exit(0);
  }
  keep('y');
  int status = -1;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  const auto names = host::Presets("jobs").names();
  ASSERT_EQ(names.size(), 20U);
  for (const auto &name : names) EXPECT_EQ(saved("note", "jobs/" + name), name);
  EXPECT_EQ(saved("printFinish", "kwo-basic"), "Matte");
  host::Presets("jobs").remove("xa");
  EXPECT_EQ(host::Presets("jobs").names().front(), "xb");
  EXPECT_THROW(host::Presets("jobs").save("a b", {}), host::Error);
  EXPECT_THROW(host::Presets("nowhere").save("a", {}), host::JobError);
}

TEST_F(DialogJobs, KeepWhatIsSetWhenPrintersAreSwitchedAndTheDialogOpensAnew) {
  given("", "");
  printer_.setPrinterName("jobs");
  QPrintDialog first(&printer_);
  ASSERT_TRUE(attachPanels(&first));
  showAt(first, 3);
  QTest::keyClick(&widget<QComboBox>(first, "colorModePopUp"), Qt::Key_End);
  const QString picked = widget<QComboBox>(first, "colorModePopUp").currentText();
  auto &printers = widget<QComboBox>(first, "printers");
  printers.setCurrentText("kwo-1200");
  EXPECT_EQ(first.findChild<QTabWidget *>()->currentWidget()->objectName(), "color");
  EXPECT_NE(widget<QComboBox>(first, "colorModePopUp").currentText(), picked);
  printers.setCurrentText("jobs");
  EXPECT_EQ(widget<QComboBox>(first, "colorModePopUp").currentText(), picked);
  first.accept();

  QPrintDialog second(&printer_);
  ASSERT_TRUE(attachPanels(&second));
  showAt(second, 3);
  EXPECT_EQ(widget<QComboBox>(second, "colorModePopUp").currentText(), picked);
}

}  // namespace
}  // namespace kwopde::test
