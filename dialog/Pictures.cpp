#include "dialog/Pictures.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QTabWidget>

#include "host/Error.h"

namespace kwopde::dialog {

namespace {

constexpr int kQuality = 80;  // of Qt's scale from 0 to 100; a PNG has the same pixels at each

}  // namespace

QStringList takePictures(QDialog &dialog, const QString &folder) {
  QStringList files;
  QDir().mkpath(folder);
  const auto take = [&](const QString &name) {
    QCoreApplication::processEvents();
    files.append(QDir(folder).filePath(name + ".png"));
    // Without the channel that dialogs do not have, and compressed for speed.
    const QImage picture = dialog.grab().toImage().convertToFormat(QImage::Format_RGB888);
    if (!picture.save(files.back(), nullptr, kQuality))
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
