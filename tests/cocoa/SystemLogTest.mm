// The trace as it reaches the system log; NSLog writes to standard error here.
#include <gmock/gmock-matchers.h>  // Objective-C++ of GCC 14 stumbles over gmock.h

#include <cstring>

#include "tests/cocoa/CocoaFixture.h"

namespace kwopde::test {

using SystemLogTest = CocoaTest;

TEST_F(SystemLogTest, KeepsALineWithBytesThatAreNoText) {
  std::strcpy(ppdFindAttr(ppd.get(), "cupsModelNumber", nullptr)->text, "gr\xfcn, gr\xc3\xbcn");
  KWOPDEPlugIn *plugIn = newPlugIn();
  [(id)[bundle principalClass] setTraceSink:nullptr];
  testing::internal::CaptureStderr();
  [plugIn PDEPanelsForType:type withHostInfo:host];
  EXPECT_THAT(
      testing::internal::GetCapturedStderr(),
      testing::HasSubstr("ATTR: [cupsModelNumber][][gr\xef\xbf\xbdn, gr\xc3\xbcn][7032]\n"));
  [plugIn release];
}

}  // namespace kwopde::test
