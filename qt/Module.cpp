// The loadable module: the core and this adapter, as QPluginLoader takes it.
#include <QLoggingCategory>
#include <QObject>

#include "panels/PanelClasses.h"
#include "platform/PlugIn.h"
#include "platform/SystemLog.h"
#include "plugin/KWOPDEPlugin.h"
#include "plugin/PDELogging.h"
#include "qt/QtBundle.h"
#include "qt/QtInterfaceLoader.h"

Q_DECLARE_INTERFACE(kwopde::PlugInModule, KWOPDE_PLUGIN_MODULE_IID)

namespace kwopde::qt {

namespace {

Q_LOGGING_CATEGORY(trace, "kwopde.trace", QtWarningMsg)

}  // namespace

class Module final : public QObject, public PlugInModule, public ModuleInspector {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID KWOPDE_PLUGIN_MODULE_IID)
  Q_INTERFACES(kwopde::PlugInModule)

public:
  Module()
      : sinkBefore_(setTraceSink(&log_)), loaderBefore_(Bundle::setInterfaceLoader(&loader_)) {}
  ~Module() override {
    Bundle::setInterfaceLoader(loaderBefore_);
    setTraceSink(sinkBefore_);
  }

  std::shared_ptr<Bundle> bundle() override {
    if (!bundle_) bundle_ = std::make_shared<QtBundle>(":/kwopde");
    return bundle_;
  }
  std::unique_ptr<PlugIn> makePlugIn() override { return std::make_unique<KWOPDEPlugIn>(); }
  std::vector<PanelRequirement> requirements() const override { return panelRequirements(); }
  LogSink *setLogSink(LogSink *sink) override {
    LogSink *const before = setTraceSink(sink ? sink : &log_);
    return before == &log_ ? nullptr : before;
  }

private:
  /// The system log, and Qt's message handler too once the category's messages are switched on.
  class Log final : public SystemLog {
  public:
    void writeLine(std::string_view line) override {
      SystemLog::writeLine(line);
      qCInfo(trace, "%.*s", static_cast<int>(line.size()), line.data());
    }
  };

  Log log_;
  QtInterfaceLoader loader_;
  LogSink *sinkBefore_;
  InterfaceLoader *loaderBefore_;
  std::shared_ptr<Bundle> bundle_;
};

}  // namespace kwopde::qt

#include "Module.moc"
