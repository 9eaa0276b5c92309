// The bundle's objects: what they retain and own, what they answer, and what the trace calls them.
#include <gmock/gmock-matchers.h>  // Objective-C++ of GCC 14 stumbles over gmock.h
#include <objc/runtime.h>

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

TEST_F(BundleClassesTest, EndWithChoicesThenHostThenNameThenView) {
  std::vector<std::string> ends;
  PDEChoice *choice;
  NSString *name;
  NSUInteger choices;
  NSUInteger names;
  const std::function<void()> hostEnds = [&] {
    EXPECT_EQ([choice retainCount], choices - 1) << "the panel's list";
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
    [panel willShow];
    choice = [[[controlOf<NSPopUpButton>(panel, "colorModePopUp") itemAtIndex:0] representedObject]
        retain];
  }
  choices = [choice retainCount];
  names = [name retainCount];
  {
    const Pool inner;
    [panel release];
  }
  EXPECT_THAT(ends, ElementsAre("host", "view"));
  EXPECT_EQ([choice retainCount], 1u);
  [choice release];
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
  EXPECT_TRUE([color saveValuesAndReturnError:nullptr]) << "a host that answers no requests";
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

// Everything that the panels answer beyond the contract.
TEST_F(BundleClassesTest, AnswerEveryOperationBySelector) {
  struct Row {
    NSString *className;
    std::vector<const char *> operations;
  };
  const std::vector<const char *> shared{"initializeUI",
                                         "updateUI",
                                         "updateMarkedSelections",
                                         "querySettingsFromUI",
                                         "querySettingsFromPPD",
                                         "saveSettingsToPPD",
                                         "queryIntFromPPD:forKey:",
                                         "queryDoubleFromPPD:forKey:",
                                         "queryNSStringFromPPD:forKey:",
                                         "saveIntToPPD:FieldKey:",
                                         "saveNSStringToPPD:FieldKey:",
                                         "indexOfMarkedOption:forKey:",
                                         "selectionForPopUp:withKey:",
                                         "setViewTitleByTag:fromOptions:"};
  const std::vector<const char *> own[] = {
      {"changePrintQualityOption:", "changePrintFinishOption:", "changeRotateImageOption:",
       "changeMirrorImageOption:"},
      {"changePrintQualityOption:", "changePrintFinishOption:", "changeMatteLevelOption:",
       "changeDustRemovalOption:", "changeRotateImageOption:", "changeMirrorImageOption:"},
      {"changeColorModeOption:", "changeBrightnessOption:", "changeContrastOption:",
       "changeSaturationOption:", "changeGammaOption:", "changeRedOption:", "changeGreenOption:",
       "changeBlueOption:", "saveDoubleToPPD:FieldKey:", "queryTextFieldFromUI:FieldUI:"},
      {"changeEnableFilterOption:", "changeAmountOption:", "changeRadiusOption:",
       "changeThresholdOption:"}};
  for (std::size_t i = 0; i < std::size(own); ++i) {
    KWOPDEPanel *panel = newPanel<KWOPDEPanel>(kPanelClasses[i]);
    for (const char *selector : shared)
      EXPECT_TRUE([panel respondsToSelector:sel_registerName(selector)]) << selector;
    for (std::size_t j = 0; j < std::size(own); ++j)
      for (const char *selector : own[j])
        EXPECT_EQ([panel respondsToSelector:sel_registerName(selector)],
                  std::find_if(own[i].begin(), own[i].end(),
                               [&](const char *name) {
                                 return std::string_view(name) == selector;
                               }) != own[i].end())
            << text(kPanelClasses[i]) << " " << selector;
    [panel release];
  }
}

TEST_F(BundleClassesTest, DoWhatTheOperationsSay) {
  ColorPDE *panel = newPanel<ColorPDE>(@"ColorPDE", markingHost);
  int number = -1;
  ppdMarkOption(ppd.get(), "imageBrightness", "20");
  [panel queryIntFromPPD:&number forKey:"imageBrightness"];
  EXPECT_EQ(number, 20);
  double real = -1;
  [panel queryDoubleFromPPD:&real forKey:"imageGamma"];
  EXPECT_EQ(real, 1);
  NSString *string = [@"before" copy];
  [panel queryNSStringFromPPD:&string forKey:"none"];
  EXPECT_EQ(text(string), "before");
  [panel queryNSStringFromPPD:&string forKey:"imageBrightness"];
  EXPECT_EQ(text(string), "20");
  NSTextField *field = [[[NSTextField alloc] init] autorelease];
  [field setStringValue:@"typed"];
  [panel queryTextFieldFromUI:&string FieldUI:field];
  EXPECT_EQ(text(string), "typed");
  [string release];
  [panel saveIntToPPD:-5 FieldKey:@"a"];
  [panel saveDoubleToPPD:2.2 FieldKey:@"b"];
  [panel saveNSStringToPPD:@"x" FieldKey:@"c"];
  EXPECT_EQ(text([markingHost->requests componentsJoinedByString:@" "]), "a=-5 b=2.200000 c=x");
  EXPECT_EQ([panel indexOfMarkedOption:ppdFindOption(ppd.get(), "colorMode") forKey:"colorMode"],
            0);
  [panel release];
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
  NSPopUpButton *popUp = controlOf<NSPopUpButton>(color, "colorModePopUp");
  trace.clear();
  [color selectionForPopUp:popUp withKey:@"colorMode"];
  EXPECT_EQ(trace.front(),
            formatted(@"BEGIN self(%@) selectionForPopUp:(%@) withKey:(colorMode)", color, popUp));
  [plugIn release];
}

// A description is part of the line's format, as it is for every other object of the core.
TEST_F(BundleClassesTest, HaveTheirDescriptionReadAsPartOfTheFormat) {
  const Class described = objc_allocateClassPair(NSClassFromString(@"SharpenPDE"), "Described", 0);
  const auto description = [](id, SEL) -> id { return @"50 %d"; };
  class_addMethod(described, @selector(description),
                  reinterpret_cast<IMP>(reinterpret_cast<void (*)()>(+description)), "@@:");
  objc_registerClassPair(described);
  KWOPDEPanel *panel = [[described alloc] initWithCallback:host andBundle:bundle];
  trace.clear();
  [panel saveIntToPPD:7 FieldKey:@"key"];
  EXPECT_EQ(trace.front(), "BEGIN self(50 key) saveIntToPPD:(7, %d)");
  [panel release];
}

}  // namespace
}  // namespace kwopde::test
