// An application that knows nothing of the panels: it opens Qt's print dialog in one of the ways of
// Qt, and prints a line. A person who stands at its screen types 85 as the page scale, and prints.
//   bare-application open|exec|show|subclass
// It writes the titles of the dialog's tabs.
#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTabWidget>
#include <QTextStream>
#include <QTimer>

class Subclass final : public QPrintDialog {
public:
  using QPrintDialog::QPrintDialog;
  void accept() override { QPrintDialog::accept(); }
};

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  const QString way = QApplication::arguments().value(1);
  QPrinter printer;
  QPrintDialog *const dialog =
      way == "subclass" ? new Subclass(&printer) : new QPrintDialog(&printer);
  const auto print = [&] {
    QPainter(&printer).drawText(100, 100, "printed");
    QApplication::quit();
  };
  if (way != "exec") QObject::connect(dialog, &QDialog::accepted, print);

  QTimer::singleShot(300, dialog, [dialog] {
    QTextStream out(stdout);
    for (auto *button : dialog->findChildren<QPushButton *>())
      if (button->text().contains(">>")) button->click();  // the part with the tabs
    for (auto *tabs : dialog->findChildren<QTabWidget *>())
      for (int i = 0; i < tabs->count(); ++i) {
        out << tabs->tabText(i) << '\n';
        if (tabs->tabText(i) == "Media") tabs->setCurrentIndex(i);
      }
    if (auto *field = dialog->findChild<QLineEdit *>("pageScaleEdit")) field->setText("85");
    dialog->accept();
  });
  if (way == "open")
    dialog->open();
  else if (way == "exec") {
    if (dialog->exec() == QDialog::Accepted) print();
    return 0;
  } else {
    dialog->show();
  }
  return QApplication::exec();
}
