// A module that breaks the contract, to see that kwopde validate notices: it keeps the host, and
// crashes when it is asked for panels of another type.
#include <QObject>
#include <cstdlib>

#include "headless/Headless.h"

Q_DECLARE_INTERFACE(kwopde::PlugInModule, KWOPDE_PLUGIN_MODULE_IID)

namespace kwopde::test {

class FaultyPlugIn final : public PlugIn {
public:
  explicit FaultyPlugIn(std::unique_ptr<PlugIn> sound) : sound_(std::move(sound)) {}
  std::string_view className() const override { return sound_->className(); }
  bool initWithBundle(Bundle *bundle) override { return sound_->initWithBundle(bundle); }
  const PanelList *PDEPanelsForType(const std::string *type,
                                    const std::shared_ptr<HostCallback> &host) override {
    if (!type || *type != kPrinterModuleTypeIDStr) std::abort();
    kept_.push_back(host);
    return sound_->PDEPanelsForType(type, host);
  }

private:
  std::unique_ptr<PlugIn> sound_;
  inline static std::vector<std::shared_ptr<HostCallback>> kept_;
};

class FaultyModule final : public QObject, public PlugInModule {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID KWOPDE_PLUGIN_MODULE_IID)
  Q_INTERFACES(kwopde::PlugInModule)

public:
  std::shared_ptr<Bundle> bundle() override { return sound_.bundle(); }
  std::unique_ptr<PlugIn> makePlugIn() override {
    return std::make_unique<FaultyPlugIn>(sound_.makePlugIn());
  }
  LogSink *setLogSink(LogSink *sink) override { return sound_.setLogSink(sink); }

private:
  headless::Module sound_;
};

}  // namespace kwopde::test

#include "FaultyModule.moc"
