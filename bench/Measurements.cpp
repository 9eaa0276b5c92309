// The measurements: each a benchmark of its own, whose name the rows of Table.cpp use.
#include "bench/Measurements.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <malloc.h>
#include <unistd.h>

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QTabWidget>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <new>

#include "attach/kwopde/attach.h"
#include "choice/Utility.h"
#include "dialog/QueueDialog.h"
#include "headless/Headless.h"
#include "host/PpdSession.h"
#include "host/Stream.h"
#include "panels/MediaPDE.h"
#include "platform/PanelInspector.h"
#include "plugin/KWOPDEPlugin.h"
#include "plugin/PDELogging.h"

namespace {

long allocations = 0;

}  // namespace

// Not inlined: GCC takes a pair of which one is for a mismatch.
[[gnu::noinline]] void *operator new(std::size_t size) {
  ++allocations;
  if (void *memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void *memory) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void *memory, std::size_t) noexcept {
  std::free(memory);
}

namespace kwopde::bench {

namespace {

const std::string kSample = KWOPDE_SOURCE_FOLDER "/resources/ppd/kwo-7032.ppd";

class NullSink final : public LogSink {
public:
  void writeLine(std::string_view line) override { benchmark::DoNotOptimize(line.data()); }
};

class LineSink final : public LogSink {
public:
  void writeLine(std::string_view line) override { lines.emplace_back(line); }
  std::vector<std::string> lines;
};

struct ClosePpd {
  void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using Ppd = std::unique_ptr<ppd_file_t, ClosePpd>;

Ppd openPpd(const std::string &path) {
  Ppd ppd(ppdOpenFile(path.c_str()));
  ppdMarkDefaults(ppd.get());
  return ppd;
}

/// A PPD whose print quality has `count` choices.
Ppd ppdWithChoices(int count) {
  std::FILE *file = std::tmpfile();
  fmt::print(file,
             "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageEncoding: UTF-8\n"
             "*OpenUI *printQuality/Quality: PickOne\n*DefaultprintQuality: C0\n");
  for (int i = 0; i < count; ++i)
    fmt::print(file, "*printQuality C{}/Choice number {}: \"\"\n", i, i);
  fmt::print(file, "*CloseUI: *printQuality\n");
  std::rewind(file);
  Ppd ppd(ppdOpen(file));
  std::fclose(file);
  ppdMarkDefaults(ppd.get());
  return ppd;
}

/// A host that grants everything, with or without marking it.
class WillingHost final : public HostCallback {
public:
  WillingHost(ppd_file_t *ppd, bool marks) : ppd_(ppd), marks_(marks) {}
  std::string_view className() const override { return "WillingHost"; }
  ppd_file_t *ppdFile() override { return ppd_; }
  bool respondsToSelector(std::string_view) const override { return true; }
  bool willChangePPDOptionKeyValue(const std::string *key, const std::string *choice) override {
    if (marks_) ppdMarkOption(ppd_, key->c_str(), choice->c_str());
    return true;
  }

private:
  ppd_file_t *ppd_;
  bool marks_;
};

headless::Module &module() {
  static headless::Module it;
  return it;
}

/// Everything that a dialog does with the panels, with 20 picks.
void wholeSession(const std::shared_ptr<HostCallback> &host) {
  const auto bundle = module().bundle();
  const auto plugIn = module().makePlugIn();
  headless::UserInput user;
  plugIn->initWithBundle(bundle.get());
  const std::string type(kPrinterModuleTypeIDStr);
  const PanelList &panels = *plugIn->PDEPanelsForType(&type, host);
  for (const auto &panel : panels) panel->restoreValuesAndReturnError(nullptr);
  int picks = 20;
  for (const auto &panel : panels) {
    panel->panelView();
    panel->willShow();
  }
  while (picks > 0)
    for (const auto &panel : panels)
      for (const PanelControl &control : controlsOf(*panel))
        if (auto *popUp = dynamic_cast<PopUpButton *>(control.control); popUp && picks > 0)
          user.pick(*popUp, picks-- % 2);
  for (const auto &panel : panels) {
    panel->summaryInfo();
    panel->shouldHide();
    panel->saveValuesAndReturnError(nullptr);
  }
}

void session(benchmark::State &state) {
  NullSink sink;
  setTraceSink(&sink);
  const Ppd ppd = openPpd(kSample);
  const auto host = std::make_shared<WillingHost>(ppd.get(), true);
  for (auto _ : state) wholeSession(host);
  setTraceSink(nullptr);
}
BENCHMARK(session);

void openingThePpd(benchmark::State &state) {
  for (auto _ : state) benchmark::DoNotOptimize(openPpd(kSample));
}
BENCHMARK(openingThePpd);

/// A traced line as the parts that it is made of.
struct LineParts {
  int indent;
  std::string marker;
  std::string className;
  std::uint64_t address;
  std::string message;
};

LineParts split(const std::string &line) {
  LineParts parts;
  parts.indent = static_cast<int>(line.find_first_not_of(' '));
  const auto self = line.find(" self(<");
  if (self == line.npos) return {parts.indent, line, "", 0, ""};
  parts.marker = line.substr(static_cast<std::size_t>(parts.indent),
                             self - static_cast<std::size_t>(parts.indent));
  const auto name = self + 7;
  const auto colon = line.find_first_of(": ", name);
  parts.className = line.substr(name, colon - name);
  parts.address = std::strtoull(line.c_str() + line.find("0x", colon), nullptr, 16);
  parts.message = line.substr(std::min(line.find(">) ", colon) + 3, line.size()));
  return parts;
}

void formattingItsLines(benchmark::State &state) {
  LineSink sink;
  setTraceSink(&sink);
  const Ppd ppd = openPpd(kSample);
  wholeSession(std::make_shared<WillingHost>(ppd.get(), true));
  setTraceSink(nullptr);
  std::vector<LineParts> lines;
  for (const std::string &line : sink.lines) lines.push_back(split(line));
  std::string text;
  for (auto _ : state)
    for (const LineParts &line : lines) {
      text.clear();
      fmt::format_to(std::back_inserter(text), "{:{}}{} self(<{}: {:#x}>) {}", "", line.indent,
                     line.marker, line.className, line.address, line.message);
      benchmark::DoNotOptimize(text.data());
    }
  state.counters["lines"] = static_cast<double>(lines.size());
}
BENCHMARK(formattingItsLines);

void pick(benchmark::State &state) {
  NullSink sink;
  setTraceSink(&sink);
  const Ppd ppd = ppdWithChoices(static_cast<int>(state.range(0)));
  const auto host = std::make_shared<WillingHost>(ppd.get(), false);
  module();
  const auto panel = PanelBase::initWithCallback<MediaPDE>(host, nullptr);
  panel->restoreValuesAndReturnError(nullptr);
  panel->panelView();
  panel->willShow();
  headless::UserInput user;
  const int last = static_cast<int>(state.range(0)) - 1;
  for (auto _ : state) user.pick(*panel->printQualityPopUp.get(), last);
  setTraceSink(nullptr);
}
BENCHMARK(pick)->Arg(10)->Arg(10000);

/// A request to the host for a number that no constraint names, beside 1,000 constraints of other
/// options; the argument is whether two of those are marked against each other.
void request(benchmark::State &state) {
  const host::Stream file(std::tmpfile());
  fmt::print(file.get(),
             "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n"
             "*LanguageEncoding: UTF-8\n*LanguageVersion: English\n"
             "*OpenUI *scale/Scale: PickOne\n*Defaultscale: 100\n");
  for (int i = 0; i <= 200; ++i) fmt::print(file.get(), "*scale {}/{}: \"\"\n", i, i);
  fmt::print(file.get(), "*CloseUI: *scale\n");
  for (const char *key : {"one", "two"}) {
    fmt::print(file.get(), "*OpenUI *{}: PickOne\n*Default{}: C0\n", key, key);
    for (int i = 0; i < 1000; ++i) fmt::print(file.get(), "*{} C{}: \"\"\n", key, i);
    fmt::print(file.get(), "*CloseUI: *{}\n", key);
  }
  for (int i = 1; i < 1000; ++i)
    fmt::print(file.get(), "*UIConstraints: *one C{} *two C{}\n", i, i);
  host::PpdSession session(host::PpdFile::read(file.get(), "constraints.ppd"));
  if (state.range(0) != 0) {
    session.mark("one", "C7");
    session.mark("two", "C7");
  }
  const std::string key = "scale";
  const std::string choice = "85";
  for (auto _ : state) session.willChangePPDOptionKeyValue(&key, &choice);
}
BENCHMARK(request)->Arg(0)->Arg(1);

/// The stand-in pop-up of the headless toolkit, filled.
void createAndFill(benchmark::State &state) {
  NullSink sink;
  setTraceSink(&sink);
  const Ppd ppd = ppdWithChoices(static_cast<int>(state.range(0)));
  const auto host = std::make_shared<WillingHost>(ppd.get(), false);
  module();
  const auto panel = PanelBase::initWithCallback<MediaPDE>(host, nullptr);
  panel->panelView();
  for (auto _ : state) {
    const auto list = ArrayFromPPDOption(panel->printQualityOption);
    InitPopUpFromArray(*panel->printQualityPopUp.get(), list.get());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
  setTraceSink(nullptr);
}
BENCHMARK(createAndFill)->Arg(10)->Arg(1000)->Arg(100000);

/// What a choice and its menu item cannot do without: an object, a text, and a reference to it.
void fillFloor(benchmark::State &state) {
  std::vector<std::string> titles;
  for (int i = 0; i < state.range(0); ++i) titles.push_back(fmt::format("Choice number {}", i));
  for (auto _ : state) {
    std::vector<std::shared_ptr<std::array<char, sizeof(PDEChoice)>>> list;
    std::vector<MenuItem> items;
    list.reserve(titles.size());
    for (const std::string &title : titles) {
      list.push_back(std::make_shared<std::array<char, sizeof(PDEChoice)>>());
      list.back()->front() = title.front();
    }
    for (std::size_t i = 0; i < titles.size(); ++i) {
      std::string kept = titles[i];
      benchmark::DoNotOptimize(list[i]->front());
      items.push_back({kept, nullptr});
    }
  }
}
BENCHMARK(fillFloor)->Arg(10)->Arg(100000);

void tracingALine(benchmark::State &state) {
  NullSink sink;
  setTraceSink(&sink);
  const KWOPDEPlugIn object;
  const std::string key = "pageScale";
  PDELog(&object, "saveIntToPPD:(%@, %d)", {key, 85});
  const long before = allocations;
  for (auto _ : state) PDELog(&object, "saveIntToPPD:(%@, %d)", {key, 85});
  state.counters["allocations"] = static_cast<double>(allocations - before);
  setTraceSink(nullptr);
}
BENCHMARK(tracingALine);

void formattingTheLine(benchmark::State &state) {
  const KWOPDEPlugIn object;
  const std::string key = "pageScale";
  std::string text;
  for (auto _ : state) {
    text.clear();
    fmt::format_to(std::back_inserter(text), "{:{}}{} self(<{}: {}>) saveIntToPPD:({}, {})", "", 0,
                   "LOG", object.className(), fmt::ptr(&object), key, 85);
    benchmark::DoNotOptimize(text.data());
  }
}
BENCHMARK(formattingTheLine);

/// Opens Qt's print dialog of the private server's default queue, up to its first picture.
void openDialog(bool withPanels, bool showsThem) {
  QPrinter printer;
  QPrintDialog dialog(&printer);
  if (withPanels) attachPanels(&dialog);
  dialog.show();
  if (showsThem) {
    dialog::expandOptions(dialog);
    auto *tabs = dialog.findChild<QTabWidget *>();
    for (int i = 2; i < 5; ++i) {
      tabs->setCurrentIndex(i);
      QApplication::processEvents();
    }
  }
  QApplication::processEvents();
}

void dialogWithout(benchmark::State &state) {
  for (auto _ : state) openDialog(false, false);
}
BENCHMARK(dialogWithout)->Unit(benchmark::kMillisecond);

void dialogWith(benchmark::State &state) {
  for (auto _ : state) openDialog(true, false);
}
BENCHMARK(dialogWith)->Unit(benchmark::kMillisecond);

void dialogWithAllPanelsShown(benchmark::State &state) {
  for (auto _ : state) openDialog(true, true);
}
BENCHMARK(dialogWithAllPanelsShown)->Unit(benchmark::kMillisecond);

long bytesInUse() {
  malloc_trim(0);
  const auto info = mallinfo2();
  return static_cast<long>(info.uordblks + info.hblkhd);
}

}  // namespace

Memory measureMemory() {
  Memory memory{};
  NullSink sink;
  setTraceSink(&sink);
  const Ppd many = ppdWithChoices(100000);
  long before = bytesInUse();
  const auto list = ArrayFromPPDOption(ppdFindOption(many.get(), "printQuality"));
  for (const auto &choice : *list) choice->userTitle(), choice->ppdTitle();
  memory.perChoice = (bytesInUse() - before) / 100000;

  const Ppd ppd = openPpd(kSample);
  const auto host = std::make_shared<WillingHost>(ppd.get(), true);
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
    memory.perDialog = bytesInUse() - before;
  }
  before = bytesInUse();
  for (int i = 0; i < 1000; ++i) wholeSession(host);
  memory.leftByDialog = (bytesInUse() - before) / 1000;
  setTraceSink(nullptr);
  return memory;
}

}  // namespace kwopde::bench
