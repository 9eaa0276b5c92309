// The bundle's objects: what they retain, and what nil and a bundle or a host without anything do
// to them.
#include "tests/cocoa/CocoaFixture.h"

namespace kwopde::test {

using BundleClassesTest = CocoaTest;

TEST_F(BundleClassesTest, RetainTheHostForTheirLifeAndTheBundleForGood) {
  const NSUInteger hosts = [host retainCount];
  const NSUInteger bundles = [bundle retainCount];
  KWOPDEPlugIn *plugIn;
  {
    const Pool inner;
    plugIn = newPlugIn();
    ASSERT_EQ([[plugIn PDEPanelsForType:type withHostInfo:host] count], 3u);
  }
  EXPECT_EQ([host retainCount], hosts + 3);
  EXPECT_EQ([bundle retainCount], bundles + 3);
  {
    const Pool inner;
    [plugIn release];
  }
  EXPECT_EQ([host retainCount], hosts);
  EXPECT_EQ([bundle retainCount], bundles + 3);
}

TEST_F(BundleClassesTest, AnswerTheContract) {
  ColorPDE *color = newPanel<ColorPDE>(@"ColorPDE");
  ASSERT_TRUE([color panelView] != nil);
  EXPECT_EQ([color panelView], [color panelView]);
  EXPECT_EQ([[color summaryInfo] count], 7u);
  [color PPDOptionKeyValueDidChange:nil ppdChoice:nil];
  [color PPDOptionKeyValueDidChange:@"imageGamma" ppdChoice:@"2.345"];
  EXPECT_TRUE([[[color summaryInfo] objectForKey:@"Gamma"] isEqual:@"2.35"]);
  EXPECT_TRUE([color saveValuesAndReturnError:NULL]) << "a host that answers no requests";
  [color release];
}

TEST_F(BundleClassesTest, TakeNilForEverything) {
  KWOPDEPlugIn *plugIn = newPlugIn(nil);
  EXPECT_TRUE([plugIn PDEPanelsForType:nil withHostInfo:nil] != nil);
  EXPECT_EQ([[plugIn PDEPanelsForType:nil withHostInfo:nil] count], 0u);
  EXPECT_TRUE([plugIn PDEPanelsForType:type withHostInfo:nil] == nil);
  NSObject *answersNothing = [[[NSObject alloc] init] autorelease];
  EXPECT_TRUE([plugIn PDEPanelsForType:type withHostInfo:answersNothing] == nil);
  KWOPDEPanel *panel = [[plugIn PDEPanelsForType:type withHostInfo:host] objectAtIndex:0];
  EXPECT_TRUE([panel panelName] == nil) << "no bundle";
  for (NSString *name : {@"MediaPDE", @"Media7032PDE", @"ColorPDE", @"SharpenPDE"})
    EXPECT_TRUE([[NSClassFromString(name) alloc] initWithCallback:nil andBundle:nil] == nil)
        << [name UTF8String];
  [plugIn release];
}

TEST_F(BundleClassesTest, DoWithoutResources) {
  KWOPDEPlugIn *plugIn = newPlugIn([NSBundle bundleWithPath:@KWOPDE_BARE_BUNDLE]);
  KWOPDEPanel *sharpen = [[plugIn PDEPanelsForType:type withHostInfo:host] objectAtIndex:2];
  EXPECT_TRUE([[sharpen panelName] isEqual:@"SharpenPanelName"]);
  [sharpen willShow];
  EXPECT_TRUE([sharpen shouldHide]);
  [plugIn release];
}

}  // namespace kwopde::test
