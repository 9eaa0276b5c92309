// The contract between a print dialog and the extension as a whole.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Bundle.h"
#include "platform/HostCallback.h"
#include "platform/LogSink.h"
#include "platform/Object.h"
#include "platform/Panel.h"

namespace kwopde {

/// The panel type that yields panels; every other yields an empty list.
inline constexpr std::string_view kPrinterModuleTypeIDStr = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

using PanelList = std::vector<std::shared_ptr<Panel>>;

/// The principal class of the extension. Dropping it ends the lives of its panels.
class PlugIn : public Object {
public:
  /// Remembers `bundle`, which the host keeps alive as long as the plug-in; call it once, first.
  /// Always true. A plug-in without a bundle has panels without names.
  virtual bool initWithBundle(Bundle *bundle) = 0;

  /// The panels for `type`, made now for the PPD and the callback that `withHostInfo` is (it may be
  /// null); owned by the plug-in. Normally called once: the panels of an earlier call are never
  /// released. Null when the PPD has no option of any panel.
  virtual const PanelList *PDEPanelsForType(const std::string *type,
                                            const std::shared_ptr<HostCallback> &withHostInfo) = 0;
};

/// What a loadable module of the extension answers to a host; the first object that the host meets.
class PlugInModule {
public:
  PlugInModule() = default;
  PlugInModule(const PlugInModule &) = delete;
  PlugInModule &operator=(const PlugInModule &) = delete;
  virtual ~PlugInModule() = default;

  /// The module's bundle, the same at every call; the host holds it while it has a plug-in.
  virtual std::shared_ptr<Bundle> bundle() = 0;

  /// A new principal object, not yet initialised; owned by the caller.
  virtual std::unique_ptr<PlugIn> makePlugIn() = 0;

  /// Sends the trace to `sink` from now on; borrowed. Null stands for the module's own sink.
  /// Returns the sink before it, null again for the module's own.
  virtual LogSink *setLogSink(LogSink *sink) = 0;
};

}  // namespace kwopde

/// The version of this contract. It changes whenever an interface in this folder does, and a host
/// refuses a module that was built for another one.
#define KWOPDE_CONTRACT_VERSION "2"

/// The interface name under which a Qt module offers its `kwopde::PlugInModule`.
#define KWOPDE_PLUGIN_MODULE_IID "org.kwopde.PlugInModule/" KWOPDE_CONTRACT_VERSION
