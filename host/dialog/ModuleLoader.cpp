#include "host/dialog/ModuleLoader.h"

#include <QCoreApplication>
#include <QFile>
#include <QPluginLoader>

#include "host/Error.h"

Q_DECLARE_INTERFACE(kwopde::PlugInModule, KWOPDE_PLUGIN_MODULE_IID)

namespace kwopde::host {

namespace {

constexpr const char *kFileName = "/kwopde-qt.so";

QString usualModule() {
  if (QString named = qEnvironmentVariable("KWOPDE_MODULE"); !named.isEmpty()) return named;
  const QString beside = QCoreApplication::applicationDirPath() + kFileName;
  return QFile::exists(beside) ? beside : QString(KWOPDE_MODULE_FOLDER) + kFileName;
}

}  // namespace

PlugInModule &loadModule(const QString &file) {
  QPluginLoader loader(file.isEmpty() ? usualModule() : file);
  QObject *const instance = loader.instance();
  auto *const module = qobject_cast<PlugInModule *>(instance);
  if (module) return *module;
  throw Error(instance
                  ? loader.fileName().toStdString() + ": not a print-dialog extension"
                  : loader.fileName().toStdString() + ": " + loader.errorString().toStdString());
}

}  // namespace kwopde::host
