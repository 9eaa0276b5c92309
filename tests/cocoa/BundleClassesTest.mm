// The bundle's objects as an AppKit dialog meets them: what they retain, and what nil and a bundle
// or a host without anything do to them.
#import <AppKit/AppKit.h>

#include <cstdlib>
#include <iostream>

#include "cocoa/BundleClasses.h"

#define EXPECT(CONDITION)                                                        \
  if (!(CONDITION)) {                                                            \
    std::cerr << __FILE__ << ':' << __LINE__ << ": not so: " #CONDITION << '\n'; \
    failures++;                                                                  \
  }

namespace {

int failures = 0;
NSString *const kType = @"BDB091F4-E57F-11D3-B5CC-0050E4603277";

}  // namespace

@interface TestHost : NSObject {
@public
  ppd_file_t *ppd;
}
@end
@implementation TestHost
- (ppd_file_t *)ppdFile {
  return ppd;
}
@end

int main(int argc, char **argv) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  [NSApplication sharedApplication];
  if (argc < 4) return 2;
  NSBundle *bundle = [NSBundle bundleWithPath:[NSString stringWithUTF8String:argv[1]]];
  const Class principal = [bundle principalClass];
  EXPECT(principal);
  TestHost *host = [[TestHost alloc] init];
  host->ppd = ppdOpenFile(argv[3]);
  ppdMarkDefaults(host->ppd);

  {
    // Every panel holds the host once, and lets it go; the bundle it holds for good.
    const NSUInteger hosts = [host retainCount];
    const NSUInteger bundles = [bundle retainCount];
    NSAutoreleasePool *inner = [[NSAutoreleasePool alloc] init];
    KWOPDEPlugIn *plugIn = [[principal alloc] init];
    EXPECT([plugIn initWithBundle:bundle]);
    NSArray *panels = [plugIn PDEPanelsForType:kType withHostInfo:host];
    EXPECT([panels count] == 3);
    [inner release];
    EXPECT([host retainCount] == hosts + 3);
    EXPECT([bundle retainCount] == bundles + 3);
    KWOPDEPanel *color = [panels objectAtIndex:1];
    EXPECT([color isKindOfClass:NSClassFromString(@"ColorPDE")]);
    EXPECT([color panelView] != nil && [color panelView] == [color panelView]);
    EXPECT([[color summaryInfo] count] == 7);
    [color PPDOptionKeyValueDidChange:nil ppdChoice:nil];
    [color PPDOptionKeyValueDidChange:@"imageGamma" ppdChoice:@"2.345"];
    EXPECT([[[color summaryInfo] objectForKey:@"Gamma"] isEqual:@"2.35"]);
    // This host does not answer requests.
    EXPECT([color saveValuesAndReturnError:NULL]);
    inner = [[NSAutoreleasePool alloc] init];
    [plugIn release];
    [inner release];
    EXPECT([host retainCount] == hosts);
    EXPECT([bundle retainCount] == bundles + 3);
  }
  {
    // nil for everything, and hosts that answer nothing.
    KWOPDEPlugIn *plugIn = [[principal alloc] init];
    EXPECT([[plugIn PDEPanelsForType:nil withHostInfo:nil] count] == 0);
    EXPECT([plugIn PDEPanelsForType:nil withHostInfo:nil] != nil);
    EXPECT([plugIn PDEPanelsForType:kType withHostInfo:nil] == nil);
    EXPECT([plugIn PDEPanelsForType:kType withHostInfo:[[NSObject alloc] init]] == nil);
    EXPECT([plugIn initWithBundle:nil]);
    KWOPDEPanel *panel = [[plugIn PDEPanelsForType:kType withHostInfo:host] objectAtIndex:0];
    EXPECT([panel panelName] == nil);
    NSEnumerator *names = [[NSArray arrayWithObjects:@"MediaPDE", @"Media7032PDE", @"ColorPDE",
                                                     @"SharpenPDE", nil] objectEnumerator];
    while (NSString *name = [names nextObject]) {
      EXPECT([[NSClassFromString(name) alloc] initWithCallback:nil andBundle:nil] == nil);
      EXPECT([[NSClassFromString(name) alloc] initWithCallback:host andBundle:bundle] != nil);
    }
    [plugIn release];
  }
  {
    // A copy of the bundle without its resources has names that are their keys, and no views.
    NSBundle *bare = [NSBundle bundleWithPath:[NSString stringWithUTF8String:argv[2]]];
    KWOPDEPlugIn *plugIn = [[principal alloc] init];
    EXPECT([plugIn initWithBundle:bare]);
    KWOPDEPanel *panel = [[plugIn PDEPanelsForType:kType withHostInfo:host] objectAtIndex:2];
    EXPECT([[panel panelName] isEqual:@"SharpenPanelName"]);
    [panel willShow];
    EXPECT([panel shouldHide]);
    [plugIn release];
  }
  [pool release];
  std::cout << (failures == 0 ? "1 passed, 0 failed" : "0 passed, 1 failed") << '\n';
  return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
