#include "check/Findings.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace kwopde::check {

void Findings::add(Finding finding) {
  findings_.push_back(std::move(finding));
}

void Findings::add(const ChoiceFault &fault, const FaultyChoice &faulty) {
  const Kind kind{faulty.option, &fault, faulty.language};
  const auto [place, isNew] = kinds_.try_emplace(kind, groups_.size());
  if (!isNew) {
    ++groups_[place->second].count;
    return;
  }
  groups_.push_back({&fault, std::string(faulty.choice), faulty.detail,
                     std::string(faulty.language), findings_.size()});
  add({fault.severity,
       std::string(faulty.option),
       faulty.line,
       {},
       fmt::format(fmt::runtime(fault.advice), faulty.option)});
}

std::vector<Finding> Findings::take() {
  for (const Group &group : groups_) findings_[group.finding].message = group.message();
  groups_.clear();
  kinds_.clear();
  std::stable_sort(findings_.begin(), findings_.end(),
                   [](const Finding &a, const Finding &b) { return a.line < b.line; });
  return std::exchange(findings_, {});
}

std::string Findings::Group::message() const {
  const std::string where = language.empty() ? "" : fmt::format("in the language {}, ", language);
  const std::string about =
      choice.empty() ? "its title"
      : count == 1   ? fault->before + choice
                     : fmt::format("{}{} choices, {} for one,", fault->before, count, choice);
  return fmt::format("{}{}{}", where, about, fmt::format(fmt::runtime(fault->after), detail));
}

}  // namespace kwopde::check
