// A module that says it was built for an earlier version of the contract.
#include <QObject>

class OutdatedModule final : public QObject {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "org.kwopde.PlugInModule/1.0")
};

#include "OutdatedModule.moc"
