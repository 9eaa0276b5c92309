#include "host/PpdFile.h"

#include <cups/file.h>
#include <fmt/format.h>
#include <unistd.h>
#include <utf8.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <functional>
#include <iterator>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "host/Error.h"
#include "host/MarkableChoice.h"
#include "host/Stream.h"

namespace kwopde::host {

namespace {

void visitGroups(const ppd_group_t *groups, int count,
                 const std::function<void(const ppd_option_t &)> &visit) {
  for (int g = 0; g < count; ++g) {
    for (int o = 0; o < groups[g].num_options; ++o) visit(groups[g].options[o]);
    visitGroups(groups[g].subgroups, groups[g].num_subgroups, visit);
  }
}

/// Cuts `text` before the character that is not whole, if it ends in one, and puts U+FFFD where
/// there are other bytes that are no text.
void trimToWholeCharacters(char *text) {
  char *const end = text + std::strlen(text);
  char *const valid = utf8::find_invalid(text, end);
  if (valid == end) return;
  const bool isCut = end - valid < 4 && static_cast<unsigned char>(*valid) >= 0xC2;
  if (isCut) *valid = 0;
  if (isCut) return;
  std::string readable;
  utf8::replace_invalid(text, end, std::back_inserter(readable));
  if (readable.size() >= PPD_MAX_TEXT) readable.resize(PPD_MAX_TEXT - 1);
  readable.erase(utf8::find_invalid(readable.begin(), readable.end()), readable.end());
  text[readable.copy(text, PPD_MAX_TEXT - 1)] = 0;
}

void trimTexts(ppd_file_t &ppd) {
  for (ppd_option_t *option = ppdFirstOption(&ppd); option; option = ppdNextOption(&ppd)) {
    trimToWholeCharacters(option->text);
    for (int i = 0; i < option->num_choices; ++i) trimToWholeCharacters(option->choices[i].text);
  }
}

/// Returns whether the PPD has texts in the user's language beside its own: "*de.PageSize". The
/// library reads no others.
bool hasTranslations(const ppd_file_t &ppd) {
  return std::any_of(ppd.attrs, ppd.attrs + ppd.num_attrs, [](const ppd_attr_t *attribute) {
    return std::strchr(attribute->name, '.') != nullptr;
  });
}

/// Puts the texts into the user's language, but for those of numbers: panels read numbers from
/// texts, and "1,50" is another one. The library searches for each text, also where it has none.
void localize(ppd_file_t &ppd) {
  if (!hasTranslations(ppd)) return;
  std::vector<std::pair<ppd_choice_t *, std::string>> numbers;
  for (ppd_option_t *option = ppdFirstOption(&ppd); option; option = ppdNextOption(&ppd))
    for (int i = 0; i < option->num_choices; ++i)
      if (wholeNumber(option->choices[i].choice))
        numbers.emplace_back(&option->choices[i], option->choices[i].text);
  ppdLocalize(&ppd);
  for (const auto &[choice, text] : numbers)
    choice->text[text.copy(choice->text, PPD_MAX_TEXT - 1)] = 0;
}

/// Goes back to the beginning of `file`. Throws `Error`.
void rewind(std::FILE *file, const std::string &name) {
  if (std::fseek(file, 0, SEEK_SET) != 0 || lseek(fileno(file), 0, SEEK_SET) != 0)
    throw Error(fmt::format("{}: {}", name, std::strerror(errno)));
}

/// Returns all of a PPD, packed or not. Throws `Error` for more than the most, to which a small
/// packed one can grow.
std::string unpacked(std::FILE *file, const std::string &name) {
  rewind(file, name);
  const std::unique_ptr<cups_file_t, decltype(&cupsFileClose)> source(
      cupsFileOpenFd(dup(fileno(file)), "r"), cupsFileClose);
  std::string text;
  std::array<char, 16384> block;
  ssize_t size = 0;
  while (source && (size = cupsFileRead(source.get(), block.data(), block.size())) > 0) {
    text.append(block.data(), static_cast<std::size_t>(size));
    if (text.size() > kMostBytes)
      throw Error(fmt::format("{}: has more than {} MB", name, kMostBytes >> 20));
  }
  return text;
}

/// The CUPS library compares a PPD's options with its lines, and the choices of an option with each
/// other. So many comparisons take it some seconds.
constexpr std::size_t kMostComparisons = 500'000'000;

/// Throws `Error` for a PPD that the library would not be done with for minutes.
void expectFewOptions(std::string_view text, const std::string &name) {
  std::size_t options = 0;
  std::size_t lines = 0;
  std::size_t choices = 0;  // of the option that a line belongs to
  std::size_t ofChoices = 0;
  bool isInOption = false;
  auto feed = text.find('\n');
  auto carriageReturn = text.find('\r');
  for (std::size_t at = 0; at < text.size(); ++lines) {
    if (feed < at) feed = text.find('\n', at);
    if (carriageReturn < at) carriageReturn = text.find('\r', at);
    const auto end = std::min({feed, carriageReturn, text.size()});
    const std::string_view line = text.substr(at, end - at);
    at = end + (end == carriageReturn && feed == end + 1 ? 2 : 1);
    const bool begins = line.starts_with("*OpenUI") || line.starts_with("*JCLOpenUI");
    const bool ends = line.starts_with("*CloseUI") || line.starts_with("*JCLCloseUI");
    isInOption = begins || (isInOption && !ends);
    options += begins ? 1 : 0;
    choices = isInOption && !begins ? choices + 1 : 0;
    ofChoices += choices;
  }
  if (options * lines + ofChoices > kMostComparisons)
    throw Error(fmt::format("{}: has too many options and choices: {} lines, {} options", name,
                            lines, options));
}

}  // namespace

PpdFile PpdFile::open(const std::string &path) {
  return read(openRepeatable(path).get(), path);
}

PpdFile PpdFile::read(std::FILE *file, const std::string &name) {
  PpdFile ppd = readAsWritten(file, name);
  localize(*ppd.get());
  trimTexts(*ppd.get());
  return ppd;
}

PpdFile PpdFile::readAsWritten(std::FILE *file, const std::string &name) {
  const std::size_t fingerprint = fingerprintOf(file, name);
  rewind(file, name);
  ppd_file_t *const ppd = ppdOpenFd(dup(fileno(file)));  // which closes what it is given
  if (!ppd) {
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    throw Error(fmt::format("{}:{}: {}", name, line, ppdErrorString(status)));
  }
  ppdMarkDefaults(ppd);
  return {ppd, fingerprint};
}

std::size_t PpdFile::fingerprintOf(std::FILE *file, const std::string &name) {
  const std::string text = unpacked(file, name);
  expectFewOptions(text, name);
  return std::hash<std::string>()(text);
}

std::string PpdFile::nickname() const {
  return ppd_->nickname ? ppd_->nickname : "";
}

std::string PpdFile::textOf(const std::string &key) const {
  const ppd_option_t *option = ppdFindOption(get(), key.c_str());
  return option && *option->text ? option->text : key;
}

std::string PpdFile::textOf(const std::string &key, const std::string &choice) const {
  ppd_option_t *option = ppdFindOption(get(), key.c_str());
  const ppd_choice_t *found = option ? ppdFindChoice(option, choice.c_str()) : nullptr;
  // A custom value is best told by itself, unless it is nobody else's business.
  if (const auto value = customValue(choice)) return isSecret(key) ? kHidden : std::string(*value);
  return found && *found->text ? found->text : choice;
}

bool PpdFile::isSecret(const std::string &key) const {
  const ppd_coption_t *custom = ppdFindCustomOption(get(), key.c_str());
  if (!custom) return false;
  for (int i = 0; i < cupsArrayCount(custom->params); ++i) {
    const auto *parameter = static_cast<ppd_cparam_t *>(cupsArrayIndex(custom->params, i));
    if (parameter->type == PPD_CUSTOM_PASSWORD || parameter->type == PPD_CUSTOM_PASSCODE)
      return true;
  }
  return false;
}

void PpdFile::forEachOption(const std::function<void(const ppd_option_t &)> &visit) const {
  visitGroups(ppd_->groups, ppd_->num_groups, visit);
}

}  // namespace kwopde::host
