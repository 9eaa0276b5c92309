// What the panels need of a user-interface toolkit. An adapter implements these interfaces.
//
// Setting a control from code never sends its action; a user's pick, click, drag, key or wheel
// does.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Object.h"

namespace kwopde {

class TextField;

/// A control, or the view that holds a panel's controls.
class View : public Object {
public:
  virtual bool isEnabled() const = 0;
  virtual void setEnabled(bool enabled) = 0;

  /// Returns the label or field below this view whose tag is `tag`, owned by the view; null when
  /// there is none.
  virtual TextField *viewWithTag(int tag) = 0;

  /// Returns the toolkit's own object (a `QWidget *` from the Qt adapter), owned by this view; null
  /// when the toolkit has none or has already destroyed it. Only a host of the same toolkit may use
  /// it.
  virtual void *nativeView() const = 0;
};

/// One entry of a menu. It has no action and no key of its own: the pop-up button has.
struct MenuItem {
  std::optional<std::string> title;  // UTF-8; none shows as an empty entry
  std::shared_ptr<Object> representedObject;
};

class Menu {
public:
  Menu() = default;
  Menu(const Menu &) = delete;
  Menu &operator=(const Menu &) = delete;
  virtual ~Menu() = default;

  /// Appends `item`; the menu owns it from now on.
  virtual void addItem(MenuItem item) = 0;

  /// Returns the item at `index`, counted from 0 and owned by the menu; null for every other index.
  virtual const MenuItem *itemAtIndex(int index) const = 0;
};

class PopUpButton : public View {
public:
  /// Owned by the button; null for a missing button.
  virtual Menu *menu() = 0;
  virtual void removeAllItems() = 0;

  /// Shows the item at `index`, from 0; an index without an item changes nothing.
  virtual void selectItemAtIndex(int index) = 0;

  /// Returns the index of the item shown, from 0; -1 when no item is.
  virtual int indexOfSelectedItem() const = 0;
};

/// A number between two ends, which the interface file sets. A value beyond them rests at the end.
class Slider : public View {
public:
  virtual double doubleValue() const = 0;
  virtual void setDoubleValue(double value) = 0;
  virtual double minValue() const = 0;
  virtual double maxValue() const = 0;

  /// Returns `doubleValue` cut toward zero.
  int intValue() const;
  void setIntValue(int value) { setDoubleValue(value); }
};

/// A field or label with one line of text; its numbers are read from and written as that text.
class TextField : public View {
public:
  virtual std::string stringValue() const = 0;
  virtual void setStringValue(std::string_view text) = 0;

  int intValue() const;
  double doubleValue() const;
  void setIntValue(int value);
  void setDoubleValue(double value);
};

/// Returns the control that stands for a missing one: it does nothing, and answers 0, null and an
/// empty text. There is one of each kind: `PopUpButton`, `Slider` and `TextField`.
template <class Control>
const std::shared_ptr<Control> &missingControl();
template <>
const std::shared_ptr<PopUpButton> &missingControl();
template <>
const std::shared_ptr<Slider> &missingControl();
template <>
const std::shared_ptr<TextField> &missingControl();

/// A panel's reference to a control of its interface file. It borrows the control, and a message to
/// one that was never connected, or is gone, does nothing and answers 0.
template <class Control>
class Outlet {
public:
  /// Connects `view`. When it is null or not of the right kind, the outlet is left missing.
  void connect(const std::shared_ptr<View> &view) {
    control_ = std::dynamic_pointer_cast<Control>(view);
  }

  /// Returns the control, or null when it is missing.
  Control *get() const { return control_.lock().get(); }
  explicit operator bool() const { return !control_.expired(); }

  std::shared_ptr<Control> operator->() const {
    auto control = control_.lock();
    return control ? control : missingControl<Control>();
  }

private:
  std::weak_ptr<Control> control_;
};

}  // namespace kwopde
