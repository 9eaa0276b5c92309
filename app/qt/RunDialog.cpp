#include "app/qt/RunDialog.h"

#include "app/Output.h"
#include "dialog/Pictures.h"
#include "dialog/Question.h"

namespace kwopde::app {

void showAndTakePictures(QDialog &dialog, const std::string &folder) {
  dialog.show();
  dialog::Question::waitForAll();
  for (const QString &file : dialog::takePictures(dialog, QString::fromStdString(folder)))
    tell("wrote {}", file.toStdString());
}

bool runDialog(QDialog &dialog, const std::string &snapshotFolder) {
  if (snapshotFolder.empty()) return dialog.exec() == QDialog::Accepted;
  showAndTakePictures(dialog, snapshotFolder);
  dialog.accept();
  return dialog.result() == QDialog::Accepted;
}

}  // namespace kwopde::app
