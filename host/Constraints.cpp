#include "host/Constraints.h"

#include <cups/cups.h>

#include <algorithm>
#include <cctype>
#include <sstream>
#include <utility>

namespace kwopde::host {

namespace {

std::string inLowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char letter) { return std::tolower(letter); });
  return lower;
}

/// Returns one name for all under which the CUPS library has constraints look at an option.
std::string nameOf(std::string_view option) {
  std::string name = inLowerCase(option);
  for (const std::string_view prefix : {"ap_firstpage_", "custom"})
    if (name.starts_with(prefix) && name.size() > prefix.size()) name.erase(0, prefix.size());
  return name == "pageregion" ? "pagesize" : name;
}

/// Every conflict that there would be with `choice` of `option` marked.
std::vector<OptionChoice> conflictsWith(ppd_file_t *ppd, const ppd_option_t &option,
                                        const char *choice) {
  CupsOptions conflicts;
  conflicts.count = cupsGetConflicts(ppd, option.keyword, choice, &conflicts.options);
  return conflicts.others(option.keyword);
}

}  // namespace

Constraints::Constraints(ppd_file_t *ppd) : ppd_(ppd) {
  for (int i = 0; i < ppd->num_consts; ++i) {
    const ppd_const_t &pair = ppd->consts[i];
    add({{pair.option1, pair.choice1}, {pair.option2, pair.choice2}});
  }
  // "*Duplex *InputSlot Tray2": options with a star, each with a choice or none.
  for (const ppd_attr_t *attribute = ppdFindAttr(ppd, "cupsUIConstraints", nullptr); attribute;
       attribute = ppdFindNextAttr(ppd, "cupsUIConstraints", nullptr)) {
    std::vector<std::pair<std::string, std::string>> members;
    std::istringstream words(attribute->value ? attribute->value : "");
    for (std::string word; words >> word;)
      if (word.starts_with('*'))
        members.emplace_back(word.substr(1), std::string());
      else if (!members.empty())
        members.back().second = word;
    add(members);
  }
}

void Constraints::add(const std::vector<std::pair<std::string, std::string>> &members) {
  for (const auto &[option, choice] : members) {
    Named &named = named_[nameOf(option)];
    named.choices.insert(inLowerCase(choice));
    for (const auto &[other, otherChoice] : members) named.partners.insert(nameOf(other));
  }
}

std::vector<OptionChoice> Constraints::all() const {
  std::vector<OptionChoice> conflicts;
  if (ppdConflicts(ppd_) == 0) return conflicts;
  for (ppd_option_t *option = ppdFirstOption(ppd_); option; option = ppdNextOption(ppd_))
    if (const ppd_choice_t *choice = ppdFindMarkedChoice(ppd_, option->keyword);
        choice && option->conflicted)
      conflicts.push_back({option->keyword, choice->choice});
  return conflicts;
}

std::vector<OptionChoice> Constraints::of(const ppd_option_t &option,
                                          const std::string &choice) const {
  const auto known = named_.find(nameOf(option.keyword));
  if (known == named_.end()) return {};
  const Named &named = known->second;
  auto conflicts = conflictsWith(ppd_, option, choice.c_str());
  std::erase_if(conflicts, [&](const OptionChoice &conflict) {
    return !named.partners.contains(nameOf(conflict.key));
  });
  // cupsGetConflicts() reports every conflict in the PPD. A conflict involves `option` if marking
  // another choice of it makes the conflict disappear. Choices that no constraint names are all
  // alike, but for those that stand for nothing chosen.
  std::vector<OptionChoice> own;
  bool asked = false;
  for (const bool isNamed : {false, true})
    for (int i = 0; !conflicts.empty() && i < option.num_choices; ++i) {
      const std::string other = inLowerCase(option.choices[i].choice);
      if ((choosesNothing(other) || named.choices.contains(other)) != isNamed) continue;
      if (!isNamed && std::exchange(asked, true)) break;
      const auto others = conflictsWith(ppd_, option, option.choices[i].choice);
      const auto ended = std::stable_partition(
          conflicts.begin(), conflicts.end(), [&](const OptionChoice &conflict) {
            return std::any_of(others.begin(), others.end(),
                               [&](const OptionChoice &left) { return left.key == conflict.key; });
          });
      own.insert(own.end(), ended, conflicts.end());
      conflicts.erase(ended, conflicts.end());
    }
  return own;
}

std::optional<std::vector<OptionChoice>> Constraints::resolve(const ppd_option_t &option,
                                                              const std::string &choice) const {
  CupsOptions resolved;
  if (!cupsResolveConflicts(ppd_, option.keyword, choice.c_str(), &resolved.count,
                            &resolved.options))
    return {};
  return resolved.others(option.keyword);
}

}  // namespace kwopde::host
