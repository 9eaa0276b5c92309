#include "host/JobOptions.h"

#include <cups/pwg.h>

#include <algorithm>
#include <span>
#include <sstream>

namespace kwopde::host {

namespace {

/// Names of one and the same setting. The CUPS library looks at one of them and not at the rest, so
/// a job has to carry no more than one.
constexpr std::string_view kMedia[] = {"media", "PageSize", "PageRegion"};
constexpr std::string_view kSides[] = {"sides", "Duplex"};
constexpr std::string_view kOrientation[] = {"landscape", "orientation-requested"};
constexpr std::span<const std::string_view> kNames[] = {kMedia, kSides, kOrientation};

/// What the queues of a server give every job unless told otherwise.
constexpr struct {
  std::string_view key;
  std::string_view choice;
} kUsual[] = {
    {"copies", "1"},
    {"finishings", "3"},
    {"finishings", "none"},  // the same in words
    {"job-hold-until", "no-hold"},
    {"job-priority", "50"},
    {"job-sheets", "none"},
    {"job-sheets", "none,none"},
    {"number-up", "1"},
};

/// What each queue gives a choice of its own for.
constexpr std::string_view kOfTheQueue[] = {"job-cancel-after", "print-color-mode"};

constexpr std::string_view kOfOneJob[] = {"Collate",      "copies",      "job-hold-until",
                                          "job-priority", "page-ranges", "page-set"};

bool isUsual(const OptionChoice &option) {
  return std::any_of(std::begin(kUsual), std::end(kUsual), [&](const auto &usual) {
    return option.key == usual.key && option.choice == usual.choice;
  });
}

/// Whether it is `byDefault`, the queue's own, though maybe in other words.
bool isSame(const OptionChoice &option, const OptionChoice &byDefault) {
  return option.choice == byDefault.choice || (isUsual(option) && isUsual(byDefault));
}

/// Whether it looks like a default of a queue whose defaults are not known.
bool seemsGiven(const OptionChoice &option) {
  return isUsual(option) || std::count(std::begin(kOfTheQueue), std::end(kOfTheQueue), option.key);
}

/// Whether the option tells of the printer and is none of a job's.
bool isOfThePrinter(const OptionChoice &option) {
  if (option.key == "printer-resolution") return false;
  return option.key.starts_with("printer-") || option.key.starts_with("marker-") ||
         option.key == "device-uri" || option.key == "auth-info-required";
}

/// Returns what a list of media ("A4,Tray2") says beside the paper; empty when it says no more.
std::string withoutPaper(const std::string &media) {
  std::string rest;
  std::istringstream members(media);
  for (std::string member; std::getline(members, member, ',');)
    if (!pwgMediaForPWG(member.c_str()) && !pwgMediaForLegacy(member.c_str()) &&
        !pwgMediaForPPD(member.c_str()))
      rest += (rest.empty() ? "" : ",") + member;
  return rest;
}

auto find(auto &list, std::string_view key) {
  return std::find_if(list.begin(), list.end(),
                      [&](const OptionChoice &option) { return isSameKey(option.key, key); });
}

}  // namespace

bool isSameSetting(std::string_view a, std::string_view b) {
  return isSameKey(a, b) ||
         std::any_of(std::begin(kNames), std::end(kNames), [&](const auto &names) {
           const auto has = [&](std::string_view key) {
             return std::any_of(names.begin(), names.end(),
                                [&](std::string_view name) { return isSameKey(name, key); });
           };
           return has(a) && has(b);
         });
}

JobOptions::JobOptions(const std::vector<OptionChoice> &destination,
                       const std::vector<OptionChoice> &queueDefaults) {
  for (const OptionChoice &option : destination) {
    if (isOfThePrinter(option)) continue;
    const auto byDefault = find(queueDefaults, option.key);
    list_.push_back({option, byDefault == queueDefaults.end() ? seemsGiven(option)
                                                              : isSame(option, *byDefault)});
  }
}

void JobOptions::set(const std::string &key, const std::string &choice) {
  const auto isOtherName = [&](const OptionChoice &option) {
    return !isSameKey(option.key, key) && isSameSetting(option.key, key);
  };
  const auto isMedia = [](const OptionChoice &option) { return isSameKey(option.key, "media"); };
  for (OptionChoice &option : list_)  // the tray and the kind of paper stay
    if (isOtherName(option) && isMedia(option)) option.choice = withoutPaper(option.choice);
  std::erase_if(list_, [&](const OptionChoice &option) {
    return isOtherName(option) && (!isMedia(option) || option.choice.empty());
  });
  const auto known = find(list_, key);
  if (known == list_.end())
    list_.push_back({{key, choice}, false});
  else
    *known = {{known->key, choice}, false};
}

void JobOptions::setNeutral(const std::string &key, const std::string &choice) {
  if (holds(key)) set(key, choice);
}

void JobOptions::carry(const PpdSession &session, const std::set<std::string> &others) {
  for (const auto &[key, choice, isDefault] : session.settledChoices())
    if (!others.contains(key) && (!isDefault || holds(key))) set(key, choice);
}

bool JobOptions::holds(std::string_view key) const {
  return std::any_of(list_.begin(), list_.end(),
                     [&](const OptionChoice &option) { return isSameSetting(option.key, key); });
}

std::optional<std::string> JobOptions::value(std::string_view key) const {
  const auto known = find(list_, key);
  return known == list_.end() ? std::nullopt : std::optional(known->choice);
}

std::vector<OptionChoice> JobOptions::all() const {
  return {list_.begin(), list_.end()};
}

std::vector<OptionChoice> JobOptions::chosen() const {
  std::vector<OptionChoice> chosen;
  std::copy_if(list_.begin(), list_.end(), std::back_inserter(chosen),
               [](const Option &option) { return !option.isUsual; });
  return chosen;
}

std::vector<OptionChoice> JobOptions::kept() const {
  auto kept = chosen();
  std::erase_if(kept, [](const OptionChoice &option) {
    return std::any_of(std::begin(kOfOneJob), std::end(kOfOneJob),
                       [&](std::string_view key) { return isSameKey(option.key, key); });
  });
  return kept;
}

}  // namespace kwopde::host
