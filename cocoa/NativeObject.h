// Objects of the core that stand for objects of AppKit.
#pragma once

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include <memory>
#include <utility>

#include "cocoa/Strings.h"
#include "platform/Object.h"

namespace kwopde::cocoa {

/// Tells the object of AppKit that an object of the core stands for.
class Native {
public:
  Native() = default;
  Native(const Native &) = delete;
  Native &operator=(const Native &) = delete;
  virtual ~Native() = default;

  /// Borrowed.
  virtual id native() const = 0;
};

/// A `Base` that stands for a native object, which it borrows: the trace shows the description and
/// the address that the native object has by itself.
template <class Base>
class NativeObject : public Base, public Native {
public:
  template <class... Arguments>
  explicit NativeObject(id native, Arguments &&...arguments)
      : Base(std::forward<Arguments>(arguments)...), native_(native) {}

  id native() const final { return native_; }
  std::string_view className() const override { return object_getClassName(native_); }
  const void *address() const override { return native_; }
  void appendDescription(std::string &out) const override { out += textOf([native_ description]); }

protected:
  const id native_;
};

/// Returns what `object` stands for; nil when that is nothing, or `object` is null.
template <class Base>
id nativeOf(const Base *object) {
  const auto *standsFor = dynamic_cast<const Native *>(object);
  return standsFor ? standsFor->native() : nil;
}

/// Makes a `Core` that stands for `native` and retains it for as long as anybody holds it; null for
/// nil.
template <class Core>
std::shared_ptr<Core> retaining(id native) {
  if (!native) return nullptr;
  return {new Core([native retain]), [native](Core *core) {
            delete core;
            [native release];
          }};
}

}  // namespace kwopde::cocoa
