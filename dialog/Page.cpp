#include "dialog/Page.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

namespace kwopde::dialog {

namespace {

/// The widgets below `top` in the order in which the tab key visits them.
QList<QWidget *> focusChain(QWidget *top) {
  QList<QWidget *> chain;
  for (QWidget *next = top->nextInFocusChain(); next != top; next = next->nextInFocusChain())
    if (top->isAncestorOf(next) && next->focusPolicy() != Qt::NoFocus) chain.append(next);
  return chain;
}

}  // namespace

Page::Page()
    : area_(new QScrollArea),
      remark_(new QLabel),
      layout_(new QVBoxLayout(this)),
      box_(new QFrame),
      notice_(new QLabel),
      undo_(new QPushButton(tr("Undo"))) {
  layout_->setContentsMargins(0, 0, 0, 0);
  layout_->addWidget(area_, 1);
  layout_->addWidget(remark_);
  layout_->addWidget(box_);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setWidgetResizable(true);
  area_->setFocusPolicy(Qt::NoFocus);
  area_->viewport()->setAutoFillBackground(false);
  remark_->setObjectName("remark");
  notice_->setObjectName("notice");
  undo_->setObjectName("undo");
  connect(undo_, &QPushButton::clicked, this, &Page::undoRequested);
  auto *inBox = new QHBoxLayout(box_);
  inBox->addWidget(notice_, 1);
  inBox->addWidget(undo_);
  for (QLabel *label : {remark_, notice_}) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
  }
  // In line with the captions of a panel.
  const QMargins margins(style()->pixelMetric(QStyle::PM_LayoutLeftMargin), 0,
                         style()->pixelMetric(QStyle::PM_LayoutRightMargin),
                         style()->pixelMetric(QStyle::PM_LayoutBottomMargin));
  remark_->setContentsMargins(margins);
  inBox->setContentsMargins(margins);
  remark_->hide();
  box_->hide();
}

QSize Page::sizeHint() const {
  // A panel's usual size, which is not known before its view is made.
  return {fontMetrics().averageCharWidth() * 72, fontMetrics().height() * 29};
}

QSize Page::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 40,
          std::min(fontMetrics().height() * 24, screen()->availableGeometry().height() / 2)};
}

void Page::setHeader(QWidget *header) {
  header_ = header;
  layout_->insertWidget(0, header);
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
  for (QWidget *part : {header_, area_->widget(), static_cast<QWidget *>(box_)}) {
    if (!part) continue;
    for (QWidget *control : focusChain(part)) {
      setTabOrder(before, control);
      before = control;
    }
  }
  setFocusPolicy(Qt::NoFocus);
}

void Page::setNotice(const QString &text, bool canUndo) {
  notice_->setText(text);
  undo_->setVisible(canUndo);
  box_->setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  QAccessibleEvent event(notice_, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

void Page::setRemark(const QString &text) {
  remark_->setText(text);
  remark_->setVisible(!text.isEmpty());
}

void Page::setContent(QWidget *content) {
  area_->setWidget(content);
  content->setAutoFillBackground(false);
  orderFocus();
}

}  // namespace kwopde::dialog
