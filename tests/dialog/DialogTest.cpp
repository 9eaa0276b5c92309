// The whole dialog: the module as a program loads it, its panels in tabs, keys and Print.
#include <fmt/format.h>

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <set>

#include "dialog/ModuleLoader.h"
#include "dialog/PpdDialog.h"
#include "host/Error.h"
#include "host/JobOptions.h"
#include "host/TraceTo.h"
#include "tests/support/Dialogs.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Walk.h"

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
  void open(const std::string &sample) { openFile(samplePath(sample)); }
  /// Opens a PPD with these options.
  void openText(const std::string &options) {
    openFile(folder_.write("test.ppd", ppdText(options)));
  }
  void openFile(const std::string &path) {
    session_ = std::make_shared<host::PpdSession>(host::PpdFile::open(path));
    session_->addObserver(&requests_);
    dialog_.emplace(module_, session_, "photo.png");
    tabs_ = dialog_->findChild<QTabWidget *>();
    dialog_->show();
    QApplication::setActiveWindow(&*dialog_);
    QApplication::processEvents();
  }
  template <class Widget>
  Widget &widget(const char *name) {
    return test::widget<Widget>(*dialog_, name);
  }

  std::vector<std::string> changed() {
    std::vector<std::string> lines;
    host::JobOptions job;
    job.carry(*session_);
    for (const auto &[key, choice] : job.all()) lines.push_back(fmt::format("{}={}", key, choice));
    return lines;
  }

  const TemporaryFolder folder_;
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
  EXPECT_EQ(tabTitles(*dialog_), QStringList({"Media", "Color", "Sharpen", "Summary"}));
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

// Somebody scrolls past the controls.
TEST_F(Dialog, WheelChangesNothingButWhereTheFocusIs) {
  open("kwo-7032.ppd");
  const auto turnOver = [](QWidget &control) {
    const QPointF at = control.rect().center();
    QWheelEvent event(at, control.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&control, &event);
  };
  auto &quality = widget<QComboBox>("printQualityPopUp");
  const auto &scale = widget<QLineEdit>("pageScaleEdit");
  auto &arrows = widget<QAbstractSpinBox>("pageScaleEditBox");
  tabs_->setFocus();
  turnOver(quality);
  turnOver(arrows);
  EXPECT_EQ(quality.currentText() + scale.text(), "Normal100 %");
  quality.setFocus();
  turnOver(quality);
  arrows.setFocus();
  turnOver(arrows);
  EXPECT_EQ(quality.currentText() + scale.text(), "Fine99 %");
  tabs_->setCurrentIndex(1);
  turnOver(widget<QSlider>("redSlider"));
  EXPECT_EQ(widget<QSlider>("redSlider").value(), 0);
}

// Numbers that the panel reads as it would read typed ones.
TEST_F(Dialog, StepsThroughTheNumbersThatThePrinterTakes) {
  open("kwo-7032.ppd");
  tabs_->setCurrentIndex(1);
  auto &gamma = widget<QLineEdit>("gammaLabel");
  EXPECT_EQ(gamma.text(), "1.00");
  const auto press = [](QLineEdit &field, std::initializer_list<Qt::Key> keys) {
    field.setFocus();
    for (const Qt::Key key : keys) QTest::keyClick(field.parentWidget(), key);
    return field.text();
  };
  EXPECT_EQ(press(gamma, {Qt::Key_Up, Qt::Key_PageUp, Qt::Key_PageUp, Qt::Key_Down}), "1.20");
  EXPECT_EQ(widget<QSlider>("gammaSlider").value(), 1200);
  QAccessibleInterface *told = QAccessible::queryAccessibleInterface(gamma.parentWidget());
  EXPECT_EQ(told->valueInterface()->currentValue(), 1.2);
  auto &red = widget<QLineEdit>("redLabel");
  red.setText("99");
  EXPECT_EQ(press(red, {Qt::Key_PageUp, Qt::Key_Up}), "100");
  tabs_->setCurrentIndex(2);
  EXPECT_THAT(requests_.all, testing::IsSupersetOf({"imageGamma=1.200000", "colorRed=100"}));
  EXPECT_EQ(press(widget<QLineEdit>("radiusLabel"), {Qt::Key_Down, Qt::Key_Down}), "0");
}

TEST_F(Dialog, SlidersReachWhatThePrinterTakesAndSaySo) {
  openText(
      option("colorMode", "Mode", "Color", {{"Color", "Color"}}) +
      option("imageBrightness", "Brightness", "0", {{"-150", "-150"}, {"0", "0"}, {"5", "5"}}) +
      option("imageGamma", "Gamma", "1", {{"1", "1"}}) +
      "*CustomimageGamma True: \"pop\"\n*ParamCustomimageGamma G/G: 1 real 0.5 4\n");
  tabs_->setCurrentIndex(0);
  const auto &brightness = widget<QSlider>("brightnessSlider");
  EXPECT_EQ(std::pair(brightness.minimum(), brightness.maximum()), std::pair(-150, 5));
  EXPECT_EQ(brightness.toolTip(), "-150 to 5; 0 changes nothing");
  auto &arrows = widget<QAbstractSpinBox>("brightnessLabelBox");
  for (const auto &[steps, number] : {std::pair(1, "5"), {1, "5"}, {-2, "-150"}}) {
    arrows.stepBy(steps);
    EXPECT_EQ(arrows.text().toStdString(), number);
  }
  auto &gamma = widget<QSlider>("gammaSlider");
  EXPECT_EQ(std::pair(gamma.minimum(), gamma.maximum()), std::pair(500, 4000));
  EXPECT_EQ(gamma.toolTip(), "0.50 to 4.00; 1.00 changes nothing");
  widget<QLineEdit>("gammaLabel").setText("5");
  dialog_->accept();
  EXPECT_EQ(tabs_->currentWidget()->findChild<QLabel *>("notice")->text(),
            "Gamma cannot be 5: this printer takes 0.5 to 4. The job would print 1.");
  gamma.setSliderPosition(2500);
  EXPECT_EQ(widget<QLineEdit>("gammaLabel").text(), "2.50");
  QTest::mouseDClick(&gamma, Qt::LeftButton, {}, gamma.rect().center());
  EXPECT_EQ(widget<QLineEdit>("gammaLabel").text(), "1.00");
}

TEST_F(Dialog, TellsWhatIsOtherThanThePrintersDefaultsAndPutsThatBack) {
  open("kwo-7032.ppd");
  const auto differences = [&] {
    const auto *label = tabs_->currentWidget()->findChild<QLabel *>("differences");
    return label->isVisible() ? label->text() : QString();
  };
  const auto isBold = [&](const char *caption) { return widget<QLabel>(caption).font().bold(); };
  EXPECT_EQ(differences(), QString());
  QTest::keyClick(&widget<QComboBox>("printQualityPopUp"), Qt::Key_Down);
  EXPECT_EQ(differences(), "One setting differs from the printer's defaults.");
  retype(widget<QLineEdit>("pageScaleEdit"), "85");  // typed, and not marked yet
  EXPECT_EQ(differences(), "2 settings differ from the printer's defaults.");
  EXPECT_TRUE(isBold("printQualityLabel") && isBold("pageScaleLabel"));
  EXPECT_FALSE(isBold("printFinishLabel"));
  tabs_->setCurrentIndex(1);
  widget<QSlider>("redSlider").setSliderPosition(7);
  EXPECT_TRUE(isBold("redCaption"));

  tabs_->setCurrentIndex(3);
  const auto labels = tabs_->currentWidget()->findChild<QScrollArea *>()->findChildren<QLabel *>();
  QStringList bold;
  for (const QLabel *label : labels)
    if (label->font().bold()) bold.append(label->text());
  EXPECT_EQ(bold.mid(0, 5), QStringList({"Other than the printer's defaults",
                                         "Print Quality:", "Fine", "Page Scale:", "85 %"}));

  tabs_->setCurrentIndex(0);
  tabs_->currentWidget()->findChild<QPushButton *>("resetPage")->click();
  EXPECT_EQ(differences(), QString());
  EXPECT_EQ(widget<QComboBox>("printQualityPopUp").currentText(), "Normal");
  EXPECT_EQ(widget<QLineEdit>("pageScaleEdit").text(), "100 %");
  EXPECT_THAT(changed(), ElementsAre("colorRed=7"));
}

TEST_F(Dialog, LongMenusLeaveTheScreenFreeAndTakeTyping) {
  std::string menu = "*OpenUI *printFinish/Finish: PickOne\n*DefaultprintFinish: c0\n";
  for (int i = 0; i < 300; ++i) menu += fmt::format("*printFinish c{0}/Choice {0}: \"\"\n", i);
  openText(menu + "*CloseUI: *printFinish\n");
  auto &finish = widget<QComboBox>("printFinishPopUp");
  finish.showPopup();
  EXPECT_LT(finish.view()->window()->height(), dialog_->screen()->geometry().height() * 2 / 3);
  QTest::keyClicks(finish.view(), "Choice 299");
  QTest::keyClick(finish.view(), Qt::Key_Return);
  EXPECT_EQ(session_->markedChoice("printFinish"), "c299");
}

TEST_F(Dialog, IsWorkedByTheKeyboardAloneAndSeenWithoutScrolling) {
  const auto check = [&] {
    open("kwo-7032.ppd");
    dialog_->resize(dialog_->sizeHint());  // as on a screen that is large enough
    expectUsable(*dialog_, 0);
    tabs_->setCurrentIndex(1);
    tabs_->tabBar()->setFocus();
    auto order = tabOrder(*dialog_);
    EXPECT_THAT(order, Contains("help"));
    order.resize(5);
    EXPECT_THAT(order, ElementsAre("qt_tabwidget_tabbar", "colorModePopUp", "brightnessSlider",
                                   "brightnessLabelBox", "contrastSlider"));
  };
  check();
  std::set<QString> titles{tabs_->tabText(3)};
  for (const QLocale::Language language : kLanguages) {
    SCOPED_TRACE(QLocale::languageToString(language).toStdString());
    dialog_.reset();
    const Speaking speaking(language);
    check();
    EXPECT_TRUE(titles.insert(tabs_->tabText(3)).second) << tabs_->tabText(3).toStdString();
  }
  dialog_.reset();
  const Speaking german(QLocale::German);
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSizeF(1.5 * usual.pointSizeF());
  QApplication::setFont(large);
  check();
  QApplication::setFont(usual);
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
  tabs_->setCurrentIndex(0);
  widget<QLineEdit>("pageScaleEdit").setText("9");
  EXPECT_TRUE(texts().contains("9 % (the job would print 33)"));
}

TEST_F(Dialog, MenusOfferNoCustomValueWithoutItsNumber) {
  openText(kMediaOptions +
           "*CustomprintQuality True: \"\"\n"
           "*ParamCustomprintQuality Level/Level: 1 int 0 9\n");
  auto &menu = widget<QComboBox>("printQualityPopUp");
  const QString custom = menu.itemText(menu.count() - 1);
  EXPECT_EQ(custom, "Custom");
  QTest::keyClick(&menu, Qt::Key_End);
  EXPECT_NE(menu.currentText(), custom);
  menu.showPopup();
  EXPECT_TRUE(menu.view()->visualRect(menu.model()->index(menu.count() - 1, 0)).isEmpty());
  menu.hidePopup();
  session_->markSaved({{"printQuality", "Custom.5"}});
  dialog_.emplace(module_, session_, "photo.png");
  dialog_->show();
  EXPECT_EQ(widget<QComboBox>("printQualityPopUp").currentText(), "5");
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

TEST_F(Dialog, SaysThatNumbersOfAFilterThatIsOffHaveNoEffect) {
  open("kwo-7032.ppd");
  tabs_->setCurrentIndex(2);
  const auto *remark = tabs_->currentWidget()->findChild<QLabel *>("remark");
  EXPECT_EQ(remark->text(), "The numbers have no effect while the filter is off.");
  QTest::keyClick(&widget<QComboBox>("enableFilterPopUp"), Qt::Key_Down);
  EXPECT_EQ(remark->text(), QString());
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
