#include "host/PpdFile.h"

#include <fmt/format.h>
#include <unistd.h>
#include <utf8.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>
#include <vector>

#include "host/Error.h"
#include "host/MarkableChoice.h"

namespace kwopde::host {

namespace {

struct CloseStream {
  void operator()(std::FILE *stream) const { std::fclose(stream); }
};

void visitGroups(const ppd_group_t *groups, int count,
                 const std::function<void(const ppd_option_t &)> &visit) {
  for (int g = 0; g < count; ++g) {
    for (int o = 0; o < groups[g].num_options; ++o) visit(groups[g].options[o]);
    visitGroups(groups[g].subgroups, groups[g].num_subgroups, visit);
  }
}

/// Cuts `text` before the character that is not whole, if it ends in one.
void trimToWholeCharacters(char *text) {
  char *const end = text + std::strlen(text);
  char *const valid = utf8::find_invalid(text, end);
  // Bytes that are wrong for another reason stay, to be reported.
  if (valid != end && end - valid < 4 && static_cast<unsigned char>(*valid) >= 0xC2) *valid = 0;
}

void trimTexts(ppd_file_t &ppd) {
  for (ppd_option_t *option = ppdFirstOption(&ppd); option; option = ppdNextOption(&ppd)) {
    trimToWholeCharacters(option->text);
    for (int i = 0; i < option->num_choices; ++i) trimToWholeCharacters(option->choices[i].text);
  }
}

/// Puts the texts into the user's language, but for those of numbers: panels read numbers from
/// texts, and "1,50" is another one.
void localize(ppd_file_t &ppd) {
  std::vector<std::pair<ppd_choice_t *, std::string>> numbers;
  for (ppd_option_t *option = ppdFirstOption(&ppd); option; option = ppdNextOption(&ppd))
    for (int i = 0; i < option->num_choices; ++i)
      if (wholeNumber(option->choices[i].choice))
        numbers.emplace_back(&option->choices[i], option->choices[i].text);
  ppdLocalize(&ppd);
  for (const auto &[choice, text] : numbers)
    choice->text[text.copy(choice->text, PPD_MAX_TEXT - 1)] = 0;
}

}  // namespace

PpdFile PpdFile::open(const std::string &path) {
  PpdFile file = openUntrimmed(path);
  trimTexts(*file.get());
  return file;
}

PpdFile PpdFile::read(std::FILE *file, const std::string &name) {
  PpdFile ppd = marked(ppdOpenFd(dup(fileno(file))), name);  // which closes what it is given
  trimTexts(*ppd.get());
  return ppd;
}

PpdFile PpdFile::openUntrimmed(const std::string &path) {
  // Opened here, since the library tells neither a folder nor a missing file from a bad one.
  const std::unique_ptr<std::FILE, CloseStream> stream(std::fopen(path.c_str(), "rb"));
  if (!stream || (std::getc(stream.get()) == EOF && std::ferror(stream.get())))
    throw Error(fmt::format("{}: {}", path, std::strerror(errno)));
  return marked(ppdOpenFile(path.c_str()), path);
}

PpdFile PpdFile::marked(ppd_file_t *ppd, const std::string &name) {
  if (!ppd) {
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    throw Error(fmt::format("{}:{}: {}", name, line, ppdErrorString(status)));
  }
  localize(*ppd);
  ppdMarkDefaults(ppd);
  return PpdFile(ppd);
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
  // A custom value is best told by itself.
  if (const auto value = customValue(choice)) return std::string(*value);
  return found && *found->text ? found->text : choice;
}

void PpdFile::forEachOption(const std::function<void(const ppd_option_t &)> &visit) const {
  visitGroups(ppd_->groups, ppd_->num_groups, visit);
}

}  // namespace kwopde::host
