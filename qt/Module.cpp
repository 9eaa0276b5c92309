// The loadable module: the core and this adapter, as a Qt plug-in.
#include <QLoggingCategory>
#include <QObject>

#include "platform/PlugIn.h"
#include "plugin/KWOPDEPlugin.h"
#include "plugin/PDELogging.h"
#include "qt/QtBundle.h"
#include "qt/QtInterfaceLoader.h"

Q_DECLARE_INTERFACE(kwopde::PlugInModule, KWOPDE_PLUGIN_MODULE_IID)

namespace kwopde::qt {

namespace {

Q_LOGGING_CATEGORY(trace, "kwopde.trace")

/// Qt's message handler: the terminal or the system log, as the application has it.
class QtLog final : public LogSink {
public:
  void writeLine(std::string_view line) override {
    qCInfo(trace, "%.*s", static_cast<int>(line.size()), line.data());
  }
};

}  // namespace

class Module final : public QObject, public PlugInModule {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID KWOPDE_PLUGIN_MODULE_IID)
  Q_INTERFACES(kwopde::PlugInModule)

public:
  Module() {
    setTraceSink(&log_);
    Bundle::setInterfaceLoader(&loader_);
  }
  ~Module() override {
    Bundle::setInterfaceLoader(nullptr);
    setTraceSink(nullptr);
  }

  std::shared_ptr<Bundle> bundle() override {
    if (!bundle_) bundle_ = std::make_shared<QtBundle>(":/kwopde");
    return bundle_;
  }
  std::unique_ptr<PlugIn> makePlugIn() override { return std::make_unique<KWOPDEPlugIn>(); }
  std::vector<PanelRequirement> requirements() const override {
    return KWOPDEPlugIn::requirements();
  }
  void setLogSink(LogSink *sink) override { setTraceSink(sink ? sink : &log_); }

private:
  QtLog log_;
  QtInterfaceLoader loader_{":/kwopde"};
  std::shared_ptr<Bundle> bundle_;
};

}  // namespace kwopde::qt

#include "Module.moc"
