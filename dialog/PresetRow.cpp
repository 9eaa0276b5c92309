#include "dialog/PresetRow.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

#include "dialog/PlainText.h"
#include "dialog/Question.h"
#include "host/Error.h"
#include "queue/PrintQueue.h"

namespace kwopde::dialog {

namespace {

/// Returns what the server answers; none when a person cancelled, or was told over `window` why it
/// did not.
template <class Ask>
auto tryTo(QWidget *window, Ask ask) -> decltype(askAndWait(window, ask)) {
  try {
    return askAndWait(window, std::move(ask));
  } catch (const host::Error &error) {
    warn(window, QString::fromStdString(error.what()));
    return {};
  }
}

}  // namespace

PresetRow::PresetRow(const QString &destination, std::vector<std::string> names, PanelPages &pages,
                     Settings settings, QWidget *window)
    : queue_(destination.section('/', 0, 0).toStdString()),
      current_(destination.section('/', 1).toStdString()),
      pages_(pages),
      settings_(std::move(settings)),
      window_(window),
      names_(std::move(names)),
      menu_(new QMenu(window)) {
  connect(this, &QObject::destroyed, menu_, &QObject::deleteLater);
  connect(menu_, &QMenu::aboutToShow, this, &PresetRow::fillMenu);
  if (!current_.empty() && std::find(names_.begin(), names_.end(), current_) == names_.end())
    names_.push_back(current_);
  names_.insert(names_.begin(), std::string());
  for (const std::string &name : names_) titles_.appendRow(new QStandardItem(titleOf(name)));
  for (Page *page : pages.pages()) page->setHeader(makeWidget());
  connect(&pages, &PanelPages::changed, this, &PresetRow::showChanged);
  showChanged();
}

QWidget *PresetRow::makeWidget() {
  auto *row = new QWidget;
  auto *layout = new QHBoxLayout(row);
  const QStyle &style = *row->style();
  layout->setContentsMargins(style.pixelMetric(QStyle::PM_LayoutLeftMargin),
                             style.pixelMetric(QStyle::PM_LayoutTopMargin),
                             style.pixelMetric(QStyle::PM_LayoutRightMargin), 0);
  QLabel *caption = plainLabel(tr("Preset:"));
  auto *names = new QComboBox;
  names->setObjectName("presets");
  names->setModel(&titles_);
  names->setCurrentIndex(
      static_cast<int>(std::find(names_.begin(), names_.end(), current_) - names_.begin()));
  names->setAccessibleName(tr("Preset"));
  caption->setBuddy(names);
  connect(names, qOverload<int>(&QComboBox::activated), this, &PresetRow::choose);
  auto *more = new QToolButton;
  more->setObjectName("presetMenu");
  more->setText("…");
  more->setToolTip(tr("Keep these settings, or go back to the printer's"));
  more->setAccessibleName(tr("Preset menu"));
  more->setMenu(menu_);
  more->setPopupMode(QToolButton::InstantPopup);
  more->setFocusPolicy(Qt::StrongFocus);
  layout->addWidget(caption);
  layout->addWidget(names, 1);
  layout->addWidget(more);
  return row;
}

void PresetRow::showChanged() {
  const auto index = std::find(names_.begin(), names_.end(), current_) - names_.begin();
  const QString title = titleOf(current_);
  titles_.item(static_cast<int>(index))
      ->setText(pages_.isChanged() ? tr("%1 (changed)").arg(title) : title);
}

void PresetRow::fillMenu() {
  menu_->clear();
  menu_->addAction(tr("Save As…"), this, [this] { saveAs(); })->setObjectName("saveAs");
  const QString title = QString(titleOf(current_)).replace('&', "&&");
  if (!current_.empty())
    menu_->addAction(tr("Save “%1”").arg(title), this, [this] { saveAs(current_); })
        ->setObjectName("save");
  menu_->addAction(tr("Save as My Settings"), this, [this] { saveAs(std::string()); })
      ->setObjectName("saveAsDefault");
  menu_->addSeparator();
  menu_->addAction(tr("Reset to the Printer's Defaults"), this, &PresetRow::reset)
      ->setObjectName("reset");
  if (current_.empty()) return;
  menu_->addAction(tr("Delete “%1”…").arg(title), this, &PresetRow::remove)
      ->setObjectName("delete");
}

void PresetRow::choose(int index) {
  emit chosen(destinationOf(names_[static_cast<std::size_t>(index)]));
}

void PresetRow::saveAs() {
  QString text = QString::fromStdString(current_);
  for (;;) {
    bool accepted = false;
    text = QInputDialog::getText(window_, tr("Save Preset"), tr("Name:"), QLineEdit::Normal, text,
                                 &accepted)
               .simplified();
    if (!accepted) return;
    std::string name = QString(text).replace(' ', '-').toStdString();
    if (!host::Presets::isName(name)) {
      warn(window_, tr("A preset's name has letters, digits and marks other than / and #."));
      continue;
    }
    // CUPS tells no names apart by letter case.
    const auto known = std::find_if(names_.begin(), names_.end(), [&](const std::string &other) {
      return host::isSameKey(other, name);
    });
    if (known != names_.end()) name = *known;
    if (known == names_.end() || name == current_ ||
        confirm(window_, tr("Replace the preset “%1”?").arg(QString::fromStdString(name)),
                tr("Replace")))
      return saveAs(name);
  }
}

void PresetRow::saveAs(const std::string &name) {
  const auto settings = settings_();
  if (settings && act([=](host::Presets &presets) { presets.save(name, *settings); }))
    emit chosen(destinationOf(name));
}

bool PresetRow::save(const std::vector<host::OptionChoice> &options) {
  return act([name = current_, options](host::Presets &presets) { presets.save(name, options); });
}

void PresetRow::reset() {
  const auto ask = [queue = queue_](const host::GoesOn &goesOn) {
    return host::PrintQueue(queue, goesOn).defaults(goesOn);
  };
  if (const auto defaults = tryTo(window_, ask)) pages_.reset(*defaults);
}

void PresetRow::remove() {
  if (confirm(window_, tr("Delete the preset “%1”?").arg(titleOf(current_)), tr("Delete")) &&
      act([name = current_](host::Presets &presets) { presets.remove(name); }))
    emit chosen(destinationOf({}));
}

bool PresetRow::act(const std::function<void(host::Presets &)> &action) {
  return tryTo(window_,
               [=, queue = queue_](const host::GoesOn &goesOn) {
                 host::Presets presets(queue, goesOn);
                 action(presets);
                 return true;
               })
      .has_value();
}

QString PresetRow::destinationOf(const std::string &name) const {
  return QString::fromStdString(name.empty() ? queue_ : queue_ + '/' + name);
}

QString PresetRow::titleOf(const std::string &name) const {
  return name.empty() ? tr("My settings") : QString::fromStdString(name);
}

}  // namespace kwopde::dialog
