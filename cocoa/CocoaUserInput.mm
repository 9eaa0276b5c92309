#include "cocoa/CocoaUserInput.h"

#import <AppKit/AppKit.h>

#include "cocoa/Strings.h"

namespace kwopde::cocoa {

namespace {

template <class NativeView>
NativeView *viewOf(const View &view, Class kind) {
  auto *native = static_cast<NSView *>(view.nativeView());
  return [native isKindOfClass:kind] ? static_cast<NativeView *>(native) : nil;
}

}  // namespace

bool CocoaUserInput::pick(PopUpButton &popUp, int index) {
  auto *button = viewOf<NSPopUpButton>(popUp, [NSPopUpButton class]);
  [button selectItemAtIndex:index];
  return button && [button sendAction:[button action] to:[button target]];
}

bool CocoaUserInput::slide(Slider &slider, double value) {
  auto *native = viewOf<NSSlider>(slider, [NSSlider class]);
  slider.setDoubleValue(value);
  return native && [native sendAction:[native action] to:[native target]];
}

bool CocoaUserInput::type(TextField &field, const std::string &text) {
  auto *native = viewOf<NSTextField>(field, [NSTextField class]);
  if (![native isEditable]) return false;
  [native setStringValue:stringFrom(&text)];
  return true;
}

}  // namespace kwopde::cocoa
