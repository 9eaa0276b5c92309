// What is set is what is printed: jobs of kwopde print, of the dialog and of an attached dialog,
// held against those of lp(1) for the same settings, on a private server.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <map>
#include <regex>

#include "attach/kwopde/attach.h"
#include "dialog/ModuleLoader.h"
#include "dialog/PrinterOptions.h"
#include "dialog/QueueDialog.h"
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

/// What a job carries: its attributes, but for those that tell of this very job.
Attributes carriedBy(int job) {
  static const std::regex own(
      "(date-)?time-at-.*|job-(uuid|uri|id|name|state.*|printer-.*|more-info|k-octets.*|"
      "impressions.*|media-.*|originating-.*|preserved)|document-.*|number-of-.*|attributes-.*|"
      "compression|printer-uri");
  Attributes attributes = attributesOf(job);
  std::erase_if(attributes, [](const auto &entry) { return std::regex_match(entry.first, own); });
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
        "-v file:/dev/null "
        "-P " KWOPDE_SOURCE_FOLDER "/resources/ppd/kwo-7032.ppd " +
        serverDefaults);
    if (!saved.empty()) run("lpoptions " + saved);
  }

  /// The attributes of lp's job for these words.
  Attributes byLp(const std::string &words) {
    const Output lp = run("lp " + words + ' ' + document_);
    EXPECT_NE(jobIn(lp.text), 0) << lp.text;
    return carriedBy(jobIn(lp.text));
  }

  TemporaryFolder folder_;
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
      {"-p jobs/photo -o printFinish=Satin -o pageScale=120", "", "-d jobs/photo"},
      {"-p jobs/photo -o printFinish=Satin", "", "-d jobs/photo -o printFinish=Glossy"},
  };
  for (const auto &row : rows) {
    given(row.saved, row.serverDefaults);
    const Output print = run(std::string(KWOPDE_COMMAND) + " print " + row.words + ' ' + document_);
    ASSERT_EQ(print.status, 0) << print.text;
    EXPECT_EQ(carriedBy(jobIn(print.text)), byLp(row.words)) << row.saved << " | " << row.words;
  }
}

// Nothing is sent while something that was asked for would not be printed, unless somebody insists.
TEST_F(Jobs, OfPrintAreHeldBackForWhatIsRefused) {
  const struct {
    const char *words;
    const char *says;
  } rows[] = {
      {"-o pageScale=3", "Page Scale cannot be 3: this printer takes 10 to 400"},
      {"-o printQuality=Best", "Print Quality cannot be Best: this printer has no such choice"},
      {"-o dustRemoval=Thorough -o printQuality=Draft",
       "Dust Removal: Thorough does not go with Print Quality: Draft, and would become Off"},
  };
  given("", "");
  for (const auto &row : rows) {
    const std::string command = std::string(KWOPDE_COMMAND) + " print -d jobs " + row.words;
    const Output refused = run(command + ' ' + document_);
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.text, testing::HasSubstr(row.says));
    EXPECT_EQ(jobIn(refused.text), 0);
    EXPECT_NE(jobIn(run(command + " --force " + document_).text), 0);
  }
  const Output resolved =
      run(std::string(KWOPDE_COMMAND) +
          " print -d jobs -o dustRemoval=Thorough -o printQuality=Draft -o dustRemoval=Off " +
          document_);
  EXPECT_EQ(resolved.status, 0) << resolved.text;
}

class DialogJobs : public Jobs {
protected:
  template <class Widget>
  static Widget &widget(QPrintDialog &dialog, const char *name) {
    auto *found = dialog.findChild<Widget *>(name);
    if (!found) throw std::runtime_error(name);
    return *found;
  }
  static void show(QPrintDialog &dialog, int tab) {
    dialog.show();
    dialog::expandOptions(dialog);
    dialog.findChild<QTabWidget *>()->setCurrentIndex(tab);
    QApplication::processEvents();
  }

  /// Saves options that what is set in the dialog has to replace.
  void givenSaved(QPrinter &printer) {
    given(
        "-p jobs -o printFinish=Matte -o pageScale=85 -o sides=two-sided-long-edge "
        "-o PageSize=8x10 -o job-sheets=standard",
        "-o rotateImage-default=Rotate90");
    printer.setPrinterName("jobs");
  }

  /// Sets the options of the panel that are saved back to the printer's own.
  static void setPanels(QPrintDialog &dialog) {
    show(dialog, 2);
    QTest::keyClick(&widget<QComboBox>(dialog, "printFinishPopUp"), Qt::Key_Home);
    QTest::keyClick(&widget<QComboBox>(dialog, "rotateImagePopUp"), Qt::Key_Home);
    auto &scale = widget<QLineEdit>(dialog, "pageScaleEdit");
    scale.setFocus();
    scale.selectAll();
    QTest::keyClicks(&scale, "100");
  }

  QPrinter printer_;
};

TEST_F(DialogJobs, CarryWhatItsTabsAndPanelsShow) {
  givenSaved(printer_);
  dialog::QueueDialog dialog(dialog::loadModule(), printer_, {QString::fromStdString(document_)});
  setPanels(dialog);
  widget<QSpinBox>(dialog, "copies").setValue(3);
  widget<QCheckBox>(dialog, "reverse").setChecked(true);
  dialog.accept();
  ASSERT_TRUE(dialog.jobId());
  const auto job = carriedBy(*dialog.jobId());
  given("", "");
  auto lp = byLp(
      "-d jobs -n 3 -o Collate=True -o PageSize=8x10 -o sides=one-sided -o outputorder=reverse "
      "-o printFinish=Glossy -o pageScale=100 -o rotateImage=None -o job-sheets=standard");
  EXPECT_EQ(job, lp);
}

TEST_F(DialogJobs, CarryWhatPropertiesHoldsOnceItWasOpened) {
  givenSaved(printer_);
  dialog::QueueDialog dialog(dialog::loadModule(), printer_, {QString::fromStdString(document_)});
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
  dialog.accept();
  ASSERT_TRUE(dialog.jobId());
  const auto job = carriedBy(*dialog.jobId());
  given("", "-o rotateImage-default=Rotate90");
  EXPECT_EQ(job, byLp("-d jobs -o media=5x7 -o landscape -o number-up=2 -o number-up-layout=lrtb "
                      "-o job-sheets=none,none -o sides=one-sided -o printFinish=Matte "
                      "-o pageScale=85"));
}

TEST_F(DialogJobs, OfAttachedDialogsHaveThePanelsAndLeaveTheRestToQt) {
  const auto print = [&](bool withPanels) {
    QPrinter printer;
    givenSaved(printer);
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
    EXPECT_THAT(with, Contains(Pair(key, choice)));
    with.erase(key);
  }
  auto rest = without;
  for (const char *key : {"printFinish", "pageScale", "rotateImage"}) rest.erase(key);
  EXPECT_EQ(with, rest);
}

// A number that is left for a menu of the same panel stays, and one that is refused is put to the
// person before anything is sent.
TEST_F(DialogJobs, KeepWhatIsTypedAndAskAboutWhatIsRefused) {
  given("", "");
  printer_.setPrinterName("jobs");
  dialog::QueueDialog dialog(dialog::loadModule(), printer_, {QString::fromStdString(document_)});
  show(dialog, 2);
  QApplication::setActiveWindow(&dialog);
  auto &scale = widget<QLineEdit>(dialog, "pageScaleEdit");
  const auto type = [&](const char *text) {
    scale.setFocus();
    scale.selectAll();
    QTest::keyClicks(&scale, text);
  };
  type("85");
  widget<QComboBox>(dialog, "printFinishPopUp").setFocus();
  QTest::keyClick(&widget<QComboBox>(dialog, "printFinishPopUp"), Qt::Key_Down);
  EXPECT_EQ(scale.text(), "85 %");
  type("3");
  dialog.findChild<QTabWidget *>()->setCurrentIndex(3);
  dialog.accept();
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialog.focusWidget(), &scale);
  EXPECT_EQ(dialog.findChild<QTabWidget *>()->currentIndex(), 2);
  dialog.accept();
  ASSERT_TRUE(dialog.jobId());
  EXPECT_THAT(carriedBy(*dialog.jobId()), Contains(Pair("pageScale", "85")));
}

}  // namespace
}  // namespace kwopde::test
