// The toolkit interfaces of the core on AppKit.
//
// A control wraps a view that it does not own, and that lives as long as the panel's view.
#pragma once

#import <AppKit/AppKit.h>

#include <memory>
#include <string>
#include <vector>

#include "cocoa/Strings.h"
#include "platform/Controls.h"

namespace kwopde::cocoa {

/// Calls `visit` with every object of `objects`. GCC has no other loop over a collection.
template <class Object, class Visit>
void forEach(NSEnumerator *objects, Visit &&visit) {
  while (id object = [objects nextObject]) visit(static_cast<Object *>(object));
}

/// What every control is: `Base` on a view of class `NativeView`.
template <class Base, class NativeView>
class CocoaControl : public Base {
public:
  explicit CocoaControl(NativeView *view)
      : view_(view), className_(textOf(NSStringFromClass([view class]))) {}

  std::string_view className() const override { return className_; }
  bool isEnabled() const override {
    return [view_ respondsToSelector:@selector(isEnabled)] && [(NSControl *)view_ isEnabled];
  }
  void setEnabled(bool enabled) override {
    if ([view_ respondsToSelector:@selector(setEnabled:)]) [(NSControl *)view_ setEnabled:enabled];
  }
  TextField *viewWithTag(int) override { return nullptr; }
  void *nativeView() const override { return view_; }

protected:
  NativeView *view_;

private:
  std::string className_;
};

class CocoaPopUpButton final : public CocoaControl<PopUpButton, NSPopUpButton>, public Menu {
public:
  using CocoaControl::CocoaControl;

  Menu *menu() override { return this; }
  void removeAllItems() override;
  void selectItemAtIndex(int index) override;
  int indexOfSelectedItem() const override;

  void addItem(MenuItem item) override;
  const MenuItem *itemAtIndex(int index) const override;

private:
  mutable std::vector<MenuItem> items_;
};

/// Moves freely between its ends; what it stands at is cut, never rounded, by who reads it.
class CocoaSlider final : public CocoaControl<Slider, NSSlider> {
public:
  using CocoaControl::CocoaControl;

  double doubleValue() const override { return [view_ doubleValue]; }
  void setDoubleValue(double value) override;
  double minValue() const override { return [view_ minValue]; }
  double maxValue() const override { return [view_ maxValue]; }
};

class CocoaTextField final : public CocoaControl<TextField, NSTextField> {
public:
  using CocoaControl::CocoaControl;

  std::string stringValue() const override { return textOf([view_ stringValue]); }
  void setStringValue(std::string_view text) override;
};

/// A panel's view, which it retains, and its controls. `owner` is what the interface file was
/// loaded for, and retained too: controls do not retain whom they send their actions.
class CocoaPanelView final : public CocoaControl<View, NSView> {
public:
  CocoaPanelView(NSView *view, NSObject *owner);
  ~CocoaPanelView() override;

  TextField *viewWithTag(int tag) override;

  /// The control for `view`, made on the first call; null when it is of no kind that a panel uses.
  std::shared_ptr<View> control(NSView *view);

private:
  NSObject *owner_;
  std::vector<std::shared_ptr<View>> controls_;
};

/// A control of the kind that fits `view`; null when it is of no kind that a panel uses.
std::shared_ptr<View> makeControl(NSView *view);

}  // namespace kwopde::cocoa
