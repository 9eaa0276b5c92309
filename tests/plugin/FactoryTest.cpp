#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "panels/PanelBase.h"
#include "plugin/KWOPDEPlugin.h"
#include "tests/support/PanelFixture.h"

namespace kwopde::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kAllPanels = option("printQuality", "Q", "A", {{"A", "A"}}) +
                               option("colorMode", "C", "A", {{"A", "A"}}) +
                               option("sharpnessEnabled", "S", "A", {{"A", "A"}});

class Factory : public testing::Test {
protected:
  /// The classes of the panels that are made; "nil" for no list.
  std::vector<std::string> panels(const std::string *type) {
    plugIn_.initWithBundle(bundle_.get());
    trace_.take();
    const PanelList *list = plugIn_.PDEPanelsForType(type, host_);
    if (!list) return {"nil"};
    EXPECT_EQ(list->capacity(), 3u);
    std::vector<std::string> names;
    for (const auto &panel : *list) names.emplace_back(panel->className());
    return names;
  }

  std::vector<std::string> panelsOf(const std::string &options) {
    ppd_.emplace(options);
    host_ = std::make_shared<RecordingHost>(ppd_->get());
    return panels(&type_);
  }

  const std::string type_{kPrinterModuleTypeIDStr};
  TraceRecorder trace_;
  std::optional<TestPpd> ppd_;
  std::shared_ptr<CountingBundle> bundle_ = std::make_shared<CountingBundle>();
  std::shared_ptr<RecordingHost> host_;
  KWOPDEPlugIn plugIn_;
};

TEST_F(Factory, ChoosesTheMediaPanelByModelNumber) {
  const struct {
    const char *attribute;
    const char *media;
  } rows[] = {{"", "MediaPDE"},
              {"*cupsModelNumber: 1234\n", "MediaPDE"},
              {"*cupsModelNumber: 7032\n", "Media7032PDE"},
              {"*cupsModelNumber: \" 7032b\"\n", "Media7032PDE"},
              {"*cupsModelNumber: \"\"\n", "MediaPDE"},
              {"*cupsModelNumber: \"x7032\"\n", "MediaPDE"}};
  for (const auto &row : rows)
    EXPECT_THAT(panelsOf(kAllPanels + row.attribute),
                ElementsAre(row.media, "ColorPDE", "SharpenPDE"))
        << row.attribute;
}

TEST_F(Factory, LeavesRefusedPanelsOut) {
  EXPECT_THAT(panelsOf(option("colorMode", "C", "A", {{"A", "A"}})), ElementsAre("ColorPDE"));
  EXPECT_THAT(panelsOf(""), ElementsAre("nil"));
  EXPECT_EQ(host_.use_count(), 1);
  host_ = nullptr;
  EXPECT_THAT(panels(&type_), ElementsAre("nil"));
}

TEST_F(Factory, OtherTypesYieldAnEmptyListWithoutLookingAtThePpd) {
  std::string lower = type_;
  for (char &c : lower) c = static_cast<char>(std::tolower(c));
  panelsOf(kAllPanels);
  host_->asked.clear();
  for (const std::string *type :
       {static_cast<const std::string *>(&lower), static_cast<const std::string *>(nullptr)}) {
    EXPECT_THAT(panels(type), IsEmpty());
    EXPECT_EQ(trace_.take().size(), 2u);
  }
  EXPECT_THAT(host_->asked, IsEmpty());
}

TEST_F(Factory, TracesItsDecisions) {
  panelsOf(kAllPanels + "*cupsModelNumber Any/Text: \"12 %d\"\n");
  std::vector<std::string> own;
  for (const std::string &line : trace_.take())
    if (line.find("self(<KWOPDEPlugIn: 0x1>)") != line.npos) own.push_back(line);
  const std::string self = " self(<KWOPDEPlugIn: 0x1>) ";
  const std::string creating =
      "    LOG" + self + "Creating PDE of type kPrinterModuleTypeIDStr(" + type_ + ") ";
  EXPECT_THAT(own, ElementsAre("BEGIN" + self + "PDEPanelsForType:(" + type_ +
                                   ") withHostInfo:(<RecordingHost: 0x1>)",
                               "    LOG" + self + "ATTR: [cupsModelNumber][Any][Text][12 %d]",
                               creating + "MediaPDE (0x1)", creating + "ColorPDE (0x1)",
                               creating + "SharpenPDE (0x1)",
                               "END" + self + "PDEPanelsForType:withHostInfo:="));
  ppd_attr_t &attribute = *ppdFindAttr(ppd_->get(), "cupsModelNumber", nullptr);
  char *const value = std::exchange(attribute.value, nullptr);
  EXPECT_THAT(panels(&type_), ElementsAre("MediaPDE", "ColorPDE", "SharpenPDE"));
  EXPECT_THAT(trace_.takeMessages(),
              testing::Contains("LOG ATTR: [cupsModelNumber][Any][Text][NULL]"));
  attribute.value = value;
  host_ = std::make_shared<RecordingHost>(nullptr);
  EXPECT_THAT(panels(&type_), ElementsAre("nil"));
  EXPECT_THAT(trace_.takeMessages(),
              testing::IsSupersetOf({std::string("LOG PPD: nil"),
                                     "LOG Creating PDE of type kPrinterModuleTypeIDStr(" + type_ +
                                         ") MediaPDE (0x0)"}));
}

// A second list replaces the first, which is never released; dropping the plug-in releases the
// last.
TEST_F(Factory, PanelsLiveAsLongAsThePlugIn) {
  ppd_.emplace(kAllPanels);
  host_ = std::make_shared<RecordingHost>(ppd_->get());
  {
    KWOPDEPlugIn plugIn;
    plugIn.PDEPanelsForType(&type_, host_);
    EXPECT_EQ(host_.use_count(), 1 + 3);
    plugIn.PDEPanelsForType(&type_, host_);
    EXPECT_EQ(host_.use_count(), 1 + 6);
  }
  EXPECT_EQ(host_.use_count(), 1 + 3);
}

}  // namespace
}  // namespace kwopde::test
