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
    [panel_ restoreValuesAndReturnError:NULL];
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
    return [[panel_ controls] objectForKey:outlet];
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

}  // namespace
}  // namespace kwopde::test
