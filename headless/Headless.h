// A toolkit without a screen: its controls are plain values. For running the extension where no
// widgets are wanted: by the commands that show nothing, in the fuzzers and the benchmarks.
#pragma once

#include <memory>
#include <vector>

#include "platform/PanelInspector.h"
#include "platform/PlugIn.h"
#include "platform/UserInput.h"

namespace kwopde::headless {

/// The extension's module on this toolkit. Every panel gets every control that it asks for, so
/// there are no interface files; sliders reach as far as in those of the other toolkits. Texts are
/// their keys.
class Module final : public PlugInModule, public ModuleInspector {
public:
  Module();
  ~Module() override;

  std::shared_ptr<Bundle> bundle() override { return bundle_; }
  std::unique_ptr<PlugIn> makePlugIn() override;
  std::vector<PanelRequirement> requirements() const override;
  LogSink *setLogSink(LogSink *sink) override;

private:
  std::unique_ptr<InterfaceLoader> loader_;
  InterfaceLoader *loaderBefore_;
  std::shared_ptr<Bundle> bundle_;
};

/// Works these controls, which send their actions as a toolkit's do.
class UserInput final : public kwopde::UserInput {
public:
  bool pick(PopUpButton &popUp, int index) override;
  bool slide(Slider &slider, double value) override;
  bool type(TextField &field, const std::string &text) override;
};

}  // namespace kwopde::headless
