// The panels' controls as people and hosts work them.
#include "platform/PanelInspector.h"
#include "tests/cocoa/CocoaFixture.h"

namespace kwopde::test {

class ControlsTest : public CocoaTest {
protected:
  ~ControlsTest() override { [panel_ release]; }

  /// Shows a panel of the class, as a dialog opens it.
  void show(NSString *className) {
    panel_ = newPanel<KWOPDEPanel>(className);
    [panel_ restoreValuesAndReturnError:NULL];
    [panel_ panelView];
    [panel_ willShow];
  }

  template <class Control>
  Control *control(NSString *outlet) const {
    const auto *inspector = static_cast<const PanelInspector *>([panel_ inspector]);
    const View *view = inspector->control([outlet UTF8String]);
    return view ? static_cast<Control *>(view->nativeView()) : nil;
  }

  /// What a field shows once its slider was dragged to `value`.
  std::string shownAfterDrag(NSString *slider, double value, NSString *field) const {
    [control<NSSlider>(slider) setDoubleValue:value];
    NSSlider *dragged = control<NSSlider>(slider);
    [dragged sendAction:[dragged action] to:[dragged target]];
    return [[control<NSTextField>(field) stringValue] UTF8String];
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

}  // namespace kwopde::test
