#include "host/Constraints.h"

#include <cups/cups.h>

#include <algorithm>

namespace kwopde::host {

namespace {

/// Every conflict that there would be with `choice` of `option` marked.
std::vector<OptionChoice> allConflicts(ppd_file_t *ppd, const ppd_option_t &option,
                                       const std::string &choice) {
  CupsOptions conflicts;
  conflicts.count = cupsGetConflicts(ppd, option.keyword, choice.c_str(), &conflicts.options);
  return conflicts.others(option.keyword);
}

}  // namespace

std::vector<OptionChoice> allConflicts(ppd_file_t *ppd) {
  std::vector<OptionChoice> conflicts;
  if (ppdConflicts(ppd) == 0) return conflicts;
  for (ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd))
    if (const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, option->keyword);
        choice && option->conflicted)
      conflicts.push_back({option->keyword, choice->choice});
  return conflicts;
}

std::vector<OptionChoice> conflictsOf(ppd_file_t *ppd, const ppd_option_t &option,
                                      const std::string &choice) {
  auto conflicts = allConflicts(ppd, option, choice);
  // cupsGetConflicts() reports every conflict in the PPD. A conflict involves `option` if marking
  // another choice of it makes the conflict disappear.
  std::vector<OptionChoice> own;
  for (int i = 0; !conflicts.empty() && i < option.num_choices; ++i) {
    const auto others = allConflicts(ppd, option, option.choices[i].choice);
    const auto ended = std::stable_partition(
        conflicts.begin(), conflicts.end(), [&](const OptionChoice &conflict) {
          return std::any_of(others.begin(), others.end(),
                             [&](const OptionChoice &other) { return other.key == conflict.key; });
        });
    own.insert(own.end(), ended, conflicts.end());
    conflicts.erase(ended, conflicts.end());
  }
  return own;
}

std::optional<std::vector<OptionChoice>> resolve(ppd_file_t *ppd, const ppd_option_t &option,
                                                 const std::string &choice) {
  CupsOptions resolved;
  if (!cupsResolveConflicts(ppd, option.keyword, choice.c_str(), &resolved.count,
                            &resolved.options))
    return {};
  return resolved.others(option.keyword);
}

}  // namespace kwopde::host
