#include "dialog/PanelPages.h"

#include <QHideEvent>
#include <QLineEdit>
#include <QShowEvent>
#include <algorithm>

#include "dialog/OptionRow.h"
#include "dialog/SummaryPage.h"
#include "host/TraceTo.h"
#include "platform/PanelInspector.h"

namespace kwopde::dialog {

namespace {

/// The switch of the sharpen panel's numbers.
constexpr const char *kFilter = "sharpnessEnabled";

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

PanelPage::PanelPage(Panel &panel, const host::PpdSession &session)
    : panel_(panel), session_(session) {
  setWindowTitle(titleOf(panel));
  setObjectName(nameOf(panel));
}

QString PanelPage::help() {
  const QWidget *panelView = view();
  return panelView && panel_.shouldShowHelp() ? panelView->whatsThis() : QString();
}

void PanelPage::print() {
  panel_.shouldPrint();
}

std::set<std::string> PanelPage::keys() const {
  std::set<std::string> keys;
  for (const PanelOption &option : optionsOf(panel_)) keys.insert(option.key);
  return keys;
}

QWidget *PanelPage::controlOf(const std::string &key) const {
  const PanelInspector *inspector = inspectorOf(panel_);
  for (const PanelOption &option : optionsOf(panel_)) {
    if (option.key != key) continue;
    const View *control = inspector->control(option.field.empty() ? option.popUp : option.field);
    return control ? static_cast<QWidget *>(control->nativeView()) : nullptr;
  }
  return nullptr;
}

void PanelPage::showEvent(QShowEvent *event) {
  Page::showEvent(event);
  if (event->spontaneous()) return;
  QWidget *panelView = view();
  if (panelView && rows_.isEmpty()) showContent(panelView);
  panel_.willShow();
  showDifferences();
}

void PanelPage::showContent(QWidget *panelView) {
  for (const PanelOption &option : optionsOf(panel_)) {
    auto *row = new OptionRow(panel_, option, session_, this);
    rows_.append(row);
    connect(row, &OptionRow::edited, this, &PanelPage::showDifferences);
    connect(row, &OptionRow::finished, this, &PanelPage::settle);
  }
  setContent(panelView);
}

QString PanelPage::remark() const {
  QStringList sentences;
  QStringList missing;
  for (const OptionRow *row : rows_)
    if (!row->isAvailable() && !row->number().isEmpty()) missing.append(row->number());
  if (!missing.isEmpty())
    sentences.append(tr("This printer does not adjust: %1.").arg(missing.join(", ")));
  if (keys().contains(kFilter) && host::choosesNothing(session_.markedChoice(kFilter).value_or("")))
    sentences.append(tr("The numbers have no effect while the filter is off."));
  return sentences.join(' ');
}

void PanelPage::settle() {
  // A panel reads its fields when it is left. Somebody who goes on to a menu of the same panel has
  // left the field too.
  panel_.shouldHide();
  panel_.willShow();
}

void PanelPage::showDifferences() {
  if (!isVisible()) return;  // it tells them when it is shown
  for (OptionRow *row : rows_) row->refresh();
  setRemark(remark());
  setDifferences(static_cast<int>(std::count_if(
      rows_.begin(), rows_.end(), [](const OptionRow *row) { return row->differs(); })));
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
  log_.emplace(host::traceSinkOf(module), *session_);
  for (const auto &panel : *panels_) {
    panel->restoreValuesAndReturnError(nullptr);
    panelPages_.append(new PanelPage(*panel, *session_));
  }
  summaryPage_ = new SummaryPage(*panels_, *session_);
  for (Page *page : pages()) {
    connect(&notices_, &Notices::changed, page, &Page::setNotice);
    connect(page, &Page::undoRequested, this, &PanelPages::undo);
  }
  for (PanelPage *page : panelPages_) {
    connect(&notices_, &Notices::marked, page, &PanelPage::showDifferences);
    connect(page, &Page::resetRequested, this, [this, page] { reset(*page); });
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
  session_->setQueueDefaults(queueDefaults);
  session_->markDefaults(session_->panelKeys());
  showMarks();
}

void PanelPages::reset(const PanelPage &page) {
  session_->markDefaults(page.keys());
  showMarks();
}

void PanelPages::showMarks() {
  // A panel that hears of a change shows it after an action of its own only.
  if (panels_)
    for (const auto &panel : *panels_) panel->restoreValuesAndReturnError(nullptr);
  for (const auto &page : panelPages_)
    if (page) page->showDifferences();
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
