#include "dialog/Page.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSlider>
#include <QStyle>
#include <QVBoxLayout>
#include <QWhatsThis>
#include <algorithm>

#include "dialog/PlainText.h"

namespace kwopde::dialog {

namespace {

/// The height of a page, in lines: that of the panel with the most options, which is not known
/// before its view is made.
constexpr int kLines = 26;

/// The widgets below `top` in the order in which the tab key visits them.
QList<QWidget *> focusChain(QWidget *top) {
  QList<QWidget *> chain;
  for (QWidget *next = top->nextInFocusChain(); next != top; next = next->nextInFocusChain())
    if (top->isAncestorOf(next) && next->focusPolicy() != Qt::NoFocus && !next->focusProxy())
      chain.append(next);
  return chain;
}

/// Margins of the lines below the content, in line with the captions of a panel.
QMargins lineMargins(const QStyle &style) {
  return {style.pixelMetric(QStyle::PM_LayoutLeftMargin), 0,
          style.pixelMetric(QStyle::PM_LayoutRightMargin),
          style.pixelMetric(QStyle::PM_LayoutBottomMargin)};
}

}  // namespace

Page::Page()
    : area_(new QScrollArea),
      remark_(plainLabel({})),
      layout_(new QVBoxLayout(this)),
      box_(new QFrame),
      notice_(plainLabel({})),
      undo_(new QPushButton(tr("Undo"))),
      last_(new QFrame),
      differences_(plainLabel({})) {
  layout_->setContentsMargins(0, 0, 0, 0);
  layout_->addWidget(area_, 1);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setWidgetResizable(true);
  area_->setFocusPolicy(Qt::NoFocus);
  area_->viewport()->setAutoFillBackground(false);
  remark_->setObjectName("remark");
  notice_->setObjectName("notice");
  undo_->setObjectName("undo");
  connect(undo_, &QPushButton::clicked, this, &Page::undoRequested);
  differences_->setObjectName("differences");
  auto *reset = new QPushButton(tr("Reset Page"));
  reset->setObjectName("resetPage");
  connect(reset, &QPushButton::clicked, this, &Page::resetRequested);
  addLine(box_, notice_, undo_);
  addLine(last_, differences_, reset);
  for (QLabel *label : {remark_, notice_, differences_}) label->setWordWrap(true);
  remark_->setContentsMargins(lineMargins(*style()));
  for (QWidget *line : {static_cast<QWidget *>(remark_), static_cast<QWidget *>(box_),
                        static_cast<QWidget *>(last_)}) {
    layout_->addWidget(line);
    line->hide();
  }
}

void Page::addLine(QFrame *line, QLabel *text, QPushButton *button) {
  auto *layout = new QHBoxLayout(line);
  layout->addWidget(text, 1);
  layout->addWidget(button);
  layout->setContentsMargins(lineMargins(*style()));
}

QSize Page::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 80, fontMetrics().height() * kLines};
}

QSize Page::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 40,
          std::min(fontMetrics().height() * kLines, screen()->availableGeometry().height() / 2)};
}

void Page::setHeader(QWidget *header) {
  header_ = header;
  layout_->insertWidget(0, header);
  keepWheelFrom(header);
  orderFocus();
}

void Page::placeAfter(QWidget *before) {
  setFocusPolicy(Qt::TabFocus);  // without one, the page has no place in the order
  setTabOrder(before, this);
  orderFocus();
}

void Page::orderFocus() {
  setFocusPolicy(Qt::TabFocus);
  QWidget *before = this;
  for (QWidget *part :
       {header_, area_->widget(), static_cast<QWidget *>(box_), static_cast<QWidget *>(last_)}) {
    if (!part) continue;
    for (QWidget *control : focusChain(part)) {
      setTabOrder(before, control);
      before = control;
    }
  }
  setFocusPolicy(Qt::NoFocus);
}

void Page::showHelp() {
  const QString text = help();
  if (!text.isEmpty()) QWhatsThis::showText(mapToGlobal(QPoint(width() / 4, 0)), text, this);
}

void Page::setNotice(const QString &text, bool canUndo) {
  notice_->setText(text);
  undo_->setVisible(canUndo);
  box_->setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  QAccessibleEvent event(notice_, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

void Page::setDifferences(int count) {
  QSizePolicy keepsRoom = last_->sizePolicy();
  keepsRoom.setRetainSizeWhenHidden(true);
  last_->setSizePolicy(keepsRoom);
  last_->setVisible(count > 0);
  differences_->setText(count == 1
                            ? tr("One setting differs from the printer's defaults.")
                            : tr("%1 settings differ from the printer's defaults.").arg(count));
}

void Page::setRemark(const QString &text) {
  remark_->setText(text);
  remark_->setVisible(!text.isEmpty());
}

void Page::setContent(QWidget *content) {
  if (QLayout *layout = content->layout()) {
    QMargins margins = lineMargins(*style());
    margins.setTop(style()->pixelMetric(QStyle::PM_LayoutTopMargin));
    layout->setContentsMargins(margins);
  }
  area_->setWidget(content);
  content->setAutoFillBackground(false);
  keepWheelFrom(content);
  orderFocus();
}

void Page::keepWheelFrom(QWidget *part) {
  for (QWidget *control : part->findChildren<QWidget *>()) {
    if (!qobject_cast<QComboBox *>(control) && !qobject_cast<QSlider *>(control) &&
        !qobject_cast<QAbstractSpinBox *>(control))
      continue;
    control->setFocusPolicy(Qt::StrongFocus);  // not by the wheel
    control->installEventFilter(this);
  }
}

bool Page::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
    return QWidget::eventFilter(watched, event);
  event->ignore();
  return true;
}

}  // namespace kwopde::dialog
