#include "cocoa/CocoaControls.h"

#include <algorithm>
#include <cmath>

namespace kwopde::cocoa {

namespace {

/// Stops the controls at `view` and below it.
void disconnectBelow(NSView *view, id target) {
  if ([view isKindOfClass:[NSControl class]] && [(NSControl *)view target] == target) {
    [(NSControl *)view setTarget:nil];
    [(NSControl *)view setAction:nullptr];
  }
  forEach<NSView>([[view subviews] objectEnumerator],
                  [&](NSView *below) { disconnectBelow(below, target); });
}

}  // namespace

void CocoaPopUpButton::removeAllItems() {
  items_.clear();
  [view_ removeAllItems];
}

void CocoaPopUpButton::selectItemAtIndex(int index) {
  if (index >= 0 && index < [view_ numberOfItems]) [view_ selectItemAtIndex:index];
}

int CocoaPopUpButton::indexOfSelectedItem() const {
  return static_cast<int>([view_ indexOfSelectedItem]);
}

void CocoaPopUpButton::addItem(MenuItem item) {
  NSString *title = item.title ? stringFrom(*item.title) : nil;
  // Through the menu: the button itself drops an earlier item of the same title.
  NSMenuItem *added = [[[NSMenuItem alloc] initWithTitle:title ? title : @""
                                                  action:nullptr
                                           keyEquivalent:@""] autorelease];
  [added setRepresentedObject:nativeOf(item.representedObject.get())];
  [[view_ menu] addItem:added];
  if ([view_ indexOfSelectedItem] < 0) [view_ selectItemAtIndex:0];
}

const MenuItem *CocoaPopUpButton::itemAtIndex(int index) const {
  if (index < 0 || index >= [view_ numberOfItems]) return nullptr;
  const auto item = [view_ itemAtIndex:index];
  id represented = [item representedObject];
  MenuItem &found = items_[index];
  found.title = textOf([item title]);
  found.representedObject =
      [represented respondsToSelector:@selector(coreObject)] ? [represented coreObject] : nullptr;
  return &found;
}

void CocoaSlider::setDoubleValue(double value) {
  if (!std::isnan(value)) [view_ setDoubleValue:std::clamp(value, minValue(), maxValue())];
}

void CocoaTextField::setStringValue(std::string_view text) {
  NSString *string = stringFrom(text);
  [view_ setStringValue:string ? string : @""];
}

TextField *CocoaPanelView::viewWithTag(int tag) {
  return dynamic_cast<TextField *>(control([view_ viewWithTag:tag]).get());
}

std::shared_ptr<View> CocoaPanelView::control(NSView *view) {
  return controls_.control(view, [&] { return makeControl(view); });
}

void CocoaPanelView::disconnect(id target) const {
  // What is retained on the way is let go here, so that nothing outlives the view for it.
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  disconnectBelow(view_, target);
  // A host may have moved some of them elsewhere.
  for (const auto &control : controls_.all())
    disconnectBelow(static_cast<NSView *>(control->nativeView()), target);
  [pool release];
}

std::shared_ptr<View> makeControl(NSView *view) {
  if ([view isKindOfClass:[NSPopUpButton class]])
    return std::make_shared<CocoaPopUpButton>((NSPopUpButton *)view);
  if ([view isKindOfClass:[NSSlider class]]) return std::make_shared<CocoaSlider>((NSSlider *)view);
  if ([view isKindOfClass:[NSTextField class]])
    return std::make_shared<CocoaTextField>((NSTextField *)view);
  return nullptr;
}

}  // namespace kwopde::cocoa
