#include "dialog/Pictures.h"

#include <QCoreApplication>
#include <QDir>
#include <QTabWidget>

#include "host/Error.h"

namespace kwopde::dialog {

QStringList takePictures(QDialog &dialog, const QString &folder) {
  QStringList files;
  QDir().mkpath(folder);
  const auto take = [&](const QString &name) {
    QCoreApplication::processEvents();
    files.append(QDir(folder).filePath(name + ".png"));
    if (!dialog.grab().save(files.back()))
      throw host::Error(files.back().toStdString() + ": the picture cannot be written");
  };
  auto *tabs = dialog.findChild<QTabWidget *>();
  for (int i = 0; tabs && i < tabs->count(); ++i) {
    tabs->setCurrentIndex(i);
    take(tabs->currentWidget()->objectName());
  }
  if (files.isEmpty()) take("dialog");
  return files;
}

}  // namespace kwopde::dialog
