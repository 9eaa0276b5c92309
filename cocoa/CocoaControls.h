// The toolkit interfaces of the core on AppKit. A control retains the view that it stands for: a
// host may take a view out of its panel, and keep it or let it go.
#pragma once

#import <AppKit/AppKit.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "cocoa/NativeObject.h"
#include "platform/ControlCache.h"
#include "platform/Controls.h"

/// What a menu item's represented object answers when it stands for an object of the core.
@protocol KWOPDECoreObject
- (std::shared_ptr<kwopde::Object>)coreObject;
@end

namespace kwopde::cocoa {

/// Calls `visit` with every object of `objects`. GCC has no other loop over a collection.
template <class Object, class Visit>
void forEach(NSEnumerator *objects, Visit &&visit) {
  while (id object = [objects nextObject]) visit(static_cast<Object *>(object));
}

/// What every control is: `Base` on a view of class `NativeView`.
template <class Base, class NativeView>
class CocoaControl : public NativeObject<Base> {
public:
  explicit CocoaControl(NativeView *view) : NativeObject<Base>([view retain]), view_(view) {}
  ~CocoaControl() override { [view_ release]; }

  bool isEnabled() const override {
    return [view_ respondsToSelector:@selector(isEnabled)] && [(NSControl *)view_ isEnabled];
  }
  void setEnabled(bool enabled) override {
    if ([view_ respondsToSelector:@selector(setEnabled:)]) [(NSControl *)view_ setEnabled:enabled];
  }
  TextField *viewWithTag(int) override { return nullptr; }
  void *nativeView() const override { return view_; }

protected:
  NativeView *const view_;
};

/// The items are the menu's own, whoever has added them.
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
  mutable std::map<int, MenuItem> items_;  // as they were last asked for
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

/// A panel's view, and its controls.
class CocoaPanelView final : public CocoaControl<View, NSView> {
public:
  using CocoaControl::CocoaControl;

  TextField *viewWithTag(int tag) override;

  /// The control for `view`, made on the first call; null when it is of no kind that a panel uses.
  std::shared_ptr<View> control(NSView *view);

  /// Stops every control that sends its action to `target`: they may outlive it.
  void disconnect(id target) const;

private:
  ControlCache controls_;
};

/// A control of the kind that fits `view`; null when it is of no kind that a panel uses.
std::shared_ptr<View> makeControl(NSView *view);

}  // namespace kwopde::cocoa
