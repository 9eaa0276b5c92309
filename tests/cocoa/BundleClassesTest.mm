// The bundle's objects: what they retain and own, what they answer, and what the trace calls them.
#include <gmock/gmock.h>

#include "tests/cocoa/CocoaFixture.h"

namespace kwopde::test {
namespace {

using testing::Contains;
using testing::ElementsAre;

using BundleClassesTest = CocoaTest;

/// What the platform makes of a format.
std::string formatted(NSString *format, ...) {
  va_list arguments;
  va_start(arguments, format);
  NSString *string = [[[NSString alloc] initWithFormat:format arguments:arguments] autorelease];
  va_end(arguments);
  return text(string);
}

NSString *const kPanelClasses[] = {@"MediaPDE", @"Media7032PDE", @"ColorPDE", @"SharpenPDE"};

TEST_F(BundleClassesTest, RetainTheHostForTheirLifeAndTheBundleForGood) {
  const NSUInteger hosts = [host retainCount];
  const NSUInteger bundles = [bundle retainCount];
  KWOPDEPlugIn *plugIn;
  {
    const Pool inner;
    plugIn = newPlugIn();
    EXPECT_EQ([bundle retainCount], bundles);
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

TEST_F(BundleClassesTest, RetainTheBundleWhenRefusedToo) {
  host->ppd = nullptr;
  for (NSString *name : kPanelClasses) {
    const NSUInteger hosts = [host retainCount];
    const NSUInteger bundles = [bundle retainCount];
    EXPECT_TRUE(newPanel<KWOPDEPanel>(name) == nil);
    EXPECT_EQ([host retainCount], hosts) << text(name);
    EXPECT_EQ([bundle retainCount], bundles + 1) << text(name);
  }
}

TEST_F(BundleClassesTest, OwnWhatTheyAnswer) {
  KWOPDEPanel *panel = newPanel<KWOPDEPanel>(@"SharpenPDE");
  NSString *name;
  NSString *kind;
  NSArray *keys;
  {
    const Pool inner;
    name = [panel panelName];
    kind = [panel panelKind];
    keys = [panel supportedPPDOptionKeys];
  }
  EXPECT_EQ([panel panelName], name);
  EXPECT_EQ([panel supportedPPDOptionKeys], keys);
  EXPECT_EQ(text(name), "Sharpen");
  [panel release];
  EXPECT_EQ([keys count], 4u) << "kept when the panel is gone";
  panel = newPanel<KWOPDEPanel>(@"SharpenPDE");
  EXPECT_EQ([panel panelKind], kind) << "a constant of the class";
  EXPECT_EQ(text(kind), "org.kwopde.sharpenkind");
  [panel release];
}

TEST_F(BundleClassesTest, EndWithHostThenNameThenView) {
  std::vector<std::string> ends;
  NSString *name;
  NSUInteger names;
  const std::function<void()> hostEnds = [&] {
    EXPECT_EQ([name retainCount], names);
    ends.emplace_back("host");
  };
  const std::function<void()> viewEnds = [&] {
    EXPECT_EQ([name retainCount], names - 1);
    ends.emplace_back("view");
  };
  KWOPDEPanel *panel;
  {
    const Pool inner;
    TestHost *ownHost = [[TestHost alloc] init];
    ownHost->ppd = ppd.get();
    ownHost->atEnd = &hostEnds;
    panel = newPanel<KWOPDEPanel>(@"ColorPDE", ownHost);
    [ownHost release];
    name = [[panel panelName] retain];
    addTestView([panel panelView], viewEnds);
  }
  names = [name retainCount];
  {
    const Pool inner;
    [panel release];
  }
  EXPECT_THAT(ends, ElementsAre("host", "view"));
  [name release];
}

TEST_F(BundleClassesTest, AnswerTheContract) {
  ColorPDE *color = newPanel<ColorPDE>(@"ColorPDE");
  ASSERT_TRUE([color panelView] != nil);
  EXPECT_EQ([color panelView], [color panelView]);
  EXPECT_EQ([[color summaryInfo] count], 7u);
  [color PPDOptionKeyValueDidChange:nil ppdChoice:nil];
  [color PPDOptionKeyValueDidChange:@"imageGamma" ppdChoice:@"2.345"];
  EXPECT_EQ(text([[color summaryInfo] objectForKey:@"Gamma"]), "2.35");
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
  for (NSString *name : kPanelClasses) {
    EXPECT_TRUE([[NSClassFromString(name) alloc] initWithCallback:nil andBundle:nil] == nil);
    EXPECT_TRUE([[NSClassFromString(name) alloc] init] == nil);
  }
  EXPECT_TRUE([[NSClassFromString(@"KWOPDEPanel") alloc] initWithCallback:host
                                                                andBundle:bundle] == nil);
  [plugIn release];
}

TEST_F(BundleClassesTest, DoWithoutResources) {
  KWOPDEPlugIn *plugIn = newPlugIn([NSBundle bundleWithPath:@KWOPDE_BARE_BUNDLE]);
  KWOPDEPanel *sharpen = [[plugIn PDEPanelsForType:type withHostInfo:host] objectAtIndex:2];
  EXPECT_EQ(text([sharpen panelName]), "SharpenPanelName");
  [sharpen willShow];
  EXPECT_TRUE([sharpen shouldHide]);
  [plugIn release];
}

TEST_F(BundleClassesTest, AreNamedInTheTraceAsTheyNameThemselves) {
  KWOPDEPlugIn *plugIn = newPlugIn();
  EXPECT_THAT(trace, Contains(formatted(@"BEGIN self(%@) initWithBundle:(%@, %p)", plugIn, bundle,
                                        bundle)));
  NSArray *panels = [plugIn PDEPanelsForType:type withHostInfo:host];
  KWOPDEPanel *color = [panels objectAtIndex:1];
  EXPECT_THAT(trace, Contains(formatted(@"BEGIN self(%@) PDEPanelsForType:(%@) withHostInfo:(%@)",
                                        plugIn, type, host)));
  EXPECT_THAT(trace,
              Contains(formatted(@"    BEGIN self(%@) initWithCallback:(%@, %p) andBundle:(%@ %p)",
                                 color, host, host, bundle, bundle)));
  EXPECT_THAT(trace, Contains(formatted(@"    LOG self(%@) Creating PDE of type "
                                        @"kPrinterModuleTypeIDStr(%@) ColorPDE (%p)",
                                        plugIn, type, color)));
  NSView *view = [color panelView];
  EXPECT_EQ(trace.back(), formatted(@"END self(%@) panelView:=NSView(%@, %p)", color, view, view));
  NSDictionary *summary = [color summaryInfo];
  EXPECT_THAT(trace.back(), testing::EndsWith(formatted(@"}, %p)=", summary)));
  [plugIn release];
}

}  // namespace
}  // namespace kwopde::test
