#include "host/validator/Checks.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

#include "host/PpdSession.h"
#include "host/validator/TraceDepth.h"

namespace kwopde::host {

namespace {

void expect(bool holds, const std::string &what) {
  if (!holds) throw CheckFailed(what);
}

/// A host that counts what it is asked, and misbehaves as told.
class ProbeHost final : public HostCallback {
public:
  explicit ProbeHost(const std::string &ppd) : session(PpdFile::open(ppd)) {}

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

  PpdSession session;
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
        host(std::make_shared<ProbeHost>(ppd)),
        bundle(subject.module.bundle()),
        plugIn(subject.module.makePlugIn()) {
    subject.module.setLogSink(&trace);
  }
  Probe(const Probe &) = delete;
  Probe &operator=(const Probe &) = delete;
  ~Probe() {
    plugIn.reset();
    subject_.module.setLogSink(nullptr);
  }

  const PanelList &panels() {
    plugIn->initWithBundle(bundle.get());
    const PanelList *list = ask();
    expect(list && !list->empty(), "the plug-in makes no panels for a PPD with all their options");
    return *list;
  }
  const PanelList *ask() {
    const std::string type(kPrinterModuleTypeIDStr);
    return plugIn->PDEPanelsForType(&type, host);
  }

private:
  const Subject &subject_;

public:
  TraceDepth trace;
  std::shared_ptr<ProbeHost> host;
  std::shared_ptr<Bundle> bundle;
  std::unique_ptr<PlugIn> plugIn;
};

struct Operation {
  std::string_view name;
  void (*call)(Panel &panel);
};

const std::string kKey = "pageScale";
const std::string kChoice = "85";

constexpr Operation kOperations[] = {
    {"panelView", [](Panel &p) { p.panelView(); }},
    {"panelName", [](Panel &p) { p.panelName(); }},
    {"panelKind", [](Panel &p) { p.panelKind(); }},
    {"supportedPPDOptionKeys", [](Panel &p) { p.supportedPPDOptionKeys(); }},
    {"willShow", [](Panel &p) { p.willShow(); }},
    {"shouldHide", [](Panel &p) { expect(p.shouldHide(), "shouldHide answers no"); }},
    {"shouldPrint", [](Panel &p) { expect(p.shouldPrint(), "shouldPrint answers no"); }},
    {"shouldShowHelp", [](Panel &p) { expect(p.shouldShowHelp(), "shouldShowHelp answers no"); }},
    {"PPDOptionKeyValueDidChange", [](Panel &p) { p.PPDOptionKeyValueDidChange(&kKey, &kChoice); }},
    {"restoreValuesAndReturnError",
     [](Panel &p) {
       expect(p.restoreValuesAndReturnError(nullptr), "restoreValuesAndReturnError answers no");
     }},
    {"saveValuesAndReturnError",
     [](Panel &p) {
       expect(p.saveValuesAndReturnError(nullptr), "saveValuesAndReturnError answers no");
     }},
    {"summaryInfo", [](Panel &p) { expect(p.summaryInfo() != nullptr, "summaryInfo is null"); }},
    {"getNonPPDSettingsFromPrintSettings",
     [](Panel &p) { p.getNonPPDSettingsFromPrintSettings(); }},
    {"writeNonPPDSettingsToPrintSettings",
     [](Panel &p) { p.writeNonPPDSettingsToPrintSettings(); }},
};

void callAndFollow(Probe &probe, Panel &panel, const Operation &operation) {
  operation.call(panel);
  expect(probe.trace.depth() == 0,
         fmt::format("{} {} leaves the trace at depth {}", panel.className(), operation.name,
                     probe.trace.depth()));
}

/// Every operation in the order of the table and backwards, each twice.
void callAll(Probe &probe, Panel &panel) {
  for (const Operation &operation : kOperations)
    for (int twice = 0; twice < 2; ++twice) callAndFollow(probe, panel, operation);
  std::for_each(std::rbegin(kOperations), std::rend(kOperations),
                [&](const Operation &operation) { callAndFollow(probe, panel, operation); });
}

/// Works every control of a shown panel.
void workControls(const Subject &subject, Panel &panel) {
  for (const PanelControl &control : panel.controls()) {
    if (auto *popUp = dynamic_cast<PopUpButton *>(control.control))
      for (int i = 0; popUp->menu() && popUp->menu()->itemAtIndex(i); ++i)
        subject.user.pick(*popUp, i);
    if (auto *slider = dynamic_cast<Slider *>(control.control))
      for (const double value : {slider->minValue(), 0.5, slider->maxValue(), 1e300})
        subject.user.slide(*slider, value);
    if (auto *field = dynamic_cast<TextField *>(control.control))
      for (const char *text : {"", "12", "-99999999999", "%n%s%@", "\xc3\xa9"})
        subject.user.type(*field, text);
  }
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
       for (Bundle *bundle :
            {probe.bundle.get(), probe.bundle.get(), static_cast<Bundle *>(nullptr)})
         expect(probe.plugIn->initWithBundle(bundle), "initWithBundle answers no");
       expect(probe.ask() != nullptr, "a plug-in without a bundle makes no panels");
     }},
    {"plugin.other-types",
     "every other type, and none, yields an empty list and no look at the PPD",
     [](const Subject &subject) {
       Probe probe(subject);
       const std::string other = "other";
       for (const std::string *type : {&other, static_cast<const std::string *>(nullptr)}) {
         const PanelList *list = probe.plugIn->PDEPanelsForType(type, probe.host);
         expect(list && list->empty(), "another type yields something else than an empty list");
       }
       expect(probe.host->ppdFileCalls == 0, "another type looks at the PPD");
     }},
    {"plugin.no-host", "without a host object there are no panels",
     [](const Subject &subject) {
       Probe probe(subject);
       const std::string type(kPrinterModuleTypeIDStr);
       expect(!probe.plugIn->PDEPanelsForType(&type, nullptr), "there are panels without a host");
     }},
    {"plugin.no-options", "a PPD without the options yields no list, and the host is let go",
     [](const Subject &subject) {
       Probe probe(subject, subject.emptyPpd);
       expect(probe.ask() == nullptr, "there is a list of panels");
       expect(probe.host.use_count() == 1, "a refused panel keeps the host");
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
       expect(probe.host.use_count() == 1 + count, "a panel does not hold the host exactly once");
       for (const auto &panel : *probe.ask()) show(*panel);
       probe.plugIn.reset();
       // The panels of the first of two lists are kept for good.
       expect(probe.host.use_count() == 1 + count, "the host is not let go exactly once");
     }},
    {"plugin.bundle-kept", "a panel holds the bundle once, and for good",
     [](const Subject &subject) {
       Probe probe(subject);
       const auto before = probe.bundle.use_count();
       const auto count = static_cast<long>(probe.panels().size());
       expect(probe.bundle.use_count() == before + count, "a panel does not hold the bundle once");
       probe.plugIn.reset();
       expect(probe.bundle.use_count() == before + count, "a panel lets the bundle go");
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
         expect(probe.host->requests == 0, "a panel that was never shown saves on hiding");
         callAll(probe, *panel);
       }
     }},
    {"panel.any-order", "shown, a panel takes every call in any order, twice",
     [](const Subject &subject) {
       Probe probe(subject);
       for (const auto &panel : probe.panels()) {
         show(*panel);
         callAll(probe, *panel);
         workControls(subject, *panel);
         callAll(probe, *panel);
       }
     }},
    {"panel.odd-notices", "a notice with nulls, foreign keys or nonsense is taken",
     [](const Subject &subject) {
       Probe probe(subject);
       const std::string nonsense = "%n%s%@\xff";
       for (const auto &panel : probe.panels()) {
         show(*panel);
         for (const std::string *key :
              {static_cast<const std::string *>(nullptr), &nonsense, &kKey})
           for (const std::string *choice : {static_cast<const std::string *>(nullptr), &nonsense})
             panel->PPDOptionKeyValueDidChange(key, choice);
         callAll(probe, *panel);
       }
     }},
    {"host.answers-nothing", "a host that answers no requests gets none",
     [](const Subject &subject) {
       Probe probe(subject);
       probe.host->answersRequests = false;
       for (const auto &panel : probe.panels()) {
         show(*panel);
         workControls(subject, *panel);
         callAll(probe, *panel);
       }
       expect(probe.host->requests == 0, "a panel asks a host that answers nothing");
     }},
    {"host.refuses-all", "after a refused pick, a pop-up shows what is marked",
     [](const Subject &subject) {
       Probe probe(subject);
       for (const auto &panel : probe.panels()) {
         show(*panel);
         const auto shown = [&] {
           std::vector<int> indexes;
           for (const PanelControl &control : panel->controls())
             if (auto *popUp = dynamic_cast<PopUpButton *>(control.control))
               indexes.push_back(popUp->indexOfSelectedItem());
           return indexes;
         };
         const auto before = shown();
         probe.host->session.refuseAll(true);
         workControls(subject, *panel);
         probe.host->session.refuseAll(false);
         expect(shown() == before,
                fmt::format("a pop-up of {} keeps a refused pick", panel->className()));
       }
     }},
    {"host.announces-inside", "an announcement from inside a request is taken",
     [](const Subject &subject) {
       Probe probe(subject);
       const PanelList &panels = probe.panels();
       probe.host->duringRequest = [&] {
         for (const auto &panel : panels) {
           panel->PPDOptionKeyValueDidChange(&kKey, &kChoice);
           panel->summaryInfo();
         }
       };
       for (const auto &panel : panels) {
         show(*panel);
         workControls(subject, *panel);
         callAll(probe, *panel);
       }
     }},
};

}  // namespace

std::span<const Check> checks() {
  return kChecks;
}

}  // namespace kwopde::host
