#include <fmt/format.h>
#include <malloc.h>

#include "bench/Samples.h"
#include "bench/Work.h"
#include "choice/Utility.h"
#include "plugin/KWOPDEPlugin.h"
#include "plugin/PDELogging.h"

namespace kwopde::bench {

namespace {

long bytesInUse() {
  malloc_trim(0);
  const auto info = mallinfo2();
  return static_cast<long>(info.uordblks + info.hblkhd);
}

void print(const char *name, long value) {
  fmt::print("{} {}\n", name, value);
}

}  // namespace

void printMemory() {
  const Ppd many = ppdWithChoices(100000);
  long before = bytesInUse();
  const auto list = ArrayFromPPDOption(ppdFindOption(many.get(), "printQuality"));
  for (const auto &choice : *list) choice->userTitle(), choice->ppdTitle();
  print("perChoice", (bytesInUse() - before) / 100000);

  const auto host = std::make_shared<WillingHost>(openPpd(kSample), true);
  wholeSession(host);
  before = bytesInUse();
  {
    const auto plugIn = module().makePlugIn();
    const std::string type(kPrinterModuleTypeIDStr);
    plugIn->initWithBundle(module().bundle().get());
    for (const auto &panel : *plugIn->PDEPanelsForType(&type, host)) {
      panel->panelView();
      panel->willShow();
    }
    print("perDialog", bytesInUse() - before);
  }
  before = bytesInUse();
  for (int i = 0; i < 1000; ++i) wholeSession(host);
  print("leftByDialog", (bytesInUse() - before) / 1000);

  const KWOPDEPlugIn object;
  const std::string key = "pageScale";
  const auto trace = [&] { PDELog(&object, "saveIntToPPD:(%@, %d)", {key, 85}); };
  trace();
  before = allocations();
  trace();
  print("allocationsOfALine", allocations() - before);
}

}  // namespace kwopde::bench
