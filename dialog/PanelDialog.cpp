#include "dialog/PanelDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "dialog/PageTabs.h"
#include "dialog/PlainText.h"

namespace kwopde::dialog {

PanelDialog::PanelDialog(PlugInModule &module, const QString &acceptText, QWidget *parent)
    : QDialog(parent),
      module_(module),
      facts_(new QFormLayout),
      none_(plainLabel({})),
      tabs_(new QTabWidget) {
  auto *layout = new QVBoxLayout(this);
  layout->addLayout(facts_);
  none_->setWordWrap(true);
  layout->addWidget(none_, 1);
  tabs_->setObjectName("tabs");
  layout->addWidget(tabs_, 1);
  auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
  accept_ = buttons->addButton(acceptText, QDialogButtonBox::AcceptRole);
  help_ = addHelp(*buttons, *tabs_);
  addTabKeys(*tabs_);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  accept_->setDefault(true);
}

void PanelDialog::showPanels(const std::shared_ptr<host::PpdSession> &session) {
  if (tabs_->count() > 0) openTab_ = tabs_->currentWidget()->objectName();
  pages_.reset();
  if (session) pages_ = std::make_unique<PanelPages>(module_, session);
  const auto pages = pages_ ? pages_->pages() : QList<Page *>();
  for (Page *page : pages) {
    tabs_->addTab(page, page->windowTitle());
    page->placeAfter(tabs_->tabBar());
  }
  for (Page *page : pages)
    if (page->objectName() == openTab_) tabs_->setCurrentWidget(page);
  if (pages_) connect(pages_.get(), &PanelPages::asksFor, tabs_, &QTabWidget::setCurrentWidget);
  tabs_->setVisible(!pages.isEmpty());
  none_->setText(tr("This printer has no settings for these panels."));
  none_->setVisible(pages.isEmpty());
  accept_->setEnabled(true);
  help_->setVisible(!pages.isEmpty());
  if (!pages.isEmpty()) tabs_->setFocus();
}

void PanelDialog::showInstead(const QString &text) {
  showPanels(nullptr);
  none_->setText(text);
  accept_->setEnabled(false);
}

void PanelDialog::accept() {
  if (!pages_ || pages_->print()) QDialog::accept();
}

}  // namespace kwopde::dialog
