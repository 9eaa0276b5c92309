#include "tests/cocoa/CocoaFixture.h"

@implementation TestHost
- (ppd_file_t *)ppdFile {
  return ppd;
}
- (void)dealloc {
  if (atEnd) (*atEnd)();
  [super dealloc];
}
@end

@implementation TestView
- (void)dealloc {
  (*atEnd)();
  [super dealloc];
}
@end

@implementation MarkingHost
- (id)init {
  self = [super init];
  if (self) requests = [[NSMutableArray alloc] init];
  return self;
}
- (void)dealloc {
  [requests release];
  [super dealloc];
}
- (BOOL)willChangePPDOptionKeyValue:(NSString *)key ppdChoice:(NSString *)choice {
  [requests addObject:[NSString stringWithFormat:@"%@=%@", key, choice]];
  ppdMarkOption(ppd, [key UTF8String], [choice UTF8String]);
  return YES;
}
@end

namespace kwopde::test {

std::string text(NSString *string) {
  return string ? [string UTF8String] : "(null)";
}

CocoaTest::CocoaTest()
    : bundle([NSBundle bundleWithPath:@KWOPDE_BUNDLE]),
      ppd(ppdOpenFile(KWOPDE_SOURCE_FOLDER "/resources/ppd/kwo-7032.ppd"), ppdClose),
      host([[TestHost alloc] init]),
      markingHost([[MarkingHost alloc] init]) {
  ppdMarkDefaults(ppd.get());
  host->ppd = markingHost->ppd = ppd.get();
  [(id)[bundle principalClass] setTraceSink:static_cast<LogSink *>(this)];
}

CocoaTest::~CocoaTest() {
  [(id)[bundle principalClass] setTraceSink:nullptr];
  [host release];
  [markingHost release];
}

void CocoaTest::addTestView(NSView *view, const std::function<void()> &atEnd) {
  TestView *added = [[TestView alloc] init];
  added->atEnd = &atEnd;
  [view addSubview:added];
  [added release];
}

KWOPDEPlugIn *CocoaTest::newPlugIn(NSBundle *itsBundle) const {
  KWOPDEPlugIn *plugIn = [[[bundle principalClass] alloc] init];
  [plugIn initWithBundle:itsBundle];
  return plugIn;
}

}  // namespace kwopde::test
