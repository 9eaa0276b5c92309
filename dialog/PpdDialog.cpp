#include "dialog/PpdDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace kwopde::dialog {

namespace {

QLabel *plainLabel(const QString &text) {
  auto *label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  return label;
}

}  // namespace

PpdDialog::PpdDialog(PlugInModule &module, const std::shared_ptr<host::PpdSession> &session,
                     const QString &document, QWidget *parent)
    : QDialog(parent), pages_(module, session) {
  setWindowTitle(tr("Print"));
  auto *layout = new QVBoxLayout(this);
  auto *facts = new QFormLayout;
  facts->addRow(tr("Printer:"), plainLabel(QString::fromStdString(session->ppd().nickname())));
  if (!document.isEmpty()) facts->addRow(tr("Document:"), plainLabel(document));
  layout->addLayout(facts);

  const auto pages = pages_.pages();
  if (pages.isEmpty()) {
    auto *none = plainLabel(tr("This printer has no settings for these panels."));
    none->setWordWrap(true);
    layout->addWidget(none, 1);
  } else {
    tabs_ = new QTabWidget;
    tabs_->setObjectName("tabs");
    for (Page *page : pages) tabs_->addTab(page, page->windowTitle());
    connect(&pages_, &PanelPages::asksFor, tabs_, &QTabWidget::setCurrentWidget);
    layout->addWidget(tabs_, 1);
  }

  auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel | QDialogButtonBox::Help);
  QPushButton *print = buttons->addButton(tr("&Print"), QDialogButtonBox::AcceptRole);
  buttons->button(QDialogButtonBox::Help)->setShortcut(QKeySequence::HelpContents);
  buttons->button(QDialogButtonBox::Help)->setEnabled(tabs_ != nullptr);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(buttons, &QDialogButtonBox::helpRequested, this, &PpdDialog::showHelp);
  layout->addWidget(buttons);
  print->setDefault(true);
  if (tabs_) tabs_->setFocus();
}

void PpdDialog::accept() {
  if (pages_.print()) QDialog::accept();
}

void PpdDialog::showHelp() {
  if (auto *page = qobject_cast<PanelPage *>(tabs_ ? tabs_->currentWidget() : nullptr))
    page->showHelp();
}

}  // namespace kwopde::dialog
