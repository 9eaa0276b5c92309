// The numbers of the panels: read, typed, slid, saved and summarised.
#include <QApplication>
#include <QLabel>

#include "headless/Headless.h"
#include "tests/support/PanelFixture.h"

namespace kwopde::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Pair;

std::string number(const std::string &key, const std::string &choice, const std::string &text) {
  return option(key, key, choice, {{choice, text}});
}

const std::string kColorOptions =
    option("colorMode", "Color Mode", "Color", {{"Color", "Color"}, {"Sepia", "Sepia"}}) +
    number("imageBrightness", "7", "8") + number("imageGamma", "2.345000", "2.345");

const std::string kSharpenOptions =
    option("sharpnessEnabled", "Sharpen", "Off", {{"Off", "Off"}, {"On", "On"}}) +
    number("sharpnessAmount", "50", "50") + number("sharpnessRadius", "2", "2");

void setLine(QLineEdit &line, const char *text) {
  line.setText(QString::fromUtf8(text));
}

TEST(MediaValues, ScaleIsReadFromTheTextOfTheMarkedChoice) {
  PanelOn<MediaPDE> on(kMediaOptions);
  const struct {
    const char *choice;
    int value;
  } rows[] = {{"85", 85}, {"120", 120}};
  for (const auto &row : rows) {
    on.ppd.mark("pageScale", row.choice);
    on.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(on.panel->pageScaleValue, row.value);
  }
  on.ppd.unmark("pageScale");
  on.panel->restoreValuesAndReturnError(nullptr);
  EXPECT_EQ(on.panel->pageScaleValue, 120);  // kept
  PanelOn<MediaPDE> word(kMediaOptions + number("pageScale", "100", "Full"));
  EXPECT_EQ(word.panel->pageScaleValue, 100);
}

TEST(MediaValues, WhatIsTypedIsSavedAsItIs) {
  PanelOn<MediaPDE> on(kMediaOptions);
  auto &field = on.shown().widget<QLineEdit>("pageScaleEdit");
  EXPECT_EQ(field.text(), QString("100 %"));
  const struct {
    const char *typed;
    const char *request;
    const char *answer;
  } rows[] = {{"85", "pageScale=85", "LOG Request granted"},
              {"120 %", "pageScale=120", "LOG Request granted"},
              {"abc", "pageScale=0", "LOG Request refused"},
              {"-5", "pageScale=-5", "LOG Request refused"},
              {"99999999999", "pageScale=2147483647", "LOG Request refused"}};
  for (const auto &row : rows) {
    on.host->requests.clear();
    setLine(field, row.typed);
    on.trace.take();
    on.panel->shouldHide();
    EXPECT_THAT(on.host->requests, ElementsAre(row.request));
    EXPECT_THAT(on.trace.takeMessages(), Contains(row.answer));
  }
  EXPECT_EQ(on.panel->pageScaleValue, 2147483647);  // refused, but kept in the panel
}

TEST(MediaValues, SummaryNamesTheOptionsByTheirTitles) {
  PanelOn<MediaPDE> on(kMediaOptions);
  EXPECT_THAT(on.shown().panel->summaryInfo()->entries(),
              ElementsAre(Pair("Print Quality", "Plain"), Pair("Print Finish", "Glossy"),
                          Pair("Rotate", "No"), Pair("Mirror", "No"), Pair("Scale", "100 %")));
}

TEST(MediaValues, LaterOptionOfTheSameTitleWinsAndCutTextsAreLeftOut) {
  PanelOn<MediaPDE> on(option("printQuality", "Same", "A", {{"A", "First"}}) +
                       option("printFinish", "Same", "A", {{"A", "Second"}}) +
                       option("rotateImage", "Cut", "A", {{"A", std::string(79, 'x') + "\u00e9"}}));
  EXPECT_THAT(on.shown().panel->summaryInfo()->entries(),
              ElementsAre(Pair("Same", "Second"), Pair("Scale", "100 %")));
  EXPECT_EQ(on.widget<QComboBox>("rotateImagePopUp").itemText(0), QString());
}

TEST(MediaValues, MarkedChoiceElseDefaultElseNone) {
  PanelOn<MediaPDE> on(kMediaOptions + option("printer", "Printer", "Missing", {{"A", "A"}}));
  EXPECT_EQ(on.panel->indexOfMarkedOption(on.panel->printQualityOption, "printQuality"), 1);
  on.ppd.mark("printQuality", "Draft");
  EXPECT_EQ(on.panel->indexOfMarkedOption(on.panel->printQualityOption, "printQuality"), 0);
  on.ppd.unmark("printQuality");
  EXPECT_EQ(on.panel->indexOfMarkedOption(on.panel->printQualityOption, "printQuality"), 1);
  EXPECT_EQ(on.panel->indexOfMarkedOption(on.ppd.option("printer"), "printer"), -1);
  EXPECT_EQ(on.panel->indexOfMarkedOption(nullptr, "nothing"), -1);
}

TEST(MediaValues, TextAndTitleOperationsThatOnlyToolsCall) {
  PanelOn<MediaPDE> on(kMediaOptions);
  on.shown();
  std::optional<std::string> text = "old";
  on.panel->queryNSStringFromPPD(&text, "printQuality");
  EXPECT_EQ(text, "Plain");
  EXPECT_THAT(on.trace.takeMessages(), ElementsAre("BEGIN queryNSStringFromPPD:(printQuality)",
                                                   "END queryNSStringFromPPD:(Plain)"));
  on.panel->queryNSStringFromPPD(&text, "nothing");
  EXPECT_EQ(text, "Plain");
  on.panel->setViewTitleByTag(1, on.ppd.option("printQuality"));
  EXPECT_EQ(on.widget<QLabel>("printQualityLabel").text(), QString("Print Quality"));
  on.panel->setViewTitleByTag(99, on.ppd.option("printQuality"));
}

TEST(ColorValues, SlidersMoveTheirFieldsAndNothingElse) {
  PanelOn<ColorPDE> on(kColorOptions);
  on.shown();
  const struct {
    const char *name;
    int ColorPDE::*value;
  } rows[] = {{"brightness", &ColorPDE::brightnessValue}, {"contrast", &ColorPDE::contrastValue},
              {"saturation", &ColorPDE::saturationValue}, {"red", &ColorPDE::redValue},
              {"green", &ColorPDE::greenValue},           {"blue", &ColorPDE::blueValue}};
  int position = -50;
  for (const auto &row : rows) {
    auto &slider = on.widget<QSlider>((row.name + std::string("Slider")).c_str());
    slider.setSliderPosition(++position);
    EXPECT_EQ((*on.panel).*row.value, position) << row.name;
    EXPECT_EQ(on.widget<QLineEdit>((row.name + std::string("Label")).c_str()).text(),
              QString::number(position));
    EXPECT_EQ(slider.minimum(), -100);
    EXPECT_EQ(slider.maximum(), 100);
  }
  EXPECT_THAT(on.host->requests, testing::IsEmpty());
  EXPECT_THAT(on.trace.take(), testing::IsEmpty());
}

TEST(ColorValues, GammaIsCutWhenSlidOrTypedAndNotWhenReadOrAnnounced) {
  PanelOn<ColorPDE> on(kColorOptions);
  on.shown();
  auto &label = on.widget<QLineEdit>("gammaLabel");
  EXPECT_EQ(on.panel->gammaValue, 2.345);
  EXPECT_EQ(label.text(), QString("2.345"));
  const struct {
    double slid;
    double value;
    const char *shown;
  } rows[] = {{1.789, 1.78, "1.78"}, {1.15, 1.14, "1.14"}, {0.29, 0.28, "0.28"}, {9, 3, "3.00"}};
  for (const auto &row : rows) {
    on.user.slide(*on.panel->gammaSlider.get(), row.slid);
    EXPECT_EQ(on.panel->gammaValue, row.value);
    EXPECT_EQ(label.text(), QString(row.shown));
  }
  on.user.slide(*on.panel->gammaSlider.get(), 1.789);
  on.panel->saveValuesAndReturnError(nullptr);
  EXPECT_THAT(on.host->requests, Contains("imageGamma=1.780000"));

  const std::string key = "imageGamma";
  const std::string announced = "2.345";
  on.panel->PPDOptionKeyValueDidChange(&key, &announced);
  EXPECT_EQ(on.panel->gammaValue, 2.345);
  EXPECT_THAT(on.panel->summaryInfo()->entries(), Contains(Pair("Gamma", "2.35")));
  on.panel->updateUI();
  on.panel->shouldHide();
  EXPECT_EQ(on.panel->gammaValue, 2.34);

  setLine(label, "1.14");
  on.panel->shouldHide();
  EXPECT_EQ(on.panel->gammaValue, 1.13);
}

template <class P>
concept SavesDoubles = requires(P &panel) { panel.saveDoubleToPPD(2.2, "key"); };
static_assert(SavesDoubles<ColorPDE> && !SavesDoubles<MediaPDE> && !SavesDoubles<Media7032PDE> &&
              !SavesDoubles<SharpenPDE>);

// What the C library reads as a number may be none that a control, or a PPD, can take.
TEST(ColorValues, GammaOfThePpdIsReadAsTheCLibraryReadsIt) {
  const struct {
    const char *text;
    const char *request;
    double slider;
  } rows[] = {{"0x1.8p0", "imageGamma=1.500000", 1.5},
              {"-2e1", "imageGamma=-20.000000", 0.1},
              {"1e999", "imageGamma=inf", 3},
              {"nan", "imageGamma=nan", 0.1}};
  for (const auto &row : rows) {
    PanelOn<ColorPDE> on(option("colorMode", "Mode", "Color", {{"Color", "Color"}}) +
                         number("imageGamma", "any", row.text));
    on.shown();
    EXPECT_EQ(on.panel->gammaSlider.get()->doubleValue(), row.slider) << row.text;
    on.panel->saveValuesAndReturnError(nullptr);
    EXPECT_THAT(on.host->requests, Contains(row.request));
    EXPECT_THAT(on.trace.takeMessages(), Contains("END saveDoubleToPPD:"));
    on.panel->summaryInfo();
    on.panel->shouldHide();
  }
}

TEST(ColorValues, ValueBeyondTheSliderStandsInItsField) {
  PanelOn<ColorPDE> on(kColorOptions);
  on.shown();
  const std::string key = "imageBrightness";
  const std::string announced = "700";
  on.panel->PPDOptionKeyValueDidChange(&key, &announced);
  on.panel->updateUI();
  EXPECT_EQ(on.widget<QLineEdit>("brightnessLabel").text(), QString("700"));
  EXPECT_EQ(on.widget<QSlider>("brightnessSlider").value(), 100);
  on.panel->shouldPrint();
  EXPECT_THAT(on.host->requests, Contains("imageBrightness=700"));
}

// The field is the value of record when the panel is left; saving alone reads no control.
TEST(ColorValues, FieldsAreReadOnLeavingAndSavingReadsNone) {
  PanelOn<ColorPDE> on(kColorOptions);
  on.shown();
  setLine(on.widget<QLineEdit>("brightnessLabel"), "12");
  on.panel->saveValuesAndReturnError(nullptr);
  EXPECT_THAT(on.host->requests, Contains("imageBrightness=8"));
  on.panel->shouldHide();
  EXPECT_THAT(on.host->requests, Contains("imageBrightness=12"));
}

TEST(ColorValues, PickingAModeBringsTheFieldsBackInLine) {
  PanelOn<ColorPDE> on(kColorOptions);
  on.shown();
  setLine(on.widget<QLineEdit>("redLabel"), "55");
  on.user.pick(*on.panel->colorModePopUp.get(), 1);
  EXPECT_EQ(on.widget<QLineEdit>("redLabel").text(), QString("0"));
  EXPECT_EQ(on.ppd.marked("colorMode"), "Sepia");
}

TEST(ColorValues, SummaryHasAllNumbersWhateverThePpdHas) {
  PanelOn<ColorPDE> on(option("colorMode", "Mode", "Color", {{"Color", "Colors"}}));
  EXPECT_THAT(on.shown().panel->summaryInfo()->entries(),
              ElementsAre(Pair("Mode", "Colors"), Pair("Brightness", "0"), Pair("Contrast", "0"),
                          Pair("Saturation", "0"), Pair("Gamma", "0.00"), Pair("Red", "0"),
                          Pair("Green", "0"), Pair("Blue", "0")));
}

TEST(ColorValues, TextFieldQueryReplacesTheText) {
  PanelOn<ColorPDE> on(kColorOptions);
  on.shown();
  std::optional<std::string> text = "old";
  on.panel->queryTextFieldFromUI(&text, on.panel->gammaLabel.get());
  EXPECT_EQ(text, "2.345");
  EXPECT_THAT(on.trace.takeMessages(), ElementsAre("BEGIN queryTextFieldFromUI:(<QLineEdit: 0x1>)",
                                                   "END queryTextFieldFromUI:(2.345)"));
  on.panel->queryTextFieldFromUI(&text, nullptr);
  EXPECT_EQ(text, "");
}

TEST(SharpenValues, SlidTypedAnnouncedAndSummarised) {
  PanelOn<SharpenPDE> on(kSharpenOptions);
  on.shown();
  on.user.slide(*on.panel->amountSlider.get(), 35);
  EXPECT_EQ(on.panel->amountValue, 35);
  EXPECT_EQ(on.widget<QLineEdit>("amountLabel").text(), QString("35"));
  setLine(on.widget<QLineEdit>("amountLabel"), "20");
  on.panel->shouldHide();
  EXPECT_THAT(on.host->requests,
              ElementsAre("sharpnessAmount=20", "sharpnessRadius=2", "sharpnessThreshold=0"));
  const std::string key = "sharpnessRadius";
  const std::string choice = "3";
  on.panel->PPDOptionKeyValueDidChange(&key, &choice);
  EXPECT_EQ(on.widget<QSlider>("radiusSlider").value(), 2);
  on.panel->willShow();
  EXPECT_EQ(on.widget<QSlider>("radiusSlider").value(), 3);
  EXPECT_THAT(on.panel->summaryInfo()->entries(),
              ElementsAre(Pair("Sharpen", "Off"), Pair("Amount", "20 %"), Pair("Radius", "3"),
                          Pair("Threshold", "0")));
  const int limits[][2] = {{0, 500}, {0, 50}, {0, 255}};
  const char *sliders[] = {"amountSlider", "radiusSlider", "thresholdSlider"};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(on.widget<QSlider>(sliders[i]).minimum(), limits[i][0]);
    EXPECT_EQ(on.widget<QSlider>(sliders[i]).maximum(), limits[i][1]);
  }
}

/// Expects that the sliders of `P` reach as far without a screen as on widgets.
template <class P>
void expectSameReach(const std::string &options) {
  PanelOn<P> onWidgets(options);
  onWidgets.panel->panelView();
  const headless::Module module;
  const auto plain = PanelBase::initWithCallback<P>(onWidgets.host, onWidgets.bundle.get());
  plain->panelView();
  int sliders = 0;
  for (const PanelControl &control : onWidgets.panel->controls()) {
    const auto *slider = dynamic_cast<const Slider *>(control.control);
    if (!slider) continue;
    const auto *other = plain->template control<Slider>(control.outlet);
    ASSERT_NE(other, nullptr) << control.outlet;
    EXPECT_EQ(other->minValue(), slider->minValue()) << control.outlet;
    EXPECT_EQ(other->maxValue(), slider->maxValue()) << control.outlet;
    EXPECT_EQ(other->doubleValue(), slider->doubleValue()) << control.outlet;
    ++sliders;
  }
  EXPECT_GT(sliders, 2);
}

TEST(Headless, SlidersReachAsFarAsThoseOfTheInterfaceFiles) {
  expectSameReach<ColorPDE>(kColorOptions);
  expectSameReach<SharpenPDE>(kSharpenOptions);
}

}  // namespace
}  // namespace kwopde::test
