#include "dialog/Page.h"

#include <QAccessible>
#include <QLabel>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

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

Page::Page() : area_(new QScrollArea), remark_(new QLabel), notice_(new QLabel) {
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(area_, 1);
  layout->addWidget(remark_);
  layout->addWidget(notice_);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setWidgetResizable(true);
  area_->setFocusPolicy(Qt::NoFocus);
  area_->viewport()->setAutoFillBackground(false);
  remark_->setObjectName("remark");
  notice_->setObjectName("notice");
  for (QLabel *label : {remark_, notice_}) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    // In line with the captions of a panel.
    label->setContentsMargins(style()->pixelMetric(QStyle::PM_LayoutLeftMargin), 0,
                              style()->pixelMetric(QStyle::PM_LayoutRightMargin),
                              style()->pixelMetric(QStyle::PM_LayoutBottomMargin));
    label->hide();
  }
}

QSize Page::sizeHint() const {
  // A panel's usual size, which is not known before its view is made.
  return {fontMetrics().averageCharWidth() * 72, fontMetrics().height() * 24};
}

void Page::setNotice(const QString &text) {
  notice_->setText(text);
  notice_->setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  QAccessibleEvent event(notice_, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

void Page::setRemark(const QString &text) {
  remark_->setText(text);
  remark_->setVisible(!text.isEmpty());
}

void Page::setContent(QWidget *content) {
  const auto controls = focusChain(content);
  area_->setWidget(content);
  content->setAutoFillBackground(false);
  // Made late, its controls come last; they belong after the tab bar.
  setFocusPolicy(Qt::TabFocus);  // without one, the page has no place in the order
  QWidget *before = this;
  for (QWidget *control : controls) {
    setTabOrder(before, control);
    before = control;
  }
  setFocusPolicy(Qt::NoFocus);
}

}  // namespace kwopde::dialog
