#include "dialog/PrintDialogPanels.h"

#include <QComboBox>
#include <QLabel>
#include <QPrintEngine>
#include <QPrinter>

#include "host/Error.h"
#include "host/PrintQueue.h"

namespace kwopde::dialog {

namespace {

/// The print engine's list of CUPS options, key and value in turn; KDE's applications use it too.
constexpr auto kCupsOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);

void setCupsOption(QStringList &options, const QString &key, const QString &value) {
  for (qsizetype i = 0; i + 1 < options.size(); i += 2)
    if (options[i] == key) return void(options[i + 1] = value);
  options << key << value;
}

}  // namespace

PrintDialogPanels::PrintDialogPanels(PlugInModule &module, QPrintDialog &dialog)
    : QObject(&dialog), module_(module), dialog_(dialog) {
  // Its labels show what the server says of a printer.
  for (QLabel *label : dialog.findChildren<QLabel *>()) label->setTextFormat(Qt::PlainText);
  // The dialog tells nobody which printer is chosen, but its combo box does.
  if (auto *printers = dialog.findChild<QComboBox *>("printers"))
    connect(printers, &QComboBox::currentTextChanged, this, &PrintDialogPanels::showPanelsOf);
  showPanelsOf(dialog.printer()->printerName());
}

void PrintDialogPanels::showPanelsOf(const QString &printer) {
  pages_.reset();
  session_.reset();
  choices_.clear();
  if (printer.isEmpty()) return;
  try {
    session_ = host::PrintQueue(printer.toStdString()).openSession();
  } catch (const host::Error &) {
    return;  // not a queue with a PPD: a printer that is not ours
  }
  pages_ = std::make_unique<PanelPages>(module_, session_);
  QList<QWidget *> tabs;
  for (Page *page : pages_->pages()) tabs.append(page);
  if (!tabs.isEmpty()) dialog_.setOptionTabs(tabs);
}

void PrintDialogPanels::settle() {
  if (!pages_ || pages_->pages().isEmpty()) return;
  pages_->print();
  choices_ = session_->changedChoices();
  QPrintEngine *const engine = dialog_.printer()->printEngine();
  QStringList options = engine->property(kCupsOptions).toStringList();
  for (const auto &[key, choice] : choices_)
    setCupsOption(options, QString::fromStdString(key), QString::fromStdString(choice));
  engine->setProperty(kCupsOptions, options);
}

}  // namespace kwopde::dialog
