// The bundle as an AppKit dialog meets it: loaded, with a host and the sample PPD.
#pragma once

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <memory>

#include "cocoa/BundleClasses.h"

/// A host that shows a PPD and answers no requests.
@interface TestHost : NSObject {
@public
  ppd_file_t *ppd;  // borrowed
}
@end

namespace kwopde::test {

/// Drains, at its end, what was autoreleased while it lived.
class Pool {
public:
  Pool() : pool_([[NSAutoreleasePool alloc] init]) {}
  Pool(const Pool &) = delete;
  Pool &operator=(const Pool &) = delete;
  ~Pool() { [pool_ release]; }

private:
  NSAutoreleasePool *pool_;
};

class CocoaTest : public testing::Test {
protected:
  CocoaTest();
  ~CocoaTest() override { [host release]; }

  /// Returns a new plug-in with the bundle, owned by the caller.
  KWOPDEPlugIn *newPlugIn(NSBundle *itsBundle) const;
  KWOPDEPlugIn *newPlugIn() const { return newPlugIn(bundle); }

  /// Returns a new panel of the class, owned by the caller; nil when it was refused.
  template <class P>
  P *newPanel(NSString *className) const {
    return [[NSClassFromString(className) alloc] initWithCallback:host andBundle:bundle];
  }

  Pool pool;
  NSString *const type = @"BDB091F4-E57F-11D3-B5CC-0050E4603277";  // that yields panels
  NSBundle *const bundle;
  std::unique_ptr<ppd_file_t, void (*)(ppd_file_t *)> ppd;  // of model 7032, with every option
  TestHost *const host;
};

}  // namespace kwopde::test
