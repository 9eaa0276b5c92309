// The bundle as an AppKit dialog meets it: loaded, with a host and the sample PPD.
#pragma once

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cocoa/BundleClasses.h"
#include "platform/LogSink.h"
#include "platform/PanelInspector.h"

/// A host that shows a PPD and answers no requests.
@interface TestHost : NSObject {
@public
  ppd_file_t *ppd;                     // borrowed
  const std::function<void()> *atEnd;  // called when it is gone; borrowed, or null
}
@end

/// A view that says when it is gone.
@interface TestView : NSView {
@public
  const std::function<void()> *atEnd;  // borrowed
}
@end

/// A host that marks what it is asked for, and remembers it as "KEY=CHOICE".
@interface MarkingHost : TestHost {
@public
  NSMutableArray *requests;  // owned
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

std::string text(NSString *string);

/// Returns the panel's control at `outlet`, borrowed; nil while it is unconnected.
template <class Control>
Control *controlOf(KWOPDEPanel *panel, const char *outlet) {
  const View *view = static_cast<const PanelInspector *>([panel inspector])->control(outlet);
  return view ? static_cast<Control *>(view->nativeView()) : nil;
}

class CocoaTest : public testing::Test, public LogSink {
protected:
  CocoaTest();
  ~CocoaTest() override;

  /// Returns a new plug-in with the bundle, owned by the caller.
  KWOPDEPlugIn *newPlugIn(NSBundle *itsBundle) const;
  KWOPDEPlugIn *newPlugIn() const { return newPlugIn(bundle); }

  /// Returns a new panel of the class, owned by the caller; nil when it was refused.
  template <class P>
  P *newPanel(NSString *className, TestHost *itsHost) const {
    return [[NSClassFromString(className) alloc] initWithCallback:itsHost andBundle:bundle];
  }
  template <class P>
  P *newPanel(NSString *className) const {
    return newPanel<P>(className, host);
  }

  /// Puts a view into `view` that calls `atEnd` when it is gone.
  static void addTestView(NSView *view, const std::function<void()> &atEnd);

  void writeLine(std::string_view line) override { trace.emplace_back(line); }

  Pool pool;
  NSString *const type = @"BDB091F4-E57F-11D3-B5CC-0050E4603277";  // that yields panels
  NSBundle *const bundle;
  std::unique_ptr<ppd_file_t, void (*)(ppd_file_t *)> ppd;  // of model 7032, with every option
  TestHost *const host;
  MarkingHost *const markingHost;
  std::vector<std::string> trace;
};

}  // namespace kwopde::test
