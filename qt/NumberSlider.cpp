#include "qt/NumberSlider.h"

#include <QAccessibleWidget>
#include <QLocale>
#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QStylePainter>
#include <algorithm>
#include <cmath>

namespace kwopde::qt {

namespace {

/// Says the number that the slider stands for, where Qt says how many steps that is.
class AccessibleSlider final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
  explicit AccessibleSlider(NumberSlider *slider)
      : QAccessibleWidget(slider, QAccessible::Slider), slider_(*slider) {}

  void *interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? slider_.text() : QAccessibleWidget::text(kind);
  }

  QVariant currentValue() const override { return number(slider_.sliderPosition()); }
  void setCurrentValue(const QVariant &value) override {
    slider_.slideTo(
        static_cast<int>(std::lround(value.toDouble() * NumberSlider::stepsPerUnit(slider_))));
  }
  QVariant maximumValue() const override { return number(slider_.maximum()); }
  QVariant minimumValue() const override { return number(slider_.minimum()); }
  QVariant minimumStepSize() const override { return number(slider_.singleStep()); }

private:
  double number(int position) const { return position / NumberSlider::stepsPerUnit(slider_); }

  NumberSlider &slider_;
};

QAccessibleInterface *accessible(const QString &, QObject *object) {
  auto *slider = dynamic_cast<NumberSlider *>(object);
  return slider ? new AccessibleSlider(slider) : nullptr;
}

}  // namespace

double NumberSlider::stepsPerUnit(const QSlider &slider) {
  const double step = slider.property("step").toDouble();
  // Rounded, since a decimal step has no exact value: 1789 steps of 0.001 are 1.789.
  return step > 0 ? std::max(std::round(1 / step), 1.0) : 1.0;
}

QString NumberSlider::text() const {
  const QString number =
      QLocale().toString(sliderPosition() / stepsPerUnit(*this), 'f', property("decimals").toInt());
  const QString unit = property("unit").toString();
  return unit.isEmpty() ? number : number + ' ' + unit;
}

void NumberSlider::setAccessible(bool accessible) {
  accessible ? QAccessible::installFactory(qt::accessible)
             : QAccessible::removeFactory(qt::accessible);
}

std::optional<int> NumberSlider::neutralPosition() const {
  const QVariant neutral = property("neutral");
  if (!neutral.isValid()) return {};
  const auto position = static_cast<int>(std::lround(neutral.toDouble() * stepsPerUnit(*this)));
  return position >= minimum() && position <= maximum() ? std::optional(position) : std::nullopt;
}

void NumberSlider::paintEvent(QPaintEvent *event) {
  const auto neutral = neutralPosition();
  if (!neutral || orientation() != Qt::Horizontal) return QSlider::paintEvent(event);
  QStylePainter painter(this);
  QStyleOptionSlider option;
  initStyleOption(&option);
  const auto centerAt = [&](int position) {
    QStyleOptionSlider there = option;
    there.sliderPosition = there.sliderValue = position;
    return style()
        ->subControlRect(QStyle::CC_Slider, &there, QStyle::SC_SliderHandle, this)
        .center();
  };
  const QPoint from = centerAt(*neutral);
  const QPoint to = centerAt(sliderPosition());

  QStyleOptionSlider groove = option;  // as styles paint it where nothing is filled
  groove.subControls = QStyle::SC_SliderGroove;
  groove.sliderPosition = groove.sliderValue = minimum();
  painter.drawComplexControl(QStyle::CC_Slider, groove);
  const int unit = std::max(fontMetrics().height() / 5, 2);
  const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  painter.fillRect(QRect(from.x(), from.y() - 2 * unit, 1, 4 * unit + 1),
                   palette().color(group, QPalette::Mid).darker(150));
  painter.fillRect(QRect(QPoint(std::min(from.x(), to.x()), from.y() - unit / 2),
                         QSize(std::abs(to.x() - from.x()), unit)),
                   palette().color(group, QPalette::Highlight));
  option.subControls = QStyle::SC_SliderHandle;
  option.activeSubControls = underMouse() ? QStyle::SC_SliderHandle : QStyle::SC_None;
  option.state.setFlag(QStyle::State_Sunken, isSliderDown());
  painter.drawComplexControl(QStyle::CC_Slider, option);
}

void NumberSlider::mouseDoubleClickEvent(QMouseEvent *event) {
  const auto neutral = neutralPosition();
  if (!neutral || event->button() != Qt::LeftButton) return QSlider::mouseDoubleClickEvent(event);
  slideTo(*neutral);
  event->accept();
}

}  // namespace kwopde::qt
