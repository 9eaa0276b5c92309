#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "plugin/KWOPDEPlugin.h"
#include "tests/support/PanelFixture.h"

namespace kwopde::test {
namespace {

using testing::Contains;
using testing::ElementsAre;

const std::string kAllPanels = option("printQuality", "Q", "A", {{"A", "A"}}) +
                               option("colorMode", "C", "A", {{"A", "A"}}) +
                               option("sharpnessEnabled", "S", "A", {{"A", "A"}});

class Factory : public testing::Test {
protected:
  /// The classes of the panels that are made; "nil" for no list.
  std::vector<std::string> panels(ppd_file_t *ppd) {
    plugIn_.initWithBundle(bundle_.get());
    trace_.take();
    const std::string type(kPrinterModuleTypeIDStr);
    const PanelList *list = plugIn_.PDEPanelsForType(&type, std::make_shared<RecordingHost>(ppd));
    if (!list) return {"nil"};
    EXPECT_EQ(list->capacity(), 3u);
    std::vector<std::string> names;
    for (const auto &panel : *list) names.emplace_back(panel->className());
    return names;
  }

  TraceRecorder trace_;
  std::shared_ptr<CountingBundle> bundle_ = std::make_shared<CountingBundle>();
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
    EXPECT_THAT(panels(TestPpd(kAllPanels + row.attribute).get()),
                ElementsAre(row.media, "ColorPDE", "SharpenPDE"))
        << row.attribute;
}

// What is in no sample PPD.
TEST_F(Factory, TracesTheModelNumber) {
  const TestPpd ppd(kAllPanels + "*cupsModelNumber Any/Text: \"12 %d\"\n");
  panels(ppd.get());
  EXPECT_THAT(trace_.takeMessages(), Contains("LOG ATTR: [cupsModelNumber][Any][Text][12 %d]"));
  ppd_attr_t &attribute = *ppdFindAttr(ppd.get(), "cupsModelNumber", nullptr);
  char *const value = std::exchange(attribute.value, nullptr);
  EXPECT_THAT(panels(ppd.get()), ElementsAre("MediaPDE", "ColorPDE", "SharpenPDE"));
  EXPECT_THAT(trace_.takeMessages(), Contains("LOG ATTR: [cupsModelNumber][Any][Text][NULL]"));
  attribute.value = value;
  EXPECT_THAT(panels(nullptr), ElementsAre("nil"));
  EXPECT_THAT(trace_.takeMessages(), Contains("LOG PPD: nil"));
}

}  // namespace
}  // namespace kwopde::test
