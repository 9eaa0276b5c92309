#include "tests/cocoa/CocoaFixture.h"

@implementation TestHost
- (ppd_file_t *)ppdFile {
  return ppd;
}
@end

namespace kwopde::test {

CocoaTest::CocoaTest()
    : bundle([NSBundle bundleWithPath:@KWOPDE_BUNDLE]),
      ppd(ppdOpenFile(KWOPDE_SOURCE_FOLDER "/resources/ppd/kwo-7032.ppd"), ppdClose),
      host([[TestHost alloc] init]) {
  ppdMarkDefaults(ppd.get());
  host->ppd = ppd.get();
  [bundle load];
}

KWOPDEPlugIn *CocoaTest::newPlugIn(NSBundle *itsBundle) const {
  KWOPDEPlugIn *plugIn = [[[bundle principalClass] alloc] init];
  [plugIn initWithBundle:itsBundle];
  return plugIn;
}

}  // namespace kwopde::test
