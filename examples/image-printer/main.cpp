// Prints an image, with the driver's panels in the print dialog: one call attaches them.
//   image-printer IMAGE [PICTURE]   with PICTURE, saves a picture of the dialog and prints at once
#include <kwopde/attach.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QTabWidget>
#include <QTextStream>

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  const QImage image(arguments.value(1));
  if (image.isNull()) {
    QTextStream(stderr) << arguments.value(0) << ": " << arguments.value(1) << ": not an image\n";
    return 2;
  }

  QPrinter printer;
  QPrintDialog dialog(&printer);
  kwopde::attachPanels(&dialog);
  if (arguments.size() > 2) {
    dialog.show();
    if (auto *tabs = dialog.findChild<QTabWidget *>()) {
      for (int i = 0; i < tabs->count(); ++i) QTextStream(stdout) << tabs->tabText(i) << '\n';
    }
    dialog.grab().save(arguments[2]);
    dialog.accept();
  } else if (dialog.exec() != QDialog::Accepted) {
    return 1;
  }

  QPainter painter(&printer);
  const QRect page = painter.viewport();
  const QSize size = image.size().scaled(page.size(), Qt::KeepAspectRatio);
  painter.drawImage(QRect(page.topLeft(), size), image);
  return 0;
}
