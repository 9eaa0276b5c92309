// The constraints of a PPD, UIConstraints and cupsUIConstraints alike.
#pragma once

#include <cups/ppd.h>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "host/CupsOptions.h"

namespace kwopde::host {

class Constraints {
public:
  /// Those of `ppd`, which is borrowed.
  explicit Constraints(ppd_file_t *ppd);

  /// Returns the marked choices of other options that `choice` of `option` does not go with,
  /// whether it is marked or not. Conflicts that the others have among themselves do not count.
  std::vector<OptionChoice> of(const ppd_option_t &option, const std::string &choice) const;

  /// Returns every marked choice that does not go with another one.
  std::vector<OptionChoice> all() const;

  /// Returns what to mark, besides `choice` of `option`, so that nothing conflicts any more; none
  /// when the CUPS library finds nothing. Marks nothing.
  std::optional<std::vector<OptionChoice>> resolve(const ppd_option_t &option,
                                                   const std::string &choice) const;

private:
  struct Named {
    std::set<std::string> partners;  // options that a constraint names beside this one
    std::set<std::string> choices;   // of this one that a constraint names
  };

  void add(const std::vector<std::pair<std::string, std::string>> &members);

  ppd_file_t *ppd_;
  std::map<std::string, Named> named_;  // options that a constraint names
};

}  // namespace kwopde::host
