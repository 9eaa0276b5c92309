#include "dialog/SummaryPage.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QShowEvent>
#include <QVBoxLayout>
#include <iterator>
#include <map>
#include <utility>

#include "dialog/PlainText.h"
#include "platform/Numbers.h"
#include "platform/PanelInspector.h"

namespace kwopde::dialog {

namespace {

QLabel *labelOf(const std::string &text, bool isBold) {
  QLabel *label = plainLabel(QString::fromStdString(text));
  QFont font;
  if (isBold) font.setBold(true);
  label->setFont(font);
  return label;
}

/// One of the two columns of the page.
class Side {
public:
  /// Adds itself to `sides`.
  Side(QHBoxLayout &sides, const QFontMetrics &metrics)
      : grid_(new QGridLayout), metrics_(metrics) {
    grid_->setHorizontalSpacing(2 * metrics.averageCharWidth());
    grid_->setVerticalSpacing(metrics.height() / 4);
    grid_->setColumnMinimumWidth(0, metrics.averageCharWidth() / 2);
    grid_->setColumnStretch(2, 1);
    auto *column = new QVBoxLayout;
    column->addLayout(grid_);
    column->addStretch();
    sides.addLayout(column, 1);
  }

  int rows() const { return rows_; }

  void add(const SummaryPage::Entry &entry) {
    QLabel *value = labelOf(entry.value, entry.differs);
    value->setWordWrap(true);
    grid_->addWidget(labelOf(entry.title + ":", entry.differs), rows_, 1, Qt::AlignTop);
    grid_->addWidget(value, rows_++, 2);
  }

  void add(const std::string &heading) {
    if (rows_ > 0) grid_->setRowMinimumHeight(rows_++, metrics_.height() / 2);
    grid_->addWidget(labelOf(heading, true), rows_++, 0, 1, 3);
  }

  /// Leaves as many rows empty as `other` has more.
  void alignWith(const Side &other) {
    while (rows_ < other.rows_) grid_->setRowMinimumHeight(rows_++, metrics_.height());
  }

private:
  QGridLayout *grid_;
  const QFontMetrics metrics_;
  int rows_ = 0;
};

}  // namespace

SummaryPage::SummaryPage(const PanelList &panels, const host::PpdSession &session)
    : panels_(panels), session_(session) {
  setWindowTitle(tr("Summary"));
  setObjectName("summary");
}

QString SummaryPage::help() {
  return tr(
      "<p>All that is set on the other tabs. What is other than the printer's defaults comes "
      "first.</p>");
}

void SummaryPage::showEvent(QShowEvent *event) {
  Page::showEvent(event);
  if (!event->spontaneous()) refresh();
}

std::vector<SummaryPage::Section> SummaryPage::sections() const {
  Section changed{tr("Other than the printer's defaults").toStdString(), {}};
  std::vector<Section> sections;
  for (const auto &panel : panels_) {
    const auto summary = panel->summaryInfo();
    const std::string *name = panel->panelName();
    Section section{name ? *name : std::string(), {}};
    std::map<std::string, PanelOption> options;  // by title in the summary
    for (const PanelOption &option : optionsOf(*panel))
      options[option.summary.empty() ? session_.ppd().textOf(option.key)
                                     : std::string(option.summary)] = option;
    for (const auto &[title, value] : summary->entries()) {
      const PanelOption &option = options[title];
      const std::string &key = option.key;
      const auto byDefault = session_.defaultChoice(key);
      // A number of an option that the printer lacks is in the panel's summary, and in no job.
      if (!key.empty() && !byDefault) continue;
      const bool differs = byDefault && session_.markedChoice(key) != byDefault;
      // The panel speaks no language here.
      QString shown = QString::fromStdString(value);
      if (option.kind != PanelOption::Kind::choice) {
        shown.replace('.', QLocale().decimalPoint());
        // A panel tells of a number that was refused, too.
        if (const auto kept = numberMarked(key); kept && kept != leadingDouble(value))
          shown = tr("%1 (the job would print %2)").arg(shown, QLocale().toString(*kept, 'g', 10));
      }
      (differs ? changed : section)
          .entries.push_back(
              {key.empty() ? title : session_.ppd().textOf(key), shown.toStdString(), differs});
    }
    sections.push_back(std::move(section));
  }
  sections.insert(sections.begin(), std::move(changed));
  return sections;
}

std::optional<double> SummaryPage::numberMarked(const std::string &key) const {
  const auto marked = session_.markedChoice(key);
  return marked ? host::choiceNumber(*marked) : std::nullopt;
}

QWidget *SummaryPage::table() const {
  auto *content = new QWidget;
  auto *layout = new QVBoxLayout(content);
  auto *sides = new QHBoxLayout;
  Side left(*sides, fontMetrics());
  Side right(*sides, fontMetrics());
  auto all = sections();
  const Section &changed = all.front();
  if (!changed.entries.empty()) {
    layout->addWidget(labelOf(changed.title, true));
    for (std::size_t i = 0; i < changed.entries.size(); ++i)
      (i < (changed.entries.size() + 1) / 2 ? left : right).add(changed.entries[i]);
    right.alignWith(left);
  }
  for (auto section = std::next(all.begin()); section != all.end(); ++section) {
    if (section->entries.empty()) continue;
    Side &side = right.rows() < left.rows() ? right : left;
    side.add(section->title);
    for (const Entry &entry : section->entries) side.add(entry);
  }
  layout->addLayout(sides);
  layout->addStretch();
  return content;
}

}  // namespace kwopde::dialog
