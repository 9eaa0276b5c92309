#include "platform/Dictionary.h"

#include <algorithm>

namespace kwopde {

void Dictionary::setObject(std::string_view value, std::string_view forKey) {
  const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const auto &known) { return known.first == forKey; });
  if (entry == entries_.end())
    entries_.emplace_back(forKey, value);
  else
    entry->second = value;
}

void Dictionary::appendDescription(std::string &out) const {
  auto sorted = entries_;
  std::sort(sorted.begin(), sorted.end());
  std::string_view separator;
  out += '{';
  for (const auto &[key, value] : sorted) {
    out += separator;
    appendQuoted(out, key);
    out += ": ";
    appendQuoted(out, value);
    separator = ", ";
  }
  out += '}';
}

}  // namespace kwopde
