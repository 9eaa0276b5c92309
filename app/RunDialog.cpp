#include "app/RunDialog.h"

#include "app/Output.h"
#include "dialog/Pictures.h"

namespace kwopde::app {

bool runDialog(QDialog &dialog, const std::string &snapshotFolder) {
  if (snapshotFolder.empty()) return dialog.exec() == QDialog::Accepted;
  dialog.show();
  for (const QString &file : dialog::takePictures(dialog, QString::fromStdString(snapshotFolder)))
    tell("wrote {}", file.toStdString());
  dialog.accept();
  return dialog.result() == QDialog::Accepted;
}

}  // namespace kwopde::app
