#include "check/ContractChecks.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

#include "check/TraceDepth.h"
#include "host/Extension.h"
#include "host/PpdSession.h"
#include "host/TraceTo.h"
#include "platform/PanelInspector.h"
#include "script/PanelCalls.h"

namespace kwopde::check {

namespace {

void expect(bool holds, const std::string &what) {
  if (!holds) throw CheckFailed(what);
}

/// Throws `CheckFailed` with `what` and both numbers when they differ.
void expectCount(long counted, long expected, const std::string &what) {
  expect(counted == expected, fmt::format("{}: {} instead of {}", what, counted, expected));
}

/// A host that counts what it is asked, and misbehaves as told.
class ProbeHost final : public HostCallback {
public:
  explicit ProbeHost(const std::string &ppd) : session(host::PpdFile::open(ppd)) {}

  std::string_view className() const override { return "ProbeHost"; }
  ppd_file_t *ppdFile() override {
    ++ppdFileCalls;
    return session.ppdFile();
  }
  bool respondsToSelector(std::string_view selector) const override {
    return answersRequests && session.respondsToSelector(selector);
  }
  bool willChangePPDOptionKeyValue(const std::string *key, const std::string *choice) override {
    ++requests;
    if (duringRequest) duringRequest();
    return session.willChangePPDOptionKeyValue(key, choice);
  }

  host::PpdSession session;
  bool answersRequests = true;
  std::function<void()> duringRequest;
  int ppdFileCalls = 0;
  int requests = 0;
};

/// A plug-in with its panels under a probing host, whose trace is followed.
class Probe {
public:
  explicit Probe(const Subject &subject) : Probe(subject, subject.ppd) {}
  Probe(const Subject &subject, const std::string &ppd)
      : subject_(subject),
        tracing_(subject.module, &trace),
        host(std::make_shared<ProbeHost>(ppd)),
        extension(std::in_place, subject.module, host, host->session) {}

  /// Opens the extension. Throws `NothingToCheck` when it makes no panels.
  const PanelList &panels() {
    const PanelList *list = extension->open();
    if (!list || list->empty())
      throw NothingToCheck(fmt::format("the module makes no panels for {}", subject_.ppd));
    return *list;
  }

  /// Asks for the panels of a printer once more.
  const PanelList *ask() {
    const std::string type(kPrinterModuleTypeIDStr);
    return extension->ask(&type);
  }

  Bundle *bundle() const { return extension->bundle(); }
  long bundleCount() const { return subject_.module.bundle().use_count(); }

private:
  const Subject &subject_;

public:
  TraceDepth trace;

private:
  host::TraceTo tracing_;

public:
  std::shared_ptr<ProbeHost> host;
  std::optional<host::Extension> extension;
};

/// Words for the operations that take some: a key and a choice.
const std::vector<script::Word> kWords{script::Word(), script::Word("pageScale"),
                                       script::Word("85")};

void callAndFollow(Probe &probe, Panel &panel, const script::PanelCall &call) {
  const std::string result = call.call(panel, kWords);
  expect(
      call.result.empty() || result == call.result,
      fmt::format("{} {} answers {}, not {}", panel.className(), call.name, result, call.result));
  expect(probe.trace.depth() == 0, fmt::format("{} {} leaves the trace at depth {}, not 0",
                                               panel.className(), call.name, probe.trace.depth()));
}

/// Calls every operation in the order of the contract and backwards, each twice.
void callAll(Probe &probe, Panel &panel) {
  const auto calls = script::panelCalls();
  for (const script::PanelCall &call : calls)
    for (int twice = 0; twice < 2; ++twice) callAndFollow(probe, panel, call);
  std::for_each(calls.rbegin(), calls.rend(),
                [&](const script::PanelCall &call) { callAndFollow(probe, panel, call); });
}

/// Works every control of the panel; returns how many took it.
int workControls(const Subject &subject, Panel &panel) {
  int worked = 0;
  for (const PanelControl &control : controlsOf(panel)) {
    bool took = false;
    if (auto *popUp = dynamic_cast<PopUpButton *>(control.control))
      for (int i = 0; popUp->menu() && popUp->menu()->itemAtIndex(i); ++i)
        took |= subject.user.pick(*popUp, i);
    if (auto *slider = dynamic_cast<Slider *>(control.control))
      for (const double value : {slider->minValue(), 0.5, slider->maxValue(), 1e300})
        took |= subject.user.slide(*slider, value);
    if (auto *field = dynamic_cast<TextField *>(control.control))
      for (const char *text : {"", "12", "-99999999999", "%n%s%@", "\xc3\xa9"})
        took |= subject.user.type(*field, text);
    worked += took ? 1 : 0;
  }
  return worked;
}

/// Throws `NothingToCheck` when no control of any panel was worked.
void expectWorked(int controls) {
  if (controls == 0) throw NothingToCheck("no panel of the module tells of a control to work");
}

void show(Panel &panel) {
  panel.restoreValuesAndReturnError(nullptr);
  panel.panelView();
  panel.willShow();
}

constexpr Check kChecks[] = {
    {"plugin.initialised-twice", "initWithBundle answers yes, again and without a bundle too",
     [](const Subject &subject) {
       Probe probe(subject);
       for (Bundle *bundle : {probe.bundle(), probe.bundle(), static_cast<Bundle *>(nullptr)})
         expect(probe.extension->plugIn().initWithBundle(bundle), "initWithBundle answers no");
       if (!probe.ask()) throw NothingToCheck("a plug-in without a bundle makes no panels");
     }},
    {"plugin.other-types",
     "every other type, and none, yields an empty list and no look at the PPD",
     [](const Subject &subject) {
       Probe probe(subject);
       const std::string other = "other";
       for (const std::string *type : {&other, static_cast<const std::string *>(nullptr)}) {
         const PanelList *list = probe.extension->ask(type);
         expect(list && list->empty(), "another type yields something else than an empty list");
       }
       expectCount(probe.host->ppdFileCalls, 0, "another type looks at the PPD; looks");
     }},
    {"plugin.no-host", "without a host object there are no panels",
     [](const Subject &subject) {
       Probe probe(subject);
       const std::string type(kPrinterModuleTypeIDStr);
       expect(!probe.extension->plugIn().PDEPanelsForType(&type, nullptr),
              "there are panels without a host");
     }},
    {"plugin.no-options", "a PPD without the options yields no list, and the host is let go",
     [](const Subject &subject) {
       Probe probe(subject, subject.emptyPpd);
       expect(probe.ask() == nullptr, "there is a list of panels");
       expectCount(probe.host.use_count(), 2, "a refused panel keeps the host; its owners");
     }},
    {"plugin.asked-twice", "the panels of an earlier list stay usable",
     [](const Subject &subject) {
       Probe probe(subject);
       const std::shared_ptr<Panel> first = probe.panels().front();
       probe.ask();
       callAll(probe, *first);
     }},
    {"plugin.released", "dropping the plug-in lets the host go, once for each panel",
     [](const Subject &subject) {
       Probe probe(subject);
       const auto count = static_cast<long>(probe.panels().size());
       // The probe and the extension hold it too.
       expectCount(probe.host.use_count(), 2 + count,
                   "a panel does not hold the host exactly once; its owners");
       for (const auto &panel : *probe.ask()) show(*panel);
       probe.extension.reset();
       // The panels of the first of two lists are kept for good.
       expectCount(probe.host.use_count(), 1 + count,
                   "the host is not let go exactly once; its owners");
     }},
    {"plugin.bundle-kept", "a panel holds the bundle once, and for good",
     [](const Subject &subject) {
       Probe probe(subject);
       const long before = probe.bundleCount();
       const auto count = static_cast<long>(probe.panels().size());
       expectCount(probe.bundleCount(), before + count,
                   "a panel does not hold the bundle once; its owners");
       probe.extension.reset();
       expectCount(probe.bundleCount(), before - 1 + count,
                   "a panel lets the bundle go; its owners");
     }},
    {"panel.kinds-differ", "every panel has a kind of its own",
     [](const Subject &subject) {
       Probe probe(subject);
       std::vector<std::string> kinds;
       for (const auto &panel : probe.panels()) kinds.emplace_back(panel->panelKind());
       std::sort(kinds.begin(), kinds.end());
       expect(std::adjacent_find(kinds.begin(), kinds.end()) == kinds.end(), "two kinds are equal");
       expect(!kinds.front().empty(), "a kind is empty");
     }},
    {"panel.made-once", "view, name and list of keys are the same at every call",
     [](const Subject &subject) {
       Probe probe(subject);
       for (const auto &panel : probe.panels()) {
         expect(panel->panelView() != nullptr, "a panel has no view");
         expect(panel->panelView() == panel->panelView(), "a view is made twice");
         expect(panel->panelName() && panel->panelName() == panel->panelName(),
                "a name is missing or made twice");
         expect(&panel->supportedPPDOptionKeys() == &panel->supportedPPDOptionKeys(),
                "a list of keys is made twice");
       }
     }},
    {"panel.before-the-view",
     "before it is shown, a panel takes every call and hiding saves nothing",
     [](const Subject &subject) {
       Probe probe(subject);
       for (const auto &panel : probe.panels()) {
         probe.host->requests = 0;
         panel->shouldHide();
         panel->shouldPrint();
         expectCount(probe.host->requests, 0,
                     "a panel that was never shown saves on hiding; requests");
         callAll(probe, *panel);
       }
     }},
    {"panel.any-order", "shown, a panel takes every call in any order, twice",
     [](const Subject &subject) {
       Probe probe(subject);
       int worked = 0;
       for (const auto &panel : probe.panels()) {
         show(*panel);
         callAll(probe, *panel);
         worked += workControls(subject, *panel);
         callAll(probe, *panel);
       }
       expectWorked(worked);
     }},
    {"panel.odd-notices", "a notice with nulls, foreign keys or nonsense is taken",
     [](const Subject &subject) {
       Probe probe(subject);
       const std::string nonsense = "%n%s%@\xff";
       for (const auto &panel : probe.panels()) {
         show(*panel);
         for (const std::string *key :
              {static_cast<const std::string *>(nullptr), &nonsense, &*kWords[1]})
           for (const std::string *choice : {static_cast<const std::string *>(nullptr), &nonsense})
             panel->PPDOptionKeyValueDidChange(key, choice);
         callAll(probe, *panel);
       }
     }},
    {"host.answers-nothing", "a host that answers no requests gets none",
     [](const Subject &subject) {
       Probe probe(subject);
       probe.host->answersRequests = false;
       int worked = 0;
       for (const auto &panel : probe.panels()) {
         show(*panel);
         worked += workControls(subject, *panel);
         callAll(probe, *panel);
       }
       expectWorked(worked);
       expectCount(probe.host->requests, 0, "a panel asks a host that answers nothing; requests");
     }},
    {"host.refuses-all", "after a refused pick, a pop-up shows what is marked",
     [](const Subject &subject) {
       Probe probe(subject);
       int worked = 0;
       for (const auto &panel : probe.panels()) {
         show(*panel);
         const auto shown = [&] {
           std::vector<int> indexes;
           for (const PanelControl &control : controlsOf(*panel))
             if (auto *popUp = dynamic_cast<PopUpButton *>(control.control))
               indexes.push_back(popUp->indexOfSelectedItem());
           return indexes;
         };
         const auto before = shown();
         probe.host->session.refuseAll(true);
         worked += workControls(subject, *panel);
         probe.host->session.refuseAll(false);
         expect(shown() == before,
                fmt::format("a pop-up of {} keeps a refused pick", panel->className()));
       }
       expectWorked(worked);
     }},
    {"host.announces-inside", "an announcement from inside a request is taken",
     [](const Subject &subject) {
       Probe probe(subject);
       const PanelList &panels = probe.panels();
       probe.host->duringRequest = [&] {
         for (const auto &panel : panels) {
           panel->PPDOptionKeyValueDidChange(&*kWords[1], &*kWords[2]);
           panel->summaryInfo();
         }
       };
       int worked = 0;
       for (const auto &panel : panels) {
         show(*panel);
         worked += workControls(subject, *panel);
         callAll(probe, *panel);
       }
       expectWorked(worked);
     }},
};

}  // namespace

std::span<const Check> checks() {
  return kChecks;
}

}  // namespace kwopde::check
