// The numbers and texts of the panels, where tests/transcripts does not show them.
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

TEST(MediaValues, ScaleIsReadFromTheTextOfTheMarkedChoice) {
  PanelOn<MediaPDE> on(kMediaOptions);
  on.ppd.mark("pageScale", "120");
  on.panel->restoreValuesAndReturnError(nullptr);
  EXPECT_EQ(on.panel->pageScaleValue, 120);
  on.ppd.unmark("pageScale");
  on.panel->restoreValuesAndReturnError(nullptr);
  EXPECT_EQ(on.panel->pageScaleValue, 120);  // kept
  PanelOn<MediaPDE> word(kMediaOptions + number("pageScale", "100", "Full"));
  EXPECT_EQ(word.panel->pageScaleValue, 100);
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
  } rows[] = {{"0x1.2p0", "imageGamma=1.125000", 1.125},  // not cut to hundredths
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

// The field is the value of record when the panel is left; saving alone reads no control.
TEST(ColorValues, FieldsAreReadOnLeavingAndSavingReadsNone) {
  PanelOn<ColorPDE> on(kColorOptions);
  on.shown();
  on.widget<QLineEdit>("brightnessLabel").setText("12");
  on.panel->saveValuesAndReturnError(nullptr);
  EXPECT_THAT(on.host->requests, Contains("imageBrightness=8"));
  on.panel->shouldHide();
  EXPECT_THAT(on.host->requests, Contains("imageBrightness=12"));
}

TEST(ColorValues, PickingAModeBringsTheFieldsBackInLine) {
  PanelOn<ColorPDE> on(kColorOptions);
  on.shown();
  on.widget<QLineEdit>("redLabel").setText("55");
  on.user.pick(*on.panel->colorModePopUp.get(), 1);
  EXPECT_EQ(on.widget<QLineEdit>("redLabel").text(), QString("0"));
  EXPECT_EQ(on.ppd.marked("colorMode"), "Sepia");
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
  expectSameReach<SharpenPDE>(option("sharpnessEnabled", "Sharpen", "Off", {{"Off", "Off"}}));
}

}  // namespace
}  // namespace kwopde::test
