// A slider for a number that has a neutral value, and that screen readers say as people write it.
#pragma once

#include <QSlider>
#include <optional>

namespace kwopde::qt {

/// A Qt slider counts in whole steps; the dynamic property "step" is the number that one step
/// stands for, 1 without it. "decimals" and "unit" tell how the number is written, and "neutral" is
/// the number that changes nothing: it is ticked, the groove is filled from there to the handle,
/// and a double click goes there. The trace knows it as a QSlider.
class NumberSlider final : public QSlider {
public:
  using QSlider::QSlider;

  /// Returns how many steps of `slider` make 1.
  static double stepsPerUnit(const QSlider &slider);

  /// Returns the number as people write it, with its unit: "1.80", "100 %".
  QString text() const;

  /// Sends the slider to `position`, in steps, as a person does.
  void slideTo(int position) { setSliderPosition(position); }

  /// Tells screen readers of every slider of this class from now on, until it is told otherwise.
  static void setAccessible(bool accessible);

protected:
  void paintEvent(QPaintEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
  std::optional<int> neutralPosition() const;
};

}  // namespace kwopde::qt
