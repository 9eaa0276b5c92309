// Arrows for a panel's number field.
#pragma once

#include <QAbstractSpinBox>
#include <QLabel>
#include <optional>
#include <vector>

#include "host/MarkableChoice.h"
#include "platform/Controls.h"

class QLineEdit;

namespace kwopde::dialog {

/// A spin box around a line edit that stays the panel's: the panel reads and writes its text, and
/// anything can be typed. Arrows, Up and Down, Page Up and Page Down and the wheel step to the next
/// number that the printer takes. The line edit's dynamic property "decimals" is how many digits
/// follow the decimal sign, and "unit" is shown behind the number where the text has none.
class NumberBox final : public QAbstractSpinBox {
  Q_OBJECT
  // What Qt tells screen readers of a spin box.
  Q_PROPERTY(double value READ value WRITE setValue)
  Q_PROPERTY(double minimum READ minimum)
  Q_PROPERTY(double maximum READ maximum)
  Q_PROPERTY(double singleStep READ singleStep)

public:
  /// Takes the place of `field` in its layout and in the order of the Tab key. `text` is the
  /// panel's control for it, which lives as long. Without a range, every number can be stepped to;
  /// `only` has the only ones, in order, where those between them are not taken.
  NumberBox(QLineEdit &field, TextField &text, std::optional<host::NumberRange> range,
            std::vector<double> only);

  double value() const { return text_.doubleValue(); }
  double minimum() const;
  double maximum() const;
  double singleStep() const;

  /// Shows `number` as if it had been typed; what follows the number in the text stays.
  void setValue(double number);

  void stepBy(int steps) override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  bool eventFilter(QObject *watched, QEvent *event) override;

signals:
  /// A person has typed or stepped.
  void edited();

protected:
  StepEnabled stepEnabled() const override;
  void changeEvent(QEvent *event) override;

private:
  double next(int steps) const;
  void placeUnit();

  QLineEdit &field_;
  TextField &text_;
  std::optional<host::NumberRange> range_;
  std::vector<double> only_;
  QLabel *unit_;
  mutable QSize sizeHint_;  // layouts ask often
};

}  // namespace kwopde::dialog
