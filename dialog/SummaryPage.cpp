#include "dialog/SummaryPage.h"

#include <QGridLayout>
#include <QLabel>
#include <QShowEvent>
#include <set>

#include "dialog/PlainText.h"
#include "platform/PanelInspector.h"

namespace kwopde::dialog {

namespace {

QLabel *labelOf(const std::string &text) {
  return plainLabel(QString::fromStdString(text));
}

QLabel *heading(const std::string &text) {
  QLabel *label = labelOf(text);
  QFont font = label->font();
  font.setBold(true);
  label->setFont(font);
  return label;
}

}  // namespace

SummaryPage::SummaryPage(const PanelList &panels, ppd_file_t *ppd) : panels_(panels), ppd_(ppd) {
  setWindowTitle(tr("Summary"));
  setObjectName("summary");
}

void SummaryPage::showEvent(QShowEvent *event) {
  Page::showEvent(event);
  if (!event->spontaneous()) refresh();
}

QWidget *SummaryPage::table() {
  auto *content = new QWidget;
  auto *grid = new QGridLayout(content);
  grid->setHorizontalSpacing(2 * fontMetrics().averageCharWidth());
  grid->setVerticalSpacing(fontMetrics().height() / 4);
  grid->setColumnMinimumWidth(0, fontMetrics().averageCharWidth());
  grid->setColumnStretch(2, 1);
  int row = 0;
  for (const auto &panel : panels_) {
    const auto summary = panel->summaryInfo();
    const std::string *name = panel->panelName();
    if (row > 0) grid->setRowMinimumHeight(row++, fontMetrics().height() / 2);
    grid->addWidget(heading(name ? *name : std::string()), row++, 0, 1, 3);
    // A number of an option that the printer lacks is in the panel's summary, and in no job.
    std::set<std::string_view> missing;
    for (const PanelOption &option : optionsOf(*panel))
      if (!ppdFindOption(ppd_, option.key.c_str())) missing.insert(option.summary);
    for (const auto &[title, value] : summary->entries()) {
      if (missing.contains(title)) continue;
      grid->addWidget(labelOf(title + ":"), row, 1);
      grid->addWidget(labelOf(value), row++, 2);
    }
  }
  grid->setRowStretch(row, 1);
  return content;
}

}  // namespace kwopde::dialog
