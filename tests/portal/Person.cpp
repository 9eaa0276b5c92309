// A person at the dialog of another program, as a plug-in that Qt loads into it. KWOPDE_PERSON is
// what the person does: print (85 as the page scale, two copies, pages 2 to 3), cancel, crash, or
// wait.
#include <QGenericPlugin>
#include <QLineEdit>
#include <QPrintDialog>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimer>
#include <cstdlib>

#include <QApplication>

namespace {

void setUp(QPrintDialog &dialog) {
  for (auto *tabs : dialog.findChildren<QTabWidget *>())
    for (int i = 0; i < tabs->count(); ++i)
      if (tabs->tabText(i) == "Media") tabs->setCurrentIndex(i);
  if (auto *field = dialog.findChild<QLineEdit *>("pageScaleEdit")) field->setText("85");
  if (auto *copies = dialog.findChild<QSpinBox *>("copies")) copies->setValue(2);
  if (auto *range = dialog.findChild<QRadioButton *>("printRange")) range->setChecked(true);
  if (auto *from = dialog.findChild<QSpinBox *>("from")) from->setValue(2);
  if (auto *to = dialog.findChild<QSpinBox *>("to")) to->setValue(3);
}

void act() {
  const QByteArray what = qgetenv("KWOPDE_PERSON");
  for (QWidget *window : QApplication::topLevelWidgets())
    if (auto *dialog = qobject_cast<QPrintDialog *>(window)) {
      if (what == "cancel") dialog->reject();
      if (what == "crash") std::abort();
      if (what == "print") {
        setUp(*dialog);
        dialog->accept();
      }
    }
}

}  // namespace

class Person final : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "person.json")

public:
  QObject *create(const QString &, const QString &) override {
    // A desktop whose theme asks the portal would wait for itself.
    if (qgetenv("QT_QPA_PLATFORMTHEME") == "xdgdesktopportal") std::_Exit(3);
    QTimer::singleShot(400, qApp, act);
    return new QObject;
  }
};

#include "Person.moc"
