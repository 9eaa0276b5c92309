// A bundle of AppKit as a host of ours drives it: it sends the bundle's objects the operations of
// the contract.
#pragma once

#import <AppKit/AppKit.h>

#include "platform/PanelInspector.h"
#include "platform/PlugIn.h"

namespace kwopde::cocoa {

class BundleModule final : public PlugInModule, public ModuleInspector {
public:
  /// Loads the bundle at `path`. Throws `host::Error` when it has no principal class of ours.
  explicit BundleModule(const std::string &path);

  std::shared_ptr<Bundle> bundle() override { return bundle_; }
  std::unique_ptr<PlugIn> makePlugIn() override;
  std::vector<PanelRequirement> requirements() const override;
  LogSink *setLogSink(LogSink *sink) override;

private:
  NSBundle *native_;
  std::shared_ptr<Bundle> bundle_;
};

}  // namespace kwopde::cocoa
