// A dictionary of strings, as handed to the host for its summary view.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Object.h"

namespace kwopde {

class Dictionary : public Object {
public:
  /// `capacity` is how many entries it is likely to hold.
  explicit Dictionary(std::size_t capacity) { entries_.reserve(capacity); }

  /// Both are UTF-8. Setting a key again replaces its value, in its place.
  void setObject(std::string_view value, std::string_view forKey);

  /// Keys and values, in the order in which the keys were first set.
  const std::vector<std::pair<std::string, std::string>> &entries() const { return entries_; }

  std::string_view className() const override { return "Dictionary"; }

  /// `{"key": "value", ...}`, sorted by key.
  void appendDescription(std::string &out) const override;

private:
  std::vector<std::pair<std::string, std::string>> entries_;
};

}  // namespace kwopde
