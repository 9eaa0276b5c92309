#include "dialog/PlainText.h"

#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QtDebug>
#include <string>

#include "platform/Escaped.h"

namespace kwopde::dialog {

namespace {

/// A message that stands in front of a window. An application may delete that window, and with it
/// the message, before it is answered.
class Message {
public:
  Message(QMessageBox::Icon icon, QWidget *window, const QString &text,
          QMessageBox::StandardButton button)
      : box_(new QMessageBox(icon, window->windowTitle(), text, button, window)) {
    box_->setTextFormat(Qt::PlainText);
  }
  Message(const Message &) = delete;
  Message &operator=(const Message &) = delete;
  ~Message() { delete box_; }

  QAbstractButton *add(const QString &verb) {
    return box_->addButton(verb, QMessageBox::AcceptRole);
  }

  /// Waits for the answer. Returns the button; null when the window is gone.
  QAbstractButton *answer() {
    box_->exec();
    return box_ ? box_->clickedButton() : nullptr;
  }

private:
  QPointer<QMessageBox> box_;
};

}  // namespace

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
  Message(QMessageBox::Warning, window, text, QMessageBox::Close).answer();
}

void tell(const QWidget &closing, const QString &text) {
  log(text.toUtf8().constData());
  auto *box = new QMessageBox(QMessageBox::Warning, closing.windowTitle(), text, QMessageBox::Close,
                              closing.parentWidget());
  box->setTextFormat(Qt::PlainText);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

bool confirm(QWidget *window, const QString &question, const QString &verb) {
  Message message(QMessageBox::Question, window, question, QMessageBox::Cancel);
  const QAbstractButton *const yes = message.add(verb);
  return message.answer() == yes;
}

}  // namespace kwopde::dialog
