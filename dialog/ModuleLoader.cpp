#include "dialog/ModuleLoader.h"

#include <dlfcn.h>
#include <stdlib.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPluginLoader>

#include "host/Error.h"

Q_DECLARE_INTERFACE(kwopde::PlugInModule, KWOPDE_PLUGIN_MODULE_IID)

namespace kwopde::dialog {

namespace {

#ifndef KWOPDE_MODULE_FILE
#define KWOPDE_MODULE_FILE "/kwopde-qt.so"
#define KWOPDE_MODULE_FOLDER "/kwopde"  // from the folder of the library that this is part of
#endif

/// The folder of the program or library that this code is in.
QString ownFolder() {
  Dl_info info{};
  return dladdr(reinterpret_cast<void *>(&ownFolder), &info) != 0
             ? QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath()
             : QString();
}

QString usualModule() {
  // Not where the process has rights that its caller has not.
  if (const char *named = secure_getenv("KWOPDE_MODULE"); named && *named)
    return QFile::decodeName(named);
  const QString beside = QCoreApplication::applicationDirPath() + KWOPDE_MODULE_FILE;
  return QFile::exists(beside) ? beside : ownFolder() + KWOPDE_MODULE_FOLDER KWOPDE_MODULE_FILE;
}

}  // namespace

PlugInModule &loadModule(const QString &file) {
  // Qt would look for a relative name in folders of its own.
  const QString path = QFileInfo(file.isEmpty() ? usualModule() : file).absoluteFilePath();
  const auto fail = [&](const QString &why) {
    return host::Error(QString("%1: %2").arg(path, why).toStdString());
  };
  if (!QFile::exists(path)) throw fail("there is no such module");
  QPluginLoader loader(path);
  // The file tells what it was built for before any of its code runs.
  const QString interface = loader.metaData().value("IID").toString();
  const QString ours(KWOPDE_PLUGIN_MODULE_IID);
  const QString family = ours.chopped(sizeof(KWOPDE_CONTRACT_VERSION) - 1);
  if (!interface.startsWith(family)) throw fail("not a print-dialog extension");
  if (interface != ours)
    throw fail(QString("built for version %1 of the extension's contract, and this program has "
                       "version " KWOPDE_CONTRACT_VERSION)
                   .arg(interface.mid(family.size())));
  if (auto *const module = qobject_cast<PlugInModule *>(loader.instance())) return *module;
  throw fail(loader.errorString());
}

}  // namespace kwopde::dialog
