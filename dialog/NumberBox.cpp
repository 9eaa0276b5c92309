#include "dialog/NumberBox.h"

#include <QEvent>
#include <QLayout>
#include <QLineEdit>
#include <QStyle>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

#include "platform/Numbers.h"

namespace kwopde::dialog {

NumberBox::NumberBox(QLineEdit &field, TextField &text, std::optional<host::NumberRange> range,
                     std::vector<double> only)
    : QAbstractSpinBox(field.parentWidget()),
      field_(field),
      text_(text),
      range_(range),
      only_(std::move(only)),
      unit_(new QLabel(field.property("unit").toString(), &field)) {
  setObjectName(field.objectName() + "Box");
  setAccessibleName(field.accessibleName());
  setAccelerated(true);
  setSizePolicy(field.sizePolicy());
  // In the field's place, and the field behind: Qt loses widgets where a child comes first.
  setTabOrder(&field, this);
  setTabOrder(this, &field);
  if (QLayout *layout = parentWidget()->layout()) delete layout->replaceWidget(&field, this);
  setLineEdit(&field);
  setAlignment(field.alignment());
  unit_->setTextFormat(Qt::PlainText);
  unit_->setAttribute(Qt::WA_TransparentForMouseEvents);
  field.installEventFilter(this);
  setEnabled(field.isEnabled());
  connect(&field, &QLineEdit::textEdited, this, &NumberBox::edited);
  connect(&field, &QLineEdit::textChanged, this, &NumberBox::placeUnit);
}

double NumberBox::minimum() const {
  return range_ ? range_->minimum : std::numeric_limits<double>::lowest();
}

double NumberBox::maximum() const {
  return range_ ? range_->maximum : std::numeric_limits<double>::max();
}

double NumberBox::singleStep() const {
  return std::pow(10, -field_.property("decimals").toInt());
}

void NumberBox::setValue(double number) {
  const std::string before = text_.stringValue();
  const auto lastDigit = before.find_last_of("0123456789");
  const std::string rest = lastDigit == before.npos ? std::string() : before.substr(lastDigit + 1);
  text_.setStringValue(shortestText(number) + rest);
  field_.setModified(true);
  field_.selectAll();
  emit edited();
}

void NumberBox::stepBy(int steps) {
  setValue(std::clamp(next(steps), minimum(), maximum()));
}

double NumberBox::next(int steps) const {
  if (only_.empty()) {
    // In whole steps: a decimal one has no exact value.
    const double stepsPerUnit = std::round(1 / singleStep());
    return (std::round(value() * stepsPerUnit) + steps) / stepsPerUnit;
  }
  const auto [first, behind] = std::equal_range(only_.begin(), only_.end(), value());
  const auto from = steps > 0 ? behind - only_.begin() - 1 : first - only_.begin();
  const auto index = std::clamp<std::ptrdiff_t>(from + steps, 0, std::ssize(only_) - 1);
  return only_[static_cast<std::size_t>(index)];
}

QAbstractSpinBox::StepEnabled NumberBox::stepEnabled() const {
  StepEnabled enabled;
  enabled.setFlag(StepUpEnabled, value() < maximum());
  enabled.setFlag(StepDownEnabled, value() > minimum());
  return enabled;
}

QSize NumberBox::sizeHint() const {
  if (sizeHint_.isValid()) return sizeHint_;
  const QSize empty = QAbstractSpinBox::sizeHint();
  const int letters = fontMetrics().horizontalAdvance("-1000.00 ") + unit_->sizeHint().width();
  return sizeHint_ = {empty.width() + letters, empty.height()};
}

void NumberBox::changeEvent(QEvent *event) {
  sizeHint_ = QSize();  // of a font or a style
  QAbstractSpinBox::changeEvent(event);
}

bool NumberBox::eventFilter(QObject *watched, QEvent *event) {
  if (watched == &field_ && event->type() == QEvent::EnabledChange) setEnabled(field_.isEnabled());
  if (watched == &field_ && event->type() == QEvent::Resize) placeUnit();
  return QAbstractSpinBox::eventFilter(watched, event);
}

void NumberBox::placeUnit() {
  const int margin = fontMetrics().averageCharWidth() / 2;
  unit_->setVisible(!field_.text().endsWith(unit_->text()));
  const int width = unit_->isHidden() ? 0 : unit_->sizeHint().width() + margin;
  const bool isOnTheLeft = field_.isRightToLeft();
  unit_->setGeometry(isOnTheLeft ? margin : field_.width() - width, 0, width, field_.height());
  field_.setTextMargins(isOnTheLeft ? width : 0, 0, isOnTheLeft ? 0 : width, 0);
}

}  // namespace kwopde::dialog
