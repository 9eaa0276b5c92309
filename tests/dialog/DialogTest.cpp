// The whole dialog: the module as a program loads it, its panels in tabs, keys and Print.
#include <fmt/format.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include "dialog/ModuleLoader.h"
#include "dialog/PpdDialog.h"
#include "host/Error.h"
#include "host/JobOptions.h"
#include "host/TraceTo.h"
#include "tests/support/PanelFixture.h"

namespace kwopde::test {
namespace {

using host::OptionChoice;
using testing::Contains;
using testing::ElementsAre;

class Requests final : public host::SessionObserver {
public:
  void requestWasAnswered(const std::string *key, const std::string *choice,
                          const host::Answer &) override {
    all.push_back(*key + "=" + *choice);
  }
  void willAnnounce(const OptionChoice &) override {}
  std::vector<std::string> all;
};

class Dialog : public testing::Test {
protected:
  void open(const std::string &sample) {
    session_ = std::make_shared<host::PpdSession>(host::PpdFile::open(samplePath(sample)));
    session_->addObserver(&requests_);
    dialog_.emplace(module_, session_, "photo.png");
    tabs_ = dialog_->findChild<QTabWidget *>();
    dialog_->show();
    QApplication::setActiveWindow(&*dialog_);
    QApplication::processEvents();
  }
  template <class Widget>
  Widget &widget(const char *name) {
    auto *found = dialog_->findChild<Widget *>(name);
    if (!found) throw std::runtime_error(name);
    return *found;
  }

  std::vector<std::string> changed() {
    std::vector<std::string> lines;
    host::JobOptions job;
    job.carry(*session_);
    for (const auto &[key, choice] : job.all()) lines.push_back(fmt::format("{}={}", key, choice));
    return lines;
  }

  TraceRecorder trace_;
  PlugInModule &module_ = dialog::loadModule();
  const host::TraceTo tracing_{module_, &trace_};
  Requests requests_;
  std::shared_ptr<host::PpdSession> session_;
  std::optional<dialog::PpdDialog> dialog_;
  QTabWidget *tabs_ = nullptr;
};

TEST_F(Dialog, HasATabForEveryPanelAndTheSummary) {
  open("kwo-7032.ppd");
  QStringList titles;
  for (int i = 0; i < tabs_->count(); ++i) titles.append(tabs_->tabText(i));
  EXPECT_EQ(titles, QStringList({"Media", "Color", "Sharpen", "Summary"}));
}

TEST_F(Dialog, LoadsAPanelWhenItsTabIsFirstSeenAndTellsItOfShowingAndLeaving) {
  open("kwo-1200.ppd");
  EXPECT_EQ(dialog_->findChild<QSlider *>("gammaSlider"), nullptr);
  trace_.take();
  tabs_->setCurrentIndex(1);
  const auto lines = trace_.takeMessages();
  EXPECT_THAT(lines, Contains("BEGIN shouldHide:"));
  EXPECT_THAT(lines, Contains("BEGIN willShow:"));
  EXPECT_NE(dialog_->findChild<QSlider *>("gammaSlider"), nullptr);
  dialog_->close();
  EXPECT_THAT(trace_.takeMessages(), testing::Not(Contains("BEGIN shouldHide:")));
}

TEST_F(Dialog, TabKeyVisitsTheControlsInTheirOrder) {
  open("kwo-1200.ppd");
  tabs_->tabBar()->setFocus();
  QStringList visited;
  for (int i = 0; i < 6; ++i) {
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Tab);
    visited.append(dialog_->focusWidget()->objectName());
  }
  EXPECT_EQ(visited.mid(0, 5),
            QStringList({"printQualityPopUp", "printFinishPopUp", "rotateImagePopUp",
                         "mirrorImagePopUp", "pageScaleEdit"}));
}

// One user works every panel; every request reaches the host, in order, and Print settles all.
TEST_F(Dialog, CarriesEverySettingToTheHost) {
  open("kwo-7032.ppd");
  QTest::keyClick(&widget<QComboBox>("printQualityPopUp"), Qt::Key_Down);
  widget<QLineEdit>("pageScaleEdit").selectAll();
  QTest::keyClicks(&widget<QLineEdit>("pageScaleEdit"), "85");
  EXPECT_THAT(std::exchange(requests_.all, {}), ElementsAre("printQuality=Fine"));

  QTest::keyClick(tabs_->tabBar(), Qt::Key_Right);
  EXPECT_THAT(std::exchange(requests_.all, {}), ElementsAre("pageScale=85"));
  QTest::keyClick(&widget<QComboBox>("colorModePopUp"), Qt::Key_Down);
  QTest::keyClick(&widget<QSlider>("brightnessSlider"), Qt::Key_Right);
  widget<QSlider>("gammaSlider").setSliderPosition(1789);
  widget<QLineEdit>("redLabel").setText("-7");
  EXPECT_THAT(std::exchange(requests_.all, {}), ElementsAre("colorMode=Vivid"));

  tabs_->setCurrentIndex(2);
  requests_.all.clear();
  widget<QLineEdit>("amountLabel").setText("20");
  QTest::keyClick(&*dialog_, Qt::Key_Return);
  EXPECT_EQ(dialog_->result(), QDialog::Accepted);
  const std::vector<std::string> media{"pageScale=85"};
  const std::vector<std::string> color{
      "imageBrightness=1", "imageContrast=0", "imageSaturation=0", "imageGamma=1.780000",
      "colorRed=-7",       "colorGreen=0",    "colorBlue=0"};
  const std::vector<std::string> sharpen{"sharpnessAmount=20", "sharpnessRadius=1",
                                         "sharpnessThreshold=0"};
  std::vector<std::string> expected;
  for (const auto *panel : {&media, &color, &sharpen})
    expected.insert(expected.end(), panel->begin(), panel->end());
  EXPECT_EQ(requests_.all, expected);
  EXPECT_THAT(changed(), ElementsAre("printQuality=Fine", "pageScale=85", "colorMode=Vivid",
                                     "imageBrightness=1", "imageGamma=1.780000", "colorRed=-7",
                                     "sharpnessAmount=20"));
}

TEST_F(Dialog, PrintingLeavesPanelsAloneThatNobodyHasSeen) {
  open("kwo-7032.ppd");
  dialog_->accept();
  EXPECT_THAT(requests_.all, ElementsAre("pageScale=100"));
  EXPECT_TRUE(changed().empty());
}

TEST_F(Dialog, SummaryIsFreshWheneverItIsOpened) {
  open("kwo-1200.ppd");
  const auto texts = [&] {
    QStringList all;
    tabs_->setCurrentIndex(3);
    for (const QLabel *label : tabs_->currentWidget()->findChildren<QLabel *>())
      all.append(label->text());
    return all;
  };
  EXPECT_EQ(texts().mid(0, 3), QStringList({"Media", "Print Quality:", "Normal"}));
  tabs_->setCurrentIndex(0);
  widget<QLineEdit>("pageScaleEdit").setText("33");
  EXPECT_TRUE(texts().contains("33 %"));
}

TEST_F(Dialog, TellsBelowThePanelWhatTheHostChangedOrRefused) {
  open("kwo-7032.ppd");
  const auto notice = [&] { return tabs_->currentWidget()->findChild<QLabel *>("notice")->text(); };
  QTest::keyClick(&widget<QComboBox>("dustRemovalPopUp"), Qt::Key_End);
  EXPECT_EQ(notice(), QString());
  QTest::keyClick(&widget<QComboBox>("printQualityPopUp"), Qt::Key_Home);
  EXPECT_EQ(notice(),
            "Changed Dust Removal from Thorough to Off, to go with Print Quality: Draft.");
  EXPECT_EQ(widget<QComboBox>("dustRemovalPopUp").currentText(), "Off");
  tabs_->currentWidget()->findChild<QPushButton *>("undo")->click();
  EXPECT_EQ(notice(), QString());
  EXPECT_EQ(widget<QComboBox>("dustRemovalPopUp").currentText(), "Thorough");
  EXPECT_EQ(widget<QComboBox>("printQualityPopUp").currentText(), "Normal");
  QTest::keyClick(&widget<QComboBox>("printQualityPopUp"), Qt::Key_Home);
  widget<QLineEdit>("pageScaleEdit").setText("9");
  tabs_->setCurrentIndex(1);
  EXPECT_TRUE(notice().contains("Page Scale cannot be 9: this printer takes 10 to 400."));
  // What was told goes when one of its options is asked for again.
  tabs_->setCurrentIndex(0);
  QTest::keyClick(&widget<QComboBox>("printQualityPopUp"), Qt::Key_End);
  EXPECT_EQ(notice(), "Page Scale cannot be 9: this printer takes 10 to 400.");
}

TEST_F(Dialog, ShowsThePanelsOfAnyPrinter) {
  open("kwo-basic.ppd");
  EXPECT_FALSE(widget<QComboBox>("printQualityPopUp").isEnabled());
  EXPECT_TRUE(widget<QComboBox>("printFinishPopUp").isEnabled());
  EXPECT_EQ(tabs_->count(), 3);
  EXPECT_EQ(widget<QComboBox>("printQualityPopUp").placeholderText(), "Not available");
  tabs_->setCurrentIndex(1);
  EXPECT_EQ(tabs_->currentWidget()->findChild<QLabel *>("remark")->text(),
            "This printer does not adjust: Brightness, Contrast, Saturation, Gamma, Red, Green, "
            "Blue.");
  tabs_->setCurrentIndex(2);
  for (const QLabel *label : tabs_->currentWidget()->findChildren<QLabel *>())
    EXPECT_NE(label->text(), "Brightness:");

  session_ = std::make_shared<host::PpdSession>(
      host::PpdFile::open(KWOPDE_SOURCE_FOLDER "/tests/transcripts/no-panels.ppd"));
  dialog::PpdDialog none(dialog::loadModule(), session_, {});
  EXPECT_FALSE(none.findChild<QTabWidget *>()->isVisibleTo(&none));
  none.accept();
}

TEST(ModuleLoader, SaysWhichFileIsRefusedAndWhy) {
  const struct {
    std::string file;
    const char *why;
  } rows[] = {{"/nonexistent.so", "/nonexistent.so: there is no such module"},
              {KWOPDE_SOURCE_FOLDER "/README.md", "README.md: not a print-dialog extension"},
              {KWOPDE_OUTDATED_MODULE,
               "built for version 1.0 of the extension's contract, and this "
               "program has version 2"}};
  for (const auto &row : rows)
    EXPECT_THAT([&] { dialog::loadModule(QString::fromStdString(row.file)); },
                testing::ThrowsMessage<host::Error>(
                    testing::AllOf(testing::StartsWith(row.file), testing::EndsWith(row.why))));
}

}  // namespace
}  // namespace kwopde::test
