#include "host/dialog/PanelPages.h"

#include <QHideEvent>
#include <QShowEvent>
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

}  // namespace

PanelPage::PanelPage(Panel &panel) : panel_(panel) {
  setWindowTitle(titleOf(panel));
  setObjectName(wordFor(panel.panelKind()));
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
  Page::showEvent(event);
  if (event->spontaneous()) return;
  if (QWidget *panelView = view(); panelView && !seen_) setContent(panelView);
  panel_.willShow();
  seen_ = true;
}

void PanelPage::hideEvent(QHideEvent *event) {
  Page::hideEvent(event);
  // Left for another tab; a dialog that closes prints or changes nothing.
  if (!event->spontaneous() && window()->isVisible()) panel_.shouldHide();
}

QWidget *PanelPage::view() {
  View *const panelView = panel_.panelView();
  return panelView ? static_cast<QWidget *>(panelView->nativeView()) : nullptr;
}

PanelPages::PanelPages(PlugInModule &module, std::shared_ptr<PpdSession> session, QObject *parent)
    : QObject(parent),
      session_(std::move(session)),
      notices_(*session_),
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
  for (Page *page : pages()) connect(&notices_, &Notices::changed, page, &Page::setNotice);
}

PanelPages::~PanelPages() {
  qDeleteAll(pages());
  session_->setPanels(nullptr);
}

QList<Page *> PanelPages::pages() const {
  QList<Page *> pages;
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
