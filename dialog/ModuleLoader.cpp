#include "dialog/ModuleLoader.h"

#include <dlfcn.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPluginLoader>

#include "host/Error.h"

Q_DECLARE_INTERFACE(kwopde::PlugInModule, KWOPDE_PLUGIN_MODULE_IID)

namespace kwopde::dialog {

namespace {

constexpr const char *kFileName = "/kwopde-qt.so";

/// The folder of the program or library that this code is in.
QString ownFolder() {
  Dl_info info{};
  return dladdr(reinterpret_cast<void *>(&ownFolder), &info) != 0
             ? QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath()
             : QString();
}

QString usualModule() {
  if (QString named = qEnvironmentVariable("KWOPDE_MODULE"); !named.isEmpty()) return named;
  const QString program = QCoreApplication::applicationDirPath();
  const QString installed = program + "/" KWOPDE_LIBRARIES_FROM_PROGRAMS "/kwopde";
  for (const QString &folder : {program, installed, ownFolder() + "/kwopde"})
    if (QFile::exists(folder + kFileName)) return folder + kFileName;
  return installed + kFileName;
}

}  // namespace

PlugInModule &loadModule(const QString &file) {
  QPluginLoader loader(file.isEmpty() ? usualModule() : file);
  QObject *const instance = loader.instance();
  auto *const module = qobject_cast<PlugInModule *>(instance);
  if (module) return *module;
  throw host::Error(instance ? loader.fileName().toStdString() + ": not a print-dialog extension"
                             : loader.fileName().toStdString() + ": " +
                                   loader.errorString().toStdString());
}

}  // namespace kwopde::dialog
