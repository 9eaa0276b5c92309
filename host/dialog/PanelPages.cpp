#include "host/dialog/PanelPages.h"

#include <QHideEvent>
#include <QScrollArea>
#include <QShowEvent>
#include <QVBoxLayout>
#include <QWhatsThis>

#include "host/dialog/SummaryPage.h"

namespace kwopde::host {

namespace {

QString titleOf(Panel &panel) {
  const std::string *name = panel.panelName();
  return name ? QString::fromStdString(*name) : QString();
}

/// "org.kwopde.mediakind" gives "media".
QString wordFor(std::string_view kind) {
  kind.remove_prefix(kind.rfind('.') + 1);
  if (kind.ends_with("kind")) kind.remove_suffix(4);
  return QString::fromUtf8(kind.data(), static_cast<qsizetype>(kind.size()));
}

/// The widgets below `top` in the order in which the tab key visits them.
QList<QWidget *> focusChain(QWidget *top) {
  QList<QWidget *> chain;
  for (QWidget *next = top->nextInFocusChain(); next != top; next = next->nextInFocusChain())
    if (top->isAncestorOf(next) && next->focusPolicy() != Qt::NoFocus) chain.append(next);
  return chain;
}

}  // namespace

PanelPage::PanelPage(Panel &panel) : panel_(panel), area_(new QScrollArea) {
  setWindowTitle(titleOf(panel));
  setObjectName(wordFor(panel.panelKind()));
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(area_);
  // It scrolls where a large font does not leave the panel room.
  area_->setFrameShape(QFrame::NoFrame);
  area_->setWidgetResizable(true);
  area_->setFocusPolicy(Qt::NoFocus);
  area_->viewport()->setAutoFillBackground(false);
}

QSize PanelPage::sizeHint() const {
  // A panel's usual size, which is not known before its view is made.
  return {fontMetrics().averageCharWidth() * 72, fontMetrics().height() * 24};
}

void PanelPage::showHelp() {
  const QWidget *panelView = view();
  if (panelView && panel_.shouldShowHelp())
    QWhatsThis::showText(mapToGlobal(QPoint(width() / 4, 0)), panelView->whatsThis(), this);
}

void PanelPage::print() {
  panel_.shouldPrint();
  // A panel that nobody has seen has nothing of its own to save.
  if (seen_) panel_.saveValuesAndReturnError(nullptr);
}

void PanelPage::showEvent(QShowEvent *event) {
  QWidget::showEvent(event);
  if (event->spontaneous()) return;
  if (QWidget *panelView = view(); panelView && !seen_) embed(panelView);
  panel_.willShow();
  seen_ = true;
}

void PanelPage::hideEvent(QHideEvent *event) {
  QWidget::hideEvent(event);
  // Left for another tab; a dialog that closes prints or changes nothing.
  if (!event->spontaneous() && window()->isVisible()) panel_.shouldHide();
}

void PanelPage::embed(QWidget *panelView) {
  const auto controls = focusChain(panelView);
  area_->setWidget(panelView);
  panelView->setAutoFillBackground(false);
  // Made late, its controls come last; they belong after the tab bar.
  setFocusPolicy(Qt::TabFocus);  // without one, it has no place in the order
  QWidget *before = this;
  for (QWidget *control : controls) {
    setTabOrder(before, control);
    before = control;
  }
  setFocusPolicy(Qt::NoFocus);
}

QWidget *PanelPage::view() {
  View *const panelView = panel_.panelView();
  return panelView ? static_cast<QWidget *>(panelView->nativeView()) : nullptr;
}

PanelPages::PanelPages(PlugInModule &module, std::shared_ptr<PpdSession> session, QObject *parent)
    : QObject(parent),
      session_(std::move(session)),
      bundle_(module.bundle()),
      plugIn_(module.makePlugIn()) {
  plugIn_->initWithBundle(bundle_.get());
  const std::string type(kPrinterModuleTypeIDStr);
  const PanelList *panels = plugIn_->PDEPanelsForType(&type, session_);
  session_->setPanels(panels);
  if (!panels) return;
  for (const auto &panel : *panels) {
    panel->restoreValuesAndReturnError(nullptr);
    panelPages_.append(new PanelPage(*panel));
  }
  summaryPage_ = new SummaryPage(*panels);
}

PanelPages::~PanelPages() {
  for (const QWidget *page : pages()) delete page;
  session_->setPanels(nullptr);
}

QList<QWidget *> PanelPages::pages() const {
  QList<QWidget *> pages;
  for (const auto &page : panelPages_)
    if (page) pages.append(page);
  if (summaryPage_) pages.append(summaryPage_);
  return pages;
}

void PanelPages::print() {
  for (const auto &page : panelPages_)
    if (page) page->print();
}

}  // namespace kwopde::host
