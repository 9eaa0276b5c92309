#include "dialog/PanelPages.h"

#include <QHideEvent>
#include <QShowEvent>
#include <QWhatsThis>

#include "dialog/SummaryPage.h"
#include "platform/PanelInspector.h"

namespace kwopde::dialog {

namespace {

QString titleOf(Panel &panel) {
  const std::string *name = panel.panelName();
  return name ? QString::fromStdString(*name) : QString();
}

/// Returns a name for the page of `panel` that is the same in every language.
QString nameOf(Panel &panel) {
  std::string_view name = wordOf(panel);
  if (name.empty()) name = panel.panelKind();
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace

PanelPage::PanelPage(Panel &panel) : panel_(panel) {
  setWindowTitle(titleOf(panel));
  setObjectName(nameOf(panel));
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

PanelPages::PanelPages(PlugInModule &module, std::shared_ptr<host::PpdSession> session,
                       QObject *parent)
    : QObject(parent),
      session_(std::move(session)),
      notices_(*session_),
      extension_(module, session_) {
  const PanelList *panels = extension_.open();
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

}  // namespace kwopde::dialog
