// What every panel class owes the host, whatever the order of calls; and, as one table, where the
// four classes differ.
#include <cstring>

#include "tests/support/PanelFixture.h"

namespace kwopde::test {
namespace {

using testing::ElementsAre;

std::string pair(const std::string &key) {
  return option(key, key, "A", {{"A", "1"}, {"B", "2"}});
}

/// A PPD with these options, each with the choices A (text 1) and B (text 2).
std::string optionsNamed(const std::vector<std::string> &keys) {
  std::string lines;
  for (const std::string &key : keys) lines += pair(key);
  return lines;
}

struct Expected {
  std::string name;
  std::shared_ptr<PanelBase> (*make)(const std::shared_ptr<HostCallback> &, Bundle *);
  std::vector<std::string> keys;                              // those of the pop-ups first
  std::vector<ppd_option_t *&(*)(PanelBase &panel)> options;  // of the keys
  std::vector<PDEChoice *&(*)(PanelBase &panel)> selections;  // of the pop-ups
  std::vector<std::string> notFound;                          // of the pop-ups
  std::vector<std::string> keyOptions;  // refused when all of these are missing
  std::string nameKey;
  std::string kind;
};

/// What has ended: options of choices, "host" and "view".
std::vector<std::string> ends;

class WatchedChoice final : public PDEChoice {
public:
  using PDEChoice::PDEChoice;
  ~WatchedChoice() override {
    const std::string option = choice()->option->keyword;
    if (ends.empty() || ends.back() != option) ends.push_back(option);
  }
};

template <class P>
class Watched final : public P {
  ChoiceMaker choiceMaker() const override {
    return [](ppd_choice_t *choice) -> std::shared_ptr<PDEChoice> {
      return std::make_shared<WatchedChoice>(choice);
    };
  }
};

template <class P>
std::shared_ptr<PanelBase> make(const std::shared_ptr<HostCallback> &host, Bundle *bundle) {
  return PanelBase::initWithCallback<Watched<P>>(host, bundle);
}

template <class P, class Value>
P panelOf(Value P::*);  // for its type only

template <auto member>
auto &memberOf(PanelBase &panel) {
  return static_cast<decltype(panelOf(member)) &>(panel).*member;
}

void PrintTo(const Expected &expected, std::ostream *out) {
  *out << expected.name;
}

const Expected kClasses[] = {
    {.name = "MediaPDE",
     .make = make<MediaPDE>,
     .keys = {"printQuality", "printFinish", "rotateImage", "mirrorImage", "pageScale"},
     .options = {&memberOf<&MediaPDE::printQualityOption>, &memberOf<&MediaPDE::printFinishOption>,
                 &memberOf<&MediaPDE::rotateImageOption>, &memberOf<&MediaPDE::mirrorImageOption>,
                 &memberOf<&MediaPDE::pageScaleOption>},
     .selections = {&memberOf<&MediaPDE::printQualitySelection>,
                    &memberOf<&MediaPDE::printFinishSelection>,
                    &memberOf<&MediaPDE::rotateImageSelection>,
                    &memberOf<&MediaPDE::mirrorImageSelection>},
     .notFound = {"LOG Print quality selection not found!", "LOG Print finish selection not found!",
                  "LOG Rotate image selection not found!", "LOG Mirror image selection not found!"},
     .keyOptions = {"printQuality", "printFinish"},
     .nameKey = "MediaPanelName",
     .kind = "org.kwopde.mediakind"},
    {.name = "Media7032PDE",
     .make = make<Media7032PDE>,
     .keys = {"printQuality", "printFinish", "matteLevel", "dustRemoval", "rotateImage",
              "mirrorImage", "pageScale"},
     .options =
         {&memberOf<&Media7032PDE::printQualityOption>, &memberOf<&Media7032PDE::printFinishOption>,
          &memberOf<&Media7032PDE::matteLevelOption>, &memberOf<&Media7032PDE::dustRemovalOption>,
          &memberOf<&Media7032PDE::rotateImageOption>, &memberOf<&Media7032PDE::mirrorImageOption>,
          &memberOf<&Media7032PDE::pageScaleOption>},
     .selections = {&memberOf<&Media7032PDE::printQualitySelection>,
                    &memberOf<&Media7032PDE::printFinishSelection>,
                    &memberOf<&Media7032PDE::matteLevelSelection>,
                    &memberOf<&Media7032PDE::dustRemovalSelection>,
                    &memberOf<&Media7032PDE::rotateImageSelection>,
                    &memberOf<&Media7032PDE::mirrorImageSelection>},
     .notFound = {"LOG Print quality selection not found!", "LOG Print finish selection not found!",
                  "LOG Matte level selection not found!", "LOG Dust removal selection not found!",
                  "LOG Rotate image selection not found!", "LOG Mirror image selection not found!"},
     .keyOptions = {"printQuality", "printFinish"},
     .nameKey = "MediaPanelName",
     .kind = "org.kwopde.media7032kind"},
    {.name = "ColorPDE",
     .make = make<ColorPDE>,
     .keys = {"colorMode", "imageBrightness", "imageContrast", "imageSaturation", "imageGamma",
              "colorRed", "colorGreen", "colorBlue"},
     .options = {&memberOf<&ColorPDE::colorModeOption>, &memberOf<&ColorPDE::brightnessOption>,
                 &memberOf<&ColorPDE::contrastOption>, &memberOf<&ColorPDE::saturationOption>,
                 &memberOf<&ColorPDE::gammaOption>, &memberOf<&ColorPDE::redOption>,
                 &memberOf<&ColorPDE::greenOption>, &memberOf<&ColorPDE::blueOption>},
     .selections = {&memberOf<&ColorPDE::colorModeSelection>},
     .notFound = {"LOG Color mode selection not found!"},
     .keyOptions = {"colorMode"},
     .nameKey = "ColorPanelName",
     .kind = "org.kwopde.colorkind"},
    {.name = "SharpenPDE",
     .make = make<SharpenPDE>,
     .keys = {"sharpnessEnabled", "sharpnessAmount", "sharpnessRadius", "sharpnessThreshold"},
     .options = {&memberOf<&SharpenPDE::enableFilterOption>, &memberOf<&SharpenPDE::amountOption>,
                 &memberOf<&SharpenPDE::radiusOption>, &memberOf<&SharpenPDE::thresholdOption>},
     .selections = {&memberOf<&SharpenPDE::enableFilterSelection>},
     .notFound = {"LOG Enable filter selection not found!"},
     .keyOptions = {"sharpnessEnabled"},
     .nameKey = "SharpenPanelName",
     .kind = "org.kwopde.sharpenkind"},
};

class PanelContract : public testing::TestWithParam<Expected> {
protected:
  void make(const std::string &options) {
    ppd_.emplace(options);
    host_ = std::make_shared<RecordingHost>(ppd_->get());
    bundle_ = std::make_shared<CountingBundle>();
    trace_.take();
    panel_ = GetParam().make(host_, bundle_.get());
  }

  InterfaceFiles files_;
  TraceRecorder trace_;
  std::optional<TestPpd> ppd_;
  std::shared_ptr<RecordingHost> host_;
  std::shared_ptr<CountingBundle> bundle_;
  std::shared_ptr<PanelBase> panel_;
};

INSTANTIATE_TEST_SUITE_P(, PanelContract, testing::ValuesIn(kClasses),
                         [](const auto &row) { return row.param.name; });

TEST_P(PanelContract, IsRefusedOnlyWithoutItsKeyOptions) {
  std::vector<std::string> others;
  for (const std::string &key : GetParam().keys)
    if (std::count(GetParam().keyOptions.begin(), GetParam().keyOptions.end(), key) == 0)
      others.push_back(key);
  make(optionsNamed(others));
  EXPECT_EQ(panel_, nullptr);
  EXPECT_EQ(host_.use_count(), 1);  // the callback is given back
  EXPECT_EQ(trace_.takeMessages().back(), "END initWithCallback:=id(nil, nil)");
  EXPECT_EQ(GetParam().make(nullptr, nullptr), nullptr);
  for (const std::string &key : GetParam().keyOptions) {
    make(pair(key));
    ASSERT_NE(panel_, nullptr) << key;
    EXPECT_THAT(host_->asked, ElementsAre("respondsToSelector", "ppdFile"));
    EXPECT_EQ(trace_.takeMessages().back(), "END initWithCallback:andBundle:=id(self)");
    panel_.reset();
    EXPECT_EQ(host_.use_count(), 1);
  }
}

TEST_P(PanelContract, EveryOptionHasMembersOfItsOwn) {
  make(optionsNamed(GetParam().keys));
  panel_->restoreValuesAndReturnError(nullptr);
  for (std::size_t i = 0; i < GetParam().keys.size(); ++i) {
    const ppd_option_t *option = ppd_->option(GetParam().keys[i].c_str());
    EXPECT_EQ(GetParam().options[i](*panel_), option) << GetParam().keys[i];
    if (i >= GetParam().selections.size()) continue;
    EXPECT_EQ(GetParam().selections[i](*panel_)->choice(), option->choices);
  }
}

TEST_P(PanelContract, WithoutMarkedAndDefaultChoiceNothingIsSelected) {
  make(optionsNamed(GetParam().keys));
  panel_->restoreValuesAndReturnError(nullptr);
  for (std::size_t i = 0; i < GetParam().selections.size(); ++i) {
    ppd_->unmark(GetParam().keys[i].c_str());
    std::strcpy(GetParam().options[i](*panel_)->defchoice, "None");
  }
  panel_->updateMarkedSelections();
  for (const auto &selection : GetParam().selections) EXPECT_EQ(selection(*panel_), nullptr);
}

// The panel lets go of its choices, then of the host, then of its view.
TEST_P(PanelContract, EndsInOrder) {
  make(optionsNamed(GetParam().keys));
  auto *view = static_cast<QWidget *>(panel_->panelView()->nativeView());
  QObject::connect(view, &QObject::destroyed, [] { ends.emplace_back("view"); });
  host_->atEnd = [] { ends.emplace_back("host"); };
  host_.reset();
  ends.clear();
  panel_.reset();
  std::vector<std::string> expected(
      GetParam().keys.begin(),
      GetParam().keys.begin() + static_cast<std::ptrdiff_t>(GetParam().selections.size()));
  expected.insert(expected.end(), {"host", "view"});
  EXPECT_EQ(ends, expected);
}

TEST_P(PanelContract, NameIsMadeOnceAndTheKeyListKept) {
  make(optionsNamed(GetParam().keys));
  for (int call = 0; call < 2; ++call) EXPECT_EQ(*panel_->panelName(), GetParam().nameKey + "1");
  EXPECT_EQ(panel_->panelKind(), GetParam().kind);
  const auto *keys = &panel_->supportedPPDOptionKeys();
  panel_.reset();
  EXPECT_EQ(*keys, GetParam().keys);
}

// Every outlet of the panel is in its interface file, with the right kind of control.
TEST_P(PanelContract, InterfaceFileConnectsEverything) {
  make(optionsNamed(GetParam().keys));
  for (const PanelControl &control : panel_->controls()) EXPECT_EQ(control.control, nullptr);
  panel_->panelView();
  for (const PanelControl &control : panel_->controls())
    EXPECT_NE(control.control, nullptr) << control.outlet;
  for (const char *none : {"changeNothing:", ""})
    EXPECT_FALSE(panel_->performAction(none, nullptr)) << none;
}

// A host that handles constraints decides: the panel shows what is marked after the request. A
// number stands beside its slider, and is asked for when the panel is left.
TEST_P(PanelContract, EveryControlActsForItsOwnOption) {
  make(optionsNamed(GetParam().keys));
  panel_->restoreValuesAndReturnError(nullptr);
  panel_->panelView();
  panel_->willShow();
  qt::QtUserInput user;
  std::vector<testing::Matcher<std::string>> saved;
  for (const PanelOption &option : panel_->options()) {
    if (auto *popUp = panel_->control<PopUpButton>(option.popUp)) {
      host_->refuses = false;
      user.pick(*popUp, 1);
      host_->refuses = true;
      user.pick(*popUp, 0);
      EXPECT_EQ(popUp->indexOfSelectedItem(), 1) << option.key;
      EXPECT_THAT(std::exchange(host_->requests, {}),
                  ElementsAre(option.key + "=B", option.key + "=A"));
      continue;
    }
    const std::string number = std::to_string(6 - saved.size());
    auto *field = panel_->control<TextField>(option.field);
    if (auto *slider = panel_->control<Slider>(option.slider))
      user.slide(*slider, std::stoi(number));
    else
      user.type(*field, number);
    EXPECT_THAT(field->stringValue(), testing::StartsWith(number)) << option.key;
    saved.push_back(testing::StartsWith(option.key + "=" + number));
  }
  panel_->shouldHide();
  EXPECT_THAT(host_->requests, testing::ElementsAreArray(saved));
}

TEST_P(PanelContract, SelectionFromElsewhereIsReportedNotFound) {
  make(optionsNamed(GetParam().keys));
  panel_->restoreValuesAndReturnError(nullptr);
  panel_->willShow();
  trace_.take();
  std::vector<std::unique_ptr<PDEChoice>> equalButForeign;
  for (const auto &selection : GetParam().selections)
    selection(*panel_) =
        equalButForeign.emplace_back(new PDEChoice(selection(*panel_)->choice())).get();
  panel_->updateUI();
  const auto lines = trace_.takeMessages();
  EXPECT_EQ(std::vector(lines.begin() + 1, lines.end() - 1), GetParam().notFound);
}

}  // namespace
}  // namespace kwopde::test
