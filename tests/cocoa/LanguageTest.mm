// The panels in the languages that they come in; a process has one for its life.
#include <gmock/gmock-matchers.h>  // Objective-C++ of GCC 14 stumbles over gmock.h

#include "tests/cocoa/CocoaFixture.h"

namespace kwopde::test {
namespace {

using testing::ElementsAre;

class LanguageTest : public CocoaTest {
protected:
  static bool isIn(NSString *language) {
    NSArray *languages = [[NSUserDefaults standardUserDefaults] stringArrayForKey:@"NSLanguages"];
    return [[languages objectAtIndex:0] isEqual:language];
  }

  /// The panel's name, then its captions from top to bottom.
  std::vector<std::string> captions(NSString *className) const {
    KWOPDEPanel *panel = [newPanel<KWOPDEPanel>(className) autorelease];
    std::vector<std::string> texts{text([panel panelName])};
    for (int tag = 1; NSTextField *caption = [[panel panelView] viewWithTag:tag]; ++tag)
      texts.push_back(text([caption stringValue]));
    return texts;
  }
};

TEST_F(LanguageTest, English) {
  if (!isIn(@"English")) GTEST_SKIP();
  EXPECT_THAT(captions(@"MediaPDE"), ElementsAre("Media", "Print quality:", "Print finish:",
                                                 "Rotate image:", "Mirror image:", "Page scale:"));
  EXPECT_THAT(captions(@"SharpenPDE"), ElementsAre("Sharpen", "Sharpen filter:", "Amount (%):",
                                                   "Radius (px):", "Threshold (levels):"));
}

TEST_F(LanguageTest, German) {
  if (!isIn(@"German")) GTEST_SKIP();
  EXPECT_THAT(captions(@"MediaPDE"), ElementsAre("Medium", "Druckqualität:", "Oberfläche:",
                                                 "Bild drehen:", "Bild spiegeln:", "Skalierung:"));
  EXPECT_THAT(captions(@"Media7032PDE"),
              ElementsAre("Medium", "Druckqualität:", "Oberfläche:", "Mattgrad:", "Entstaubung:",
                          "Bild drehen:", "Bild spiegeln:", "Skalierung:"));
  EXPECT_THAT(captions(@"ColorPDE"), ElementsAre("Farbe", "Farbmodus:", "Helligkeit:", "Kontrast:",
                                                 "Sättigung:", "Gamma:", "Rot:", "Grün:", "Blau:"));
  EXPECT_THAT(captions(@"SharpenPDE"),
              ElementsAre("Schärfe", "Scharfzeichnungsfilter:", "Stärke (%):", "Radius (px):",
                          "Schwellwert (Stufen):"));
}

TEST_F(LanguageTest, CaptionsAreFoundByTag) {
  KWOPDEPanel *panel = [newPanel<KWOPDEPanel>(@"ColorPDE") autorelease];
  NSView *view = [panel panelView];
  [panel setViewTitleByTag:1 fromOptions:ppdFindOption(ppd.get(), "printQuality")];
  EXPECT_EQ(text([[view viewWithTag:1] stringValue]), "Print Quality");
}

}  // namespace
}  // namespace kwopde::test
