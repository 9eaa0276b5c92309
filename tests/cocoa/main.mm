// Runs the tests inside an AppKit application.
#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

int main(int argc, char **argv) {
  testing::InitGoogleTest(&argc, argv);
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  [NSApplication sharedApplication];
  const int failed = RUN_ALL_TESTS();
  [pool release];
  return failed;
}
