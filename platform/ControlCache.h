// The controls of a view, each made once, for adapters that wrap a toolkit's own objects.
#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "platform/Controls.h"

namespace kwopde {

class ControlCache {
public:
  /// Returns the control whose native view is `native`: the one made before, or else the one that
  /// `make` returns now. Null, and nothing kept, when that makes none.
  template <class Make>
  std::shared_ptr<View> control(const void *native, Make &&make) {
    const auto known = std::find_if(controls_.begin(), controls_.end(), [&](const auto &control) {
      return control->nativeView() == native;
    });
    if (known != controls_.end()) return *known;
    std::shared_ptr<View> made = make();
    if (made) controls_.push_back(made);
    return made;
  }

  const std::vector<std::shared_ptr<View>> &all() const { return controls_; }
  void clear() { controls_.clear(); }

private:
  std::vector<std::shared_ptr<View>> controls_;
};

}  // namespace kwopde
