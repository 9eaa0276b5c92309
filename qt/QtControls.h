// The toolkit interfaces of the core on Qt 6 Widgets.
//
// A control wraps a widget that it does not own; when the widget is gone, it does nothing and
// answers 0, as a missing control does.
#pragma once

#include <QComboBox>
#include <QPointer>
#include <QSlider>
#include <QWidget>
#include <functional>
#include <memory>

#include "platform/ControlCache.h"
#include "platform/Controls.h"
#include "platform/MenuItems.h"

namespace kwopde::qt {

/// What every control is: `Base` on a widget of type `Widget`.
template <class Base, class Widget>
class QtControl : public Base {
public:
  explicit QtControl(Widget *widget) : widget_(widget) {}

  std::string_view className() const override {
    return widget_ ? widget_->metaObject()->className() : Widget::staticMetaObject.className();
  }
  bool isEnabled() const override { return widget_ && widget_->isEnabled(); }
  void setEnabled(bool enabled) override {
    if (widget_) widget_->setEnabled(enabled);
  }
  TextField *viewWithTag(int) override { return nullptr; }
  void *nativeView() const override { return static_cast<QWidget *>(widget_.data()); }

protected:
  QPointer<Widget> widget_;
};

class QtPopUpButton final : public QtControl<PopUpButton, QComboBox>, public MenuItems {
public:
  using QtControl::QtControl;

  Menu *menu() override { return this; }
  void removeAllItems() override;
  void selectItemAtIndex(int index) override;
  int indexOfSelectedItem() const override;

  void addItem(MenuItem item) override;
};

/// Counts in the numbers that the steps of the widget stand for, as `NumberSlider` says.
class QtSlider final : public QtControl<Slider, QSlider> {
public:
  using QtControl::QtControl;

  double doubleValue() const override;
  void setDoubleValue(double value) override;
  double minValue() const override;
  double maxValue() const override;
};

/// Whatever shows one line of text in a property "text": a line edit, a label. A line edit shows
/// the number that its text starts with as people in Qt's default locale write it, and with at
/// least as many digits after the decimal sign as its dynamic property "decimals" says.
class QtTextField final : public QtControl<TextField, QWidget> {
public:
  using QtControl::QtControl;

  std::string stringValue() const override;
  void setStringValue(std::string_view text) override;
};

/// Returns `text` with the number that it starts with as people write it: with their decimal sign,
/// and with at least `decimals` digits after it.
QString peoplesText(const QString &text, int decimals = 0);

/// The view of a panel: it owns the widget, unless somebody has destroyed it already, and its
/// controls.
class QtPanelView final : public QtControl<View, QWidget> {
public:
  using QtControl::QtControl;
  ~QtPanelView() override { delete widget_.data(); }

  TextField *viewWithTag(int tag) override;

  /// Returns the control for `widget`, which is this view or below it; null when it is of no kind
  /// that a panel can use. Made on the first call.
  std::shared_ptr<View> control(QWidget *widget);

private:
  ControlCache controls_;
};

/// Calls `action` whenever the user, and not code, works `widget`: a pick from a pop-up (of the
/// same item too), every step of a slider, by mouse, keyboard or wheel. False when `widget` is of a
/// kind that sends no action.
bool connectAction(QWidget *widget, std::function<void()> action);

}  // namespace kwopde::qt
