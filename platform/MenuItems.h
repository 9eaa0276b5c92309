// The items of a menu, for adapters whose toolkit keeps titles only.
#pragma once

#include <utility>
#include <vector>

#include "platform/Controls.h"

namespace kwopde {

class MenuItems : public Menu {
public:
  void addItem(MenuItem item) override { items_.push_back(std::move(item)); }
  const MenuItem *itemAtIndex(int index) const override {
    const auto i = static_cast<std::size_t>(index);
    return index >= 0 && i < items_.size() ? &items_[i] : nullptr;
  }
  void clear() { items_.clear(); }

private:
  std::vector<MenuItem> items_;
};

}  // namespace kwopde
