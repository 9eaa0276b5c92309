#include "dialog/PlainText.h"

#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QtDebug>
#include <string>

#include "platform/Escaped.h"

namespace kwopde::dialog {

QLabel *plainLabel(const QString &text) {
  auto *label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment((QGuiApplication::isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) |
                      Qt::AlignAbsolute | Qt::AlignVCenter);
  return label;
}

void showPlainly(QWidget &window) {
  for (QLabel *label : window.findChildren<QLabel *>()) label->setTextFormat(Qt::PlainText);
}

void log(const char *text) {
  std::string line;
  appendEscaped(line, text);
  qWarning("kwopde: %s", line.c_str());
}

void warn(QWidget *window, const QString &text) {
  QMessageBox box(QMessageBox::Warning, window->windowTitle(), text, QMessageBox::Close, window);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool confirm(QWidget *window, const QString &question, const QString &verb) {
  QMessageBox box(QMessageBox::Question, window->windowTitle(), question, QMessageBox::Cancel,
                  window);
  box.setTextFormat(Qt::PlainText);
  QAbstractButton *yes = box.addButton(verb, QMessageBox::AcceptRole);
  box.exec();
  return box.clickedButton() == yes;
}

}  // namespace kwopde::dialog
