#include "qt/QtControls.h"

#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "qt/NumberSlider.h"

namespace kwopde::qt {

namespace {

QString fromUtf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Whether an ampersand in the text of `widget` marks a mnemonic.
bool showsMnemonic(const QWidget &widget) {
  const auto *label = qobject_cast<const QLabel *>(&widget);
  return label && label->buddy();
}

/// What a number begins with that is typed in the language of now. Made once for each, since that
/// takes more than showing a dialog's tab.
const QRegularExpression &typedNumber() {
  static QString point;
  static QRegularExpression start;
  if (const QString now = QLocale().decimalPoint(); now != point) {
    point = now;
    start.setPattern("^\\s*[-+]?[\\d.,'\u2019\u00a0\u202f" + QRegularExpression::escape(point) +
                     "]*\\d");
  }
  return start;
}

/// Returns `typed` with the number that it starts with in machine text: "1.234,5 %" typed in a
/// German session is "1234.5 %". What is no number there stays as it is.
QString machineText(const QString &typed) {
  const auto number = typedNumber().match(typed);
  bool isNumber = false;
  const double value = QLocale().toDouble(number.captured().trimmed(), &isNumber);
  if (!isNumber) return typed;
  return QString::number(value, 'f', QLocale::FloatingPointShortest) +
         typed.mid(number.capturedEnd());
}

}  // namespace

QString peoplesText(const QString &text, int decimals) {
  static const QRegularExpression start("^(\\s*[-+]?\\d+)(?:\\.(\\d+))?(?![\\d.eE])");
  const auto number = start.match(text);
  if (!number.hasMatch()) return text;
  const QString digits = number.captured(2).leftJustified(decimals, '0');
  const QString fraction = digits.isEmpty() ? QString() : QLocale().decimalPoint() + digits;
  return number.captured(1) + fraction + text.mid(number.capturedEnd());
}

void QtPopUpButton::removeAllItems() {
  clear();
  if (widget_) widget_->clear();
}

void QtPopUpButton::selectItemAtIndex(int index) {
  if (widget_ && itemAtIndex(index)) widget_->setCurrentIndex(index);
}

int QtPopUpButton::indexOfSelectedItem() const {
  return widget_ ? widget_->currentIndex() : 0;
}

void QtPopUpButton::addItem(MenuItem item) {
  if (!widget_) return;
  widget_->addItem(fromUtf8(item.title.value_or("")));
  MenuItems::addItem(std::move(item));
}

double QtSlider::doubleValue() const {
  // The position, which leads the value while an action is being sent.
  return widget_ ? widget_->sliderPosition() / NumberSlider::stepsPerUnit(*widget_) : 0;
}

void QtSlider::setDoubleValue(double value) {
  if (!widget_ || std::isnan(value)) return;
  const double steps = std::round(value * NumberSlider::stepsPerUnit(*widget_));
  widget_->setValue(
      static_cast<int>(std::clamp<double>(steps, widget_->minimum(), widget_->maximum())));
}

double QtSlider::minValue() const {
  return widget_ ? widget_->minimum() / NumberSlider::stepsPerUnit(*widget_) : 0;
}

double QtSlider::maxValue() const {
  return widget_ ? widget_->maximum() / NumberSlider::stepsPerUnit(*widget_) : 0;
}

std::string QtTextField::stringValue() const {
  if (!widget_) return {};
  QString text = widget_->property("text").toString();
  // "&x" shows as an underlined x, "&&" as an ampersand.
  static const QRegularExpression mnemonic("&(.)");
  if (showsMnemonic(*widget_)) text.replace(mnemonic, "\\1");
  if (qobject_cast<QLineEdit *>(widget_)) text = machineText(text);
  return text.toStdString();
}

void QtTextField::setStringValue(std::string_view text) {
  if (!widget_) return;
  QString shown = fromUtf8(text);
  if (auto *label = qobject_cast<QLabel *>(widget_)) label->setTextFormat(Qt::PlainText);
  if (showsMnemonic(*widget_)) shown.replace('&', "&&");
  if (qobject_cast<QLineEdit *>(widget_))
    shown = peoplesText(shown, widget_->property("decimals").toInt());
  widget_->setProperty("text", shown);
}

TextField *QtPanelView::viewWithTag(int tag) {
  if (!widget_) return nullptr;
  for (QWidget *child : widget_->findChildren<QWidget *>()) {
    const QVariant property = child->property("tag");
    if (!property.isValid() || property.toInt() != tag) continue;
    if (auto *field = dynamic_cast<TextField *>(control(child).get())) return field;
  }
  return nullptr;
}

std::shared_ptr<View> QtPanelView::control(QWidget *widget) {
  return controls_.control(widget, [&]() -> std::shared_ptr<View> {
    if (auto *comboBox = qobject_cast<QComboBox *>(widget))
      return std::make_shared<QtPopUpButton>(comboBox);
    if (auto *slider = qobject_cast<QSlider *>(widget)) return std::make_shared<QtSlider>(slider);
    if (qobject_cast<QLineEdit *>(widget) || qobject_cast<QLabel *>(widget))
      return std::make_shared<QtTextField>(widget);
    return nullptr;
  });
}

bool connectAction(QWidget *widget, std::function<void()> action) {
  // Signals that only a user's doing sends.
  if (auto *comboBox = qobject_cast<QComboBox *>(widget))
    return QObject::connect(comboBox, qOverload<int>(&QComboBox::activated), comboBox,
                            std::move(action));
  if (auto *slider = qobject_cast<QSlider *>(widget))
    return QObject::connect(slider, &QSlider::actionTriggered, slider, std::move(action));
  return false;
}

}  // namespace kwopde::qt
