// What every panel class owes the host, whatever the order of calls; and, as one table, where the
// four classes differ.
#include "platform/PlugIn.h"
#include "plugin/KWOPDEPlugin.h"
#include "tests/support/PanelFixture.h"

namespace kwopde::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

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
  PDEChoice *&(*selection)(PanelBase &panel);  // of its first option
  std::vector<std::string> keys;
  std::vector<std::string> keyOptions;  // refused when all of these are missing
  std::vector<std::string> saved;       // what a fresh panel saves
  std::string panelViewEntry;
  std::string nameKey;
  std::string kind;
  std::vector<std::string> hiding;  // from the entry of shouldHide to the first save
  std::string updateUIEntry;
  std::string noMarkedChoice;  // for the first number
  std::vector<std::string> notSupported;
  std::vector<std::string> disabling;    // with the key options alone
  std::vector<std::string> noSelection;  // in the summary of a fresh panel
  bool tracesRequest;
};

template <class P>
std::shared_ptr<PanelBase> make(const std::shared_ptr<HostCallback> &host, Bundle *bundle) {
  return PanelBase::initWithCallback<P>(host, bundle);
}

template <class P>
P panelOf(PDEChoice *P::*);  // for its type only

template <auto member>
PDEChoice *&selectionOf(PanelBase &panel) {
  return static_cast<decltype(panelOf(member)) &>(panel).*member;
}

void PrintTo(const Expected &expected, std::ostream *out) {
  *out << expected.name;
}

const Expected kClasses[] = {
    {.name = "MediaPDE",
     .make = make<MediaPDE>,
     .selection = &selectionOf<&MediaPDE::printQualitySelection>,
     .keys = {"printQuality", "printFinish", "rotateImage", "mirrorImage", "pageScale"},
     .keyOptions = {"printQuality", "printFinish"},
     .saved = {"pageScale=100"},
     .panelViewEntry = "BEGIN panelView:",
     .nameKey = "MediaPanelName",
     .kind = "org.kwopde.mediakind",
     .hiding = {"BEGIN shouldHide:", "LOG ...saving settings.", "BEGIN querySettingsFromUI:",
                "END querySettingsFromUI: [0]", "BEGIN saveSettingsToPPD:"},
     .updateUIEntry = "BEGIN updateUI:[0]",
     .noMarkedChoice = "LOG ppdFindMarkedChoice:nil",
     .notSupported = {"LOG Rotate image option not supported!",
                      "LOG Mirror image option not supported!",
                      "LOG Page scale option not supported!"},
     .disabling = {"LOG disabling rotate image", "LOG disabling mirror image",
                   "LOG disabling page scale"},
     .noSelection = {"LOG printQualitySelection=nil", "LOG printFinishSelection=nil",
                     "LOG rotateImageSelection=nil", "LOG mirrorImageSelection=nil"},
     .tracesRequest = true},
    {.name = "Media7032PDE",
     .make = make<Media7032PDE>,
     .selection = &selectionOf<&Media7032PDE::printQualitySelection>,
     .keys = {"printQuality", "printFinish", "matteLevel", "dustRemoval", "rotateImage",
              "mirrorImage", "pageScale"},
     .keyOptions = {"printQuality", "printFinish"},
     .saved = {"pageScale=100"},
     .panelViewEntry = "BEGIN panelView:",
     .nameKey = "MediaPanelName",
     .kind = "org.kwopde.media7032kind",
     .hiding = {"BEGIN shouldHide:", "BEGIN querySettingsFromUI:", "END querySettingsFromUI:",
                "BEGIN saveSettingsToPPD:"},
     .updateUIEntry = "BEGIN updateUI:",
     .noMarkedChoice = "LOG currentChoice:nil",
     .notSupported = {"LOG Matte level option not supported!",
                      "LOG Dust removal option not supported!",
                      "LOG Rotate image option not supported!",
                      "LOG Mirror image option not supported!",
                      "LOG Page scale option not supported!"},
     .disabling = {"LOG disabling matte level", "LOG disabling dust removal",
                   "LOG disabling rotate image", "LOG disabling mirror image"},
     .noSelection = {},
     .tracesRequest = true},
    {.name = "ColorPDE",
     .make = make<ColorPDE>,
     .selection = &selectionOf<&ColorPDE::colorModeSelection>,
     .keys = {"colorMode", "imageBrightness", "imageContrast", "imageSaturation", "imageGamma",
              "colorRed", "colorGreen", "colorBlue"},
     .keyOptions = {"colorMode"},
     .saved = {"imageBrightness=0", "imageContrast=0", "imageSaturation=0", "imageGamma=0.000000",
               "colorRed=0", "colorGreen=0", "colorBlue=0"},
     .panelViewEntry = "BEGIN panelView:(ColorPDE)",
     .nameKey = "ColorPanelName",
     .kind = "org.kwopde.colorkind",
     .hiding = {"BEGIN shouldHide:", "BEGIN querySettingsFromUI:", "END querySettingsFromUI:",
                "BEGIN saveSettingsToPPD:"},
     .updateUIEntry = "BEGIN updateUI:",
     .noMarkedChoice = "LOG ppdFindMarkedChoice:nil",
     .notSupported = {"LOG Brightness option not supported!", "LOG Contrast option not supported!",
                      "LOG Saturation option not supported!", "LOG Gamma option not supported!",
                      "LOG Red option not supported!", "LOG Green option not supported!",
                      "LOG Blue option not supported!"},
     .disabling = {},
     .noSelection = {},
     .tracesRequest = false},
    {.name = "SharpenPDE",
     .make = make<SharpenPDE>,
     .selection = &selectionOf<&SharpenPDE::enableFilterSelection>,
     .keys = {"sharpnessEnabled", "sharpnessAmount", "sharpnessRadius", "sharpnessThreshold"},
     .keyOptions = {"sharpnessEnabled"},
     .saved = {"sharpnessAmount=0", "sharpnessRadius=0", "sharpnessThreshold=0"},
     .panelViewEntry = "BEGIN panelView:(SharpenPDE)",
     .nameKey = "SharpenPanelName",
     .kind = "org.kwopde.sharpenkind",
     .hiding = {"BEGIN shouldHide:", "BEGIN querySettingsFromUI:", "END querySettingsFromUI:",
                "BEGIN saveSettingsToPPD:"},
     .updateUIEntry = "BEGIN updateUI:",
     .noMarkedChoice = "LOG currentChoice:nil",
     .notSupported = {"LOG Amount option not supported!", "LOG Radius option not supported!",
                      "LOG Threshold option not supported!"},
     .disabling = {},
     .noSelection = {},
     .tracesRequest = false},
};

class PanelContract : public testing::TestWithParam<Expected> {
protected:
  void make(const std::string &options, bool handlesConstraints = true) {
    ppd_.emplace(options);
    host_ = std::make_shared<RecordingHost>(ppd_->get());
    host_->handlesConstraints = handlesConstraints;
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
  for (const std::string &key : GetParam().keyOptions) {
    make(pair(key));
    ASSERT_NE(panel_, nullptr) << key;
    EXPECT_EQ(host_->ppdFileCalls, 1);
    EXPECT_EQ(trace_.takeMessages().back(), "END initWithCallback:andBundle:=id(self)");
    panel_.reset();
    EXPECT_EQ(host_.use_count(), 1);
  }
}

TEST_P(PanelContract, BundleAndKeyListAreKept) {
  make(optionsNamed(GetParam().keys));
  EXPECT_EQ(bundle_.use_count(), 2);
  const auto *keys = &panel_->supportedPPDOptionKeys();
  panel_.reset();
  EXPECT_EQ(bundle_.use_count(), 2);
  EXPECT_EQ(*keys, GetParam().keys);
}

TEST_P(PanelContract, KeyListIsMadeOnceAndTracedEveryTime) {
  make(optionsNamed(GetParam().keyOptions));
  trace_.take();
  std::vector<std::string> expected{"BEGIN supportedPPDOptionKeys:"};
  const auto options = [&] {
    for (const std::string &key : GetParam().keyOptions) expected.push_back("LOG Option: " + key);
    expected.emplace_back("END supportedPPDOptionKeys:=NSArray()");
  };
  expected.insert(expected.end(), GetParam().notSupported.begin(), GetParam().notSupported.end());
  options();
  expected.emplace_back("BEGIN supportedPPDOptionKeys:");
  options();
  EXPECT_EQ(&panel_->supportedPPDOptionKeys(), &panel_->supportedPPDOptionKeys());
  EXPECT_EQ(trace_.takeMessages(), expected);
}

TEST_P(PanelContract, ViewAndNameAreMadeOnce) {
  make(optionsNamed(GetParam().keys));
  trace_.take();
  View *const view = panel_->panelView();
  ASSERT_NE(view, nullptr);
  EXPECT_EQ(panel_->panelView(), view);
  EXPECT_THAT(trace_.takeMessages(),
              ElementsAre(GetParam().panelViewEntry, "END panelView:=NSView(<QWidget: 0x1>, 0x1)",
                          GetParam().panelViewEntry, "END panelView:=NSView(<QWidget: 0x1>, 0x1)"));
  EXPECT_EQ(*panel_->panelName(), GetParam().nameKey + "1");
  EXPECT_EQ(*panel_->panelName(), GetParam().nameKey + "1");
  EXPECT_EQ(panel_->panelKind(), GetParam().kind);
  EXPECT_EQ(trace_.takeMessages().back(), "END panelKind:=NSString(" + GetParam().kind + ")");
}

// Every outlet of the panel is in its interface file, with the right kind of control, and every
// control that has an action sends one that the panel knows.
TEST_P(PanelContract, InterfaceFileConnectsEverything) {
  make(optionsNamed(GetParam().keys));
  for (const PanelControl &control : panel_->controls()) EXPECT_EQ(control.control, nullptr);
  auto *view = static_cast<QWidget *>(panel_->panelView()->nativeView());
  for (const PanelControl &control : panel_->controls())
    EXPECT_NE(control.control, nullptr) << control.outlet;
  int actions = 0;
  for (QWidget *child : view->findChildren<QWidget *>()) {
    const std::string action = child->property("action").toString().toStdString();
    if (action.empty()) continue;
    ++actions;
    EXPECT_TRUE(panel_->performAction(action, nullptr)) << action;
  }
  const bool isMedia = GetParam().nameKey == "MediaPanelName";
  EXPECT_EQ(actions, static_cast<int>(GetParam().keys.size()) - (isMedia ? 1 : 0));
  EXPECT_FALSE(panel_->performAction("changeNothing:", nullptr));
}

TEST_P(PanelContract, BeforeItIsShownItTouchesNoControlAndSavesOnlyOnDemand) {
  make(optionsNamed(GetParam().keys));
  for (ppd_option_t *o = ppdFirstOption(ppd_->get()); o; o = ppdNextOption(ppd_->get()))
    ppd_->unmark(o->keyword);
  trace_.take();
  EXPECT_TRUE(panel_->shouldHide());
  EXPECT_TRUE(panel_->shouldPrint());
  EXPECT_TRUE(panel_->shouldShowHelp());
  EXPECT_THAT(trace_.takeMessages(),
              ElementsAre("BEGIN shouldHide:", "END shouldHide:=BOOL(YES)",
                          "BEGIN shouldPrint:", "END shouldPrint:=BOOL(YES)"));
  EXPECT_THAT(host_->requests, IsEmpty());
  EXPECT_TRUE(panel_->saveValuesAndReturnError(nullptr));
  EXPECT_EQ(host_->requests, GetParam().saved);
  EXPECT_THAT(trace_.takeMessages(), Contains("LOG Request refused"));
  EXPECT_TRUE(panel_->restoreValuesAndReturnError(nullptr));
  const auto lines = trace_.takeMessages();
  EXPECT_THAT(lines, Contains(GetParam().updateUIEntry));
  EXPECT_THAT(lines, Contains(GetParam().noMarkedChoice));
}

TEST_P(PanelContract, WithoutViewMessagesToControlsDoNothing) {
  make(optionsNamed(GetParam().keys));
  panel_->willShow();
  trace_.take();
  EXPECT_TRUE(panel_->shouldHide());
  auto lines = trace_.takeMessages();
  ASSERT_GE(lines.size(), GetParam().hiding.size());
  lines.resize(GetParam().hiding.size());
  EXPECT_EQ(lines, GetParam().hiding);
  EXPECT_THAT(host_->requests, Contains(testing::EndsWith("=0")));
}

TEST_P(PanelContract, MissingOptionsAreDisabledOnceAsTheClassDoes) {
  make(optionsNamed(GetParam().keyOptions));
  panel_->panelView();
  trace_.take();
  const auto disabling = [&] {
    std::vector<std::string> lines;
    for (const std::string &line : trace_.takeMessages())
      if (line.starts_with("LOG disabling")) lines.push_back(line);
    return lines;
  };
  panel_->willShow();
  EXPECT_EQ(disabling(), GetParam().disabling);
  panel_->willShow();
  EXPECT_THAT(disabling(), IsEmpty());
  const bool isMedia = GetParam().nameKey == "MediaPanelName";
  for (const PanelControl &control : panel_->controls()) {
    const auto key = std::string(control.outlet);
    const bool isOwn = key.starts_with("printQuality") || key.starts_with("printFinish") ||
                       key == "matteLevelLabel";
    EXPECT_EQ(control.control->isEnabled(), !isMedia || isOwn) << key;
  }
}

TEST_P(PanelContract, AnnouncementsAreStoredAndShownLater) {
  make(optionsNamed(GetParam().keys));
  panel_->restoreValuesAndReturnError(nullptr);
  panel_->panelView();
  panel_->willShow();
  const auto states = [&] {
    std::vector<std::string> texts;
    for (const PanelControl &control : panel_->controls()) {
      if (auto *popUp = dynamic_cast<PopUpButton *>(control.control))
        texts.push_back(std::to_string(popUp->indexOfSelectedItem()));
      else if (auto *field = dynamic_cast<TextField *>(control.control))
        texts.push_back(field->stringValue());
    }
    return texts;
  };
  const auto before = states();
  const std::string number = "12";
  const std::string second = "B";
  for (std::size_t i = 0; i < GetParam().keys.size(); ++i) {
    const std::string &key = GetParam().keys[i];
    const auto popUps = GetParam().keys.size() - GetParam().saved.size();
    panel_->PPDOptionKeyValueDidChange(&key, i < popUps ? &second : &number);
  }
  const std::string foreign = "PageSize";
  panel_->PPDOptionKeyValueDidChange(&foreign, &number);
  panel_->PPDOptionKeyValueDidChange(nullptr, &number);
  trace_.take();
  panel_->PPDOptionKeyValueDidChange(&GetParam().keys[0], nullptr);
  EXPECT_THAT(trace_.takeMessages(), ElementsAre("BEGIN PPDOptionKeyValueDidChange:(" +
                                                     GetParam().keys[0] + ") ppdChoice:((null))",
                                                 "END PPDOptionKeyValueDidChange:ppdChoice:=void"));
  EXPECT_EQ(states(), before);
  panel_->willShow();
  const auto after = states();
  for (std::size_t i = 0; i < after.size(); ++i)
    EXPECT_EQ(after[i] == before[i], before[i] == "Matte level:") << i;

  const std::string unlisted = "Z";
  panel_->PPDOptionKeyValueDidChange(&GetParam().keys[0], &unlisted);
  trace_.take();
  panel_->updateUI();
  EXPECT_THAT(trace_.takeMessages(), Not(Contains(testing::HasSubstr("not found"))));
  EXPECT_EQ(states(), after);
}

TEST_P(PanelContract, SummaryOfFreshPanelHoldsTheNumbersOnly) {
  make(optionsNamed(GetParam().keys));
  trace_.take();
  const auto summary = panel_->summaryInfo();
  EXPECT_EQ(summary->entries().size(), GetParam().saved.size());
  auto lines = trace_.takeMessages();
  ASSERT_GE(lines.size(), 2u);
  EXPECT_TRUE(lines.back().ends_with(", 0x1)=")) << lines.back();
  EXPECT_EQ(std::vector(lines.begin() + 1, lines.end() - 1), GetParam().noSelection);
}

TEST_P(PanelContract, SelectionFromElsewhereIsReportedNotFound) {
  make(optionsNamed(GetParam().keys));
  panel_->restoreValuesAndReturnError(nullptr);
  panel_->willShow();
  trace_.take();
  const PDEChoice equalButForeign(ppdFindMarkedChoice(ppd_->get(), GetParam().keys[0].c_str()));
  GetParam().selection(*panel_) = const_cast<PDEChoice *>(&equalButForeign);
  panel_->updateUI();
  EXPECT_THAT(trace_.takeMessages(), Contains(testing::EndsWith("selection not found!")).Times(1));
}

// A host that handles constraints decides: the panel shows what is marked after the request.
TEST_P(PanelContract, PickIsRequestedAndSnapsBackWhenRefused) {
  make(optionsNamed(GetParam().keys));
  panel_->restoreValuesAndReturnError(nullptr);
  panel_->panelView();
  panel_->willShow();
  trace_.take();
  PopUpButton *popUp = nullptr;
  for (const PanelControl &control : panel_->controls())
    if (!popUp) popUp = dynamic_cast<PopUpButton *>(control.control);
  qt::QtUserInput user;
  user.pick(*popUp, 1);
  ASSERT_EQ(host_->requests.size(), 1u);
  EXPECT_TRUE(host_->requests[0].ends_with("=B"));
  EXPECT_EQ(popUp->indexOfSelectedItem(), 1);
  auto lines = trace_.takeMessages();
  EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                          [](const auto &l) { return l.starts_with("LOG Request: <PDEChoice"); }),
            GetParam().tracesRequest ? 1 : 0);
  EXPECT_THAT(lines, Contains("END selectionForPopUp:withKey:=PDEChoice((null))"));

  host_->refuses = true;
  user.pick(*popUp, 0);
  EXPECT_EQ(popUp->indexOfSelectedItem(), 1);
}

TEST_P(PanelContract, WithoutConstraintHandlingThePanelKeepsThePickItself) {
  make(optionsNamed(GetParam().keys), false);
  EXPECT_THAT(trace_.takeMessages(), Contains("LOG Constraint Handling Available: NO"));
  panel_->panelView();
  panel_->willShow();
  PopUpButton *popUp = nullptr;
  for (const PanelControl &control : panel_->controls())
    if (!popUp) popUp = dynamic_cast<PopUpButton *>(control.control);
  qt::QtUserInput().pick(*popUp, 1);
  panel_->shouldHide();
  EXPECT_EQ(popUp->indexOfSelectedItem(), 1);
  EXPECT_EQ(panel_->summaryInfo()->entries().size(), GetParam().saved.size() + 1);
  EXPECT_THAT(host_->requests, IsEmpty());
  EXPECT_THAT(trace_.takeMessages(), Not(Contains(testing::StartsWith("LOG Request "))));
}

TEST_P(PanelContract, HostThatAnswersNothingIsHarmless) {
  for (const std::shared_ptr<HostCallback> &host :
       {std::shared_ptr<HostCallback>(),
        std::shared_ptr<HostCallback>(std::make_shared<RecordingHost>(nullptr))}) {
    EXPECT_EQ(GetParam().make(host, nullptr), nullptr);
  }
  make(optionsNamed(GetParam().keys));
  const auto nameless = GetParam().make(host_, nullptr);
  EXPECT_EQ(nameless->panelName(), nullptr);
}

TEST_P(PanelContract, EveryCallLeavesTheTraceWhereItWas) {
  make(optionsNamed(GetParam().keys));
  host_->duringRequest = [this] {
    const std::string key = GetParam().keys[0];
    const std::string choice = "B";
    panel_->PPDOptionKeyValueDidChange(&key, &choice);
  };
  trace_.take();
  for (int round = 0; round < 2; ++round) {
    panel_->shouldPrint();
    panel_->summaryInfo();
    panel_->supportedPPDOptionKeys();
    panel_->panelView();
    panel_->willShow();
    panel_->shouldHide();
    panel_->restoreValuesAndReturnError(nullptr);
    panel_->saveValuesAndReturnError(nullptr);
    const std::string line = (trace_.take(), panel_->panelKind(), trace_.take().at(0));
    EXPECT_TRUE(line.starts_with("BEGIN self(")) << line;
  }
}

}  // namespace
}  // namespace kwopde::test
