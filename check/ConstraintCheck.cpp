#include "check/ConstraintCheck.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <string_view>

#include "host/MarkableChoice.h"

namespace kwopde::check {

namespace {

using Severity = Finding::Severity;

constexpr ChoiceFault kNeverGranted{
    Severity::error, "", " can never be picked, since it conflicts with every choice of {}",
    "leave a choice that it goes with"};

/// Whether all of `choices` are among `blocked`, where "" is any that chooses something.
bool areAllAmong(const KeywordSet &choices, const KeywordSet &blocked) {
  if (blocked.contains(""))
    return std::none_of(std::begin(host::kNothing), std::end(host::kNothing),
                        [&](std::string_view nothing) {
                          return choices.contains(nothing) && !blocked.contains(nothing);
                        });
  return choices.size() <= blocked.size() &&
         std::all_of(choices.begin(), choices.end(),
                     [&](const std::string &choice) { return blocked.contains(choice); });
}

}  // namespace

const ConstraintCheck::Named *ConstraintCheck::named(const std::string &key) {
  if (const auto known = named_.find(key); known != named_.end()) return &known->second;
  ppd_option_t *option = ppdFindOption(ppd_, key.c_str());
  if (!option) return nullptr;
  Named &added = named_[key];
  added.option = option;
  for (int i = 0; i < option->num_choices; ++i) added.choices.insert(option->choices[i].choice);
  // The region of a page goes with its size.
  ppd_option_t *size = isSameKey(key, "PageRegion") ? ppdFindOption(ppd_, "PageSize") : nullptr;
  ppd_option_t *marked = size ? size : option;
  if (const ppd_choice_t *choice = ppdFindChoice(marked, marked->defchoice))
    added.byDefault = choice->choice;
  return &added;
}

bool ConstraintCheck::isComplete(const ConstraintLine &constraint) {
  const auto own = std::find_if(constraint.members.begin(), constraint.members.end(),
                                [this](const auto &member) { return keys_.contains(member.key); });
  bool isComplete = true;
  for (const auto &[key, choice] : constraint.members) {
    const Named *option = named(key);
    if (option && option->has(choice)) continue;
    isComplete = false;
    const auto what = option ? fmt::format("the choice {} of {}", choice, key)
                             : fmt::format("the option {}", key);
    ++missing_.try_emplace({own->key, what}, Missing{constraint.line, constraint.isResolver})
          .first->second.count;
  }
  return isComplete;
}

bool ConstraintCheck::isOfOne(const ConstraintLine &constraint) {
  const std::string &key = constraint.members.front().key;
  const bool isOfOne = std::all_of(constraint.members.begin(), constraint.members.end(),
                                   [&](const auto &member) { return isSameKey(member.key, key); });
  if (isOfOne) ofOne_.try_emplace(key, constraint.line);
  return isOfOne;
}

bool ConstraintCheck::holdsByDefault(const ConstraintLine &constraint) {
  return std::all_of(
      constraint.members.begin(), constraint.members.end(), [this](const auto &member) {
        const std::string &marked = named(member.key)->byDefault;
        return member.choice.empty() ? !marked.empty() && !host::choosesNothing(marked)
                                     : isSameKey(marked, member.choice);
      });
}

void ConstraintCheck::takeConflict(const ConstraintLine &constraint) {
  std::set<std::string> options;
  Conflict conflict;
  for (const auto &[key, choice] : constraint.members) {
    const Named &option = *named(key);
    if (!options.insert(option.option->keyword).second) continue;
    if (conflict.own.key.empty() && keys_.contains(key))
      conflict.own = {*keys_.find(key), option.byDefault};
    else
      conflict.others += fmt::format("{}{}, {}", conflict.others.empty() ? "" : ", and that of ",
                                     option.option->keyword, option.byDefault);
  }
  conflicts_.try_emplace(options, conflict);
}

void ConstraintCheck::take(const ConstraintLine &constraint) {
  if (!isComplete(constraint) || constraint.isResolver || isOfOne(constraint)) return;
  if (holdsByDefault(constraint)) takeConflict(constraint);
  if (constraint.members.size() != 2) return;
  const auto &[one, other] = std::tie(constraint.members[0], constraint.members[1]);
  if (keys_.contains(one.key)) partners_[one.key][one.choice][other.key].insert(other.choice);
  if (keys_.contains(other.key)) partners_[other.key][other.choice][one.key].insert(one.choice);
}

ConstraintCheck::Partners ConstraintCheck::leftBy(const Partners &blocked) {
  Partners left;
  for (const auto &partner : blocked) {
    const KeywordSet &all = named(partner.first)->choices;
    KeywordSet &some = left[partner.first];
    std::copy_if(all.begin(), all.end(), std::inserter(some, some.end()),
                 [&](const std::string &choice) { return !areAllAmong({choice}, partner.second); });
  }
  return left;
}

const ConstraintCheck::Named *ConstraintCheck::blocking(const Partners &blocked,
                                                        const Partners &left) {
  for (const auto &[key, choices] : blocked) {
    const Named *partner = named(key);
    const auto some = left.find(key);
    // What is not marked at all conflicts with nothing.
    if (!partner->byDefault.empty() &&
        areAllAmong(some == left.end() ? partner->choices : some->second, choices))
      return partner;
  }
  return nullptr;
}

void ConstraintCheck::reportBlocked(const PpdLines &lines, Findings &findings) {
  static const Partners nothing;
  for (const auto &[key, byChoice] : partners_) {
    const auto any = byChoice.find("");
    const Partners &byAny = any == byChoice.end() ? nothing : any->second;
    const Partners leftByAny = leftBy(byAny);
    const Named *blocksAny = blocking(byAny, nothing);
    for (const std::string &choice : named(key)->choices) {
      const bool isAny = !host::choosesNothing(choice);
      const Named *blocks = isAny ? blocksAny : nullptr;
      if (const auto own = byChoice.find(choice); !blocks && own != byChoice.end())
        blocks = blocking(own->second, isAny ? leftByAny : nothing);
      if (blocks)
        findings.add(kNeverGranted, {*keys_.find(key), choice, lines.of(key).lineOf(choice),
                                     blocks->option->keyword});
    }
  }
}

void ConstraintCheck::report(const PpdLines &lines, Findings &findings) {
  for (const auto &[place, missing] : missing_) {
    const bool isOne = missing.count == 1;
    const std::string_view kind = missing.isResolver ? "resolver" : "constraint";
    findings.add(
        {Severity::error, *keys_.find(place.first), missing.line,
         fmt::format("{} with it {} {}, which the PPD does not have, so nothing comes of {}",
                     isOne ? fmt::format("a {}", kind) : fmt::format("{} {}s", missing.count, kind),
                     isOne ? "names" : "name", place.second, isOne ? "it" : "them"),
         "correct the name, or remove it"});
  }
  for (const auto &[key, line] : ofOne_)
    findings.add({Severity::error, *keys_.find(key), line,
                  "a constraint names it and no other option, so nothing comes of it",
                  "name the option that it does not go with"});
  for (const auto &[options, conflict] : conflicts_)
    findings.add({Severity::error, conflict.own.key, lines.of(conflict.own.key).defaultLine,
                  fmt::format("its default, {}, conflicts with that of {}", conflict.own.choice,
                              conflict.others),
                  "choose defaults that go together"});
  reportBlocked(lines, findings);
}

}  // namespace kwopde::check
