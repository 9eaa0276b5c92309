// A list of options as the CUPS library has it.
#pragma once

#include <cups/cups.h>

#include <string_view>
#include <vector>

#include "host/OptionChoice.h"

namespace kwopde::host {

struct CupsOptions {
  CupsOptions() = default;
  explicit CupsOptions(const std::vector<OptionChoice> &list) {
    for (const auto &[key, choice] : list)
      count = cupsAddOption(key.c_str(), choice.c_str(), count, &options);
  }
  CupsOptions(const CupsOptions &) = delete;
  CupsOptions &operator=(const CupsOptions &) = delete;
  ~CupsOptions() { cupsFreeOptions(count, options); }

  /// Returns all options but `key`.
  std::vector<OptionChoice> others(std::string_view key) const {
    std::vector<OptionChoice> list;
    for (int i = 0; i < count; ++i)
      if (options[i].name != key) list.push_back({options[i].name, options[i].value});
    return list;
  }

  int count = 0;
  cups_option_t *options = nullptr;
};

}  // namespace kwopde::host
