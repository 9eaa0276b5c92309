#include "dialog/PanelPages.h"

#include <QComboBox>
#include <QHideEvent>
#include <QLineEdit>
#include <QShowEvent>
#include <QWhatsThis>
#include <algorithm>

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

PanelPage::PanelPage(Panel &panel, ppd_file_t *ppd) : panel_(panel), ppd_(ppd) {
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
}

QWidget *PanelPage::controlOf(const std::string &key) const {
  for (const PanelOption &option : optionsOf(panel_))
    if (option.key == key) return widgetAt(option.field.empty() ? option.popUp : option.field);
  return nullptr;
}

void PanelPage::showEvent(QShowEvent *event) {
  Page::showEvent(event);
  if (event->spontaneous()) return;
  QWidget *panelView = view();
  panel_.willShow();
  if (panelView && !seen_) showContent(panelView);
  seen_ = true;
}

void PanelPage::showContent(QWidget *panelView) {
  setContent(panelView);
  QStringList missing;
  for (const PanelOption &option : optionsOf(panel_)) {
    const bool printerHasIt = ppdFindOption(ppd_, option.key.c_str()) != nullptr;
    if (auto *menu = qobject_cast<QComboBox *>(widgetAt(option.popUp)); menu && !printerHasIt)
      menu->setPlaceholderText(tr("Not available"));
    auto *field = qobject_cast<QLineEdit *>(widgetAt(option.field));
    if (!field) continue;
    const QWidget *named = widgetAt(option.slider.empty() ? option.field : option.slider);
    if (!printerHasIt) missing.append(named->accessibleName());
    // A panel reads its fields when it is left. Somebody who goes on to a menu of the same panel
    // has left the field too.
    connect(field, &QLineEdit::editingFinished, this, [this, field] {
      if (!field->isModified()) return;
      panel_.shouldHide();
      panel_.willShow();
      field->setModified(false);
    });
  }
  if (!missing.isEmpty())
    setRemark(tr("This printer does not adjust: %1.").arg(missing.join(", ")));
}

QWidget *PanelPage::widgetAt(std::string_view outlet) const {
  const PanelInspector *inspector = inspectorOf(panel_);
  const View *control = inspector ? inspector->control(outlet) : nullptr;
  return control ? static_cast<QWidget *>(control->nativeView()) : nullptr;
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
  panels_ = extension_.open();
  if (!panels_) return;
  for (const auto &panel : *panels_) {
    panel->restoreValuesAndReturnError(nullptr);
    panelPages_.append(new PanelPage(*panel, session_->ppdFile()));
  }
  summaryPage_ = new SummaryPage(*panels_, session_->ppdFile());
  for (Page *page : pages()) {
    connect(&notices_, &Notices::changed, page, &Page::setNotice);
    connect(page, &Page::undoRequested, this, &PanelPages::undo);
  }
  connect(&notices_, &Notices::marked, this, &PanelPages::changed);
  notices_.tell();
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

void PanelPages::undo() {
  notices_.undo();
  showMarks();
}

void PanelPages::reset(const std::vector<host::OptionChoice> &queueDefaults) {
  session_->markDefaults(queueDefaults);
  showMarks();
}

void PanelPages::showMarks() {
  // A panel that hears of a change shows it after an action of its own only.
  if (panels_)
    for (const auto &panel : *panels_) panel->restoreValuesAndReturnError(nullptr);
  if (summaryPage_ && summaryPage_->isVisible()) summaryPage_->refresh();
}

bool PanelPages::print() {
  for (const auto &page : panelPages_)
    if (page) page->print();
  const auto refused = notices_.refusals();
  const bool isNews = std::any_of(refused.begin(), refused.end(), [&](const auto &refusal) {
    return std::find(told_.begin(), told_.end(), refusal) == told_.end();
  });
  told_ = refused;
  if (!isNews) return true;
  for (const auto &page : panelPages_) {
    QWidget *control = page ? page->controlOf(refused.front().key) : nullptr;
    if (!control) continue;
    emit asksFor(page);
    page->setNotice(refusals().join('\n'));
    control->setFocus();
    if (auto *field = qobject_cast<QLineEdit *>(control)) field->selectAll();
  }
  return false;
}

QStringList PanelPages::refusals() const {
  QStringList sentences;
  for (const auto &refusal : notices_.refusals()) sentences.append(refusal.sentence);
  return sentences;
}

}  // namespace kwopde::dialog
