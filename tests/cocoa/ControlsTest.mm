// The panels' controls as people and hosts work them.
#include "tests/cocoa/CocoaFixture.h"

namespace kwopde::test {
namespace {

class ControlsTest : public CocoaTest {
protected:
  ~ControlsTest() override { drop(); }

  /// Shows a panel of the class, as a dialog opens it.
  void show(NSString *className, TestHost *itsHost) {
    panel_ = newPanel<KWOPDEPanel>(className, itsHost);
    [panel_ restoreValuesAndReturnError:nullptr];
    [panel_ panelView];
    [panel_ willShow];
  }
  void show(NSString *className) { show(className, host); }

  void drop() {
    [panel_ release];
    panel_ = nil;
  }

  template <class Control>
  Control *control(NSString *outlet) const {
    return controlOf<Control>(panel_, [outlet UTF8String]);
  }

  static BOOL work(NSControl *control) {
    return [control sendAction:[control action] to:[control target]];
  }

  /// What a field shows once its slider was dragged to `value`.
  std::string shownAfterDrag(NSString *slider, double value, NSString *field) const {
    [control<NSSlider>(slider) setDoubleValue:value];
    work(control<NSSlider>(slider));
    return text([control<NSTextField>(field) stringValue]);
  }

  KWOPDEPanel *panel_ = nil;
};

TEST_F(ControlsTest, CutASlidersValueTowardZero) {
  show(@"ColorPDE");
  EXPECT_EQ(shownAfterDrag(@"gammaSlider", 1.7896, @"gammaLabel"), "1.78");
  EXPECT_EQ(shownAfterDrag(@"gammaSlider", 1.15, @"gammaLabel"), "1.14");
  EXPECT_EQ(shownAfterDrag(@"brightnessSlider", 34.7, @"brightnessLabel"), "34");
  EXPECT_EQ(shownAfterDrag(@"brightnessSlider", -34.7, @"brightnessLabel"), "-34");
}

TEST_F(ControlsTest, GoWithTheirPanel) {
  int gone = 0;
  const std::function<void()> count = [&] { ++gone; };
  {
    const Pool inner;
    show(@"ColorPDE");
    addTestView([panel_ panelView], count);
    addTestView(control<NSSlider>(@"redSlider"), count);
    drop();
  }
  EXPECT_EQ(gone, 2);
}

TEST_F(ControlsTest, DoNothingOnceTheirPanelIsGone) {
  NSPopUpButton *popUp;
  NSSlider *slider;
  {
    const Pool inner;
    show(@"SharpenPDE", markingHost);
    popUp = [control<NSPopUpButton>(@"enableFilterPopUp") retain];
    slider = [control<NSSlider>(@"amountSlider") retain];
    [slider removeFromSuperview];
    drop();
  }
  trace.clear();
  [popUp selectItemAtIndex:1];
  EXPECT_FALSE(work(popUp));
  EXPECT_FALSE(work(slider));
  EXPECT_TRUE(trace.empty());
  EXPECT_EQ([markingHost->requests count], 0u);
  [popUp release];
  [slider release];
}

TEST_F(ControlsTest, CarryAChoiceInEveryItem) {
  show(@"MediaPDE");
  NSPopUpButton *popUp = control<NSPopUpButton>(@"printQualityPopUp");
  const ppd_option_t *option = ppdFindOption(ppd.get(), "printQuality");
  ASSERT_EQ([popUp numberOfItems], option -> num_choices);
  for (int i = 0; i < option->num_choices; ++i) {
    PDEChoice *choice = [[popUp itemAtIndex:i] representedObject];
    EXPECT_EQ([choice choice], &option -> choices[i]);
    EXPECT_EQ(text([choice userTitle]), option->choices[i].text);
    EXPECT_EQ([choice userTitle], [choice userTitle]);
    EXPECT_EQ(text([choice ppdTitle]), option->choices[i].choice);
    EXPECT_EQ([choice isDefaultChoice],
              std::string(option->defchoice) == option->choices[i].choice);
    EXPECT_EQ(text([choice description])
                  .find(text([NSString
                      stringWithFormat:@"<PDEChoice %p userTitle:", static_cast<void *>(choice)])),
              0u);
  }
  [popUp selectItemAtIndex:2];
  EXPECT_EQ([panel_ selectionForPopUp:popUp withKey:@"printQuality"],
            [[popUp itemAtIndex:2] representedObject]);
}

// The item counts, wherever the host has moved it to.
TEST_F(ControlsTest, AskForTheChoiceOfThePickedItem) {
  show(@"MediaPDE", markingHost);
  NSPopUpButton *popUp = control<NSPopUpButton>(@"printQualityPopUp");
  const auto last = [[popUp lastItem] retain];
  [[popUp menu] removeItem:last];
  [[popUp menu] insertItem:last atIndex:0];
  [popUp selectItemAtIndex:0];
  [panel_ performSelector:@selector(changePrintQualityOption:) withObject:nil];
  PDEChoice *choice = [last representedObject];
  EXPECT_EQ(text([markingHost->requests lastObject]), "printQuality=" + text([choice ppdTitle]));
  [last release];
}

}  // namespace
}  // namespace kwopde::test
