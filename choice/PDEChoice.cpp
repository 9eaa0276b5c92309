#include "choice/PDEChoice.h"

#include <fmt/format.h>

#include <cstdint>
#include <cstring>

#include "choice/Encoding.h"
#include "plugin/PDELogging.h"

namespace kwopde {

namespace {
Encoding ppdEncoding = Encoding::unset;

bool isNull(const char *text) {
  return text == nullptr;
}

}  // namespace

int positionInOption(const ppd_choice_t *choice, const ppd_option_t *option) {
  if (!choice || !option || option->num_choices <= 0) return 0;
  // Unsigned, so that a record before the first one is far out of range.
  const auto distance =
      reinterpret_cast<std::uintptr_t>(choice) - reinterpret_cast<std::uintptr_t>(option->choices);
  const auto index = distance / sizeof(ppd_choice_t);
  const auto count = static_cast<std::uintptr_t>(option->num_choices);
  return distance % sizeof(ppd_choice_t) == 0 && index < count ? static_cast<int>(index) + 1 : 0;
}

void PDEChoice::initialize() {
  if (ppdEncoding != Encoding::unset) return;
  ppdEncoding = Encoding::utf8;
  PDELog(nullptr, "Encoding set as %i", {static_cast<int>(ppdEncoding)});
}

std::shared_ptr<PDEChoice> PDEChoice::choiceWithChoice(ppd_choice_t *choice) {
  return std::make_shared<PDEChoice>(choice);
}

PDEChoice::PDEChoice(ppd_choice_t *choice) : choice_(choice) {
  initialize();
  if (!choice) return;
  // Safeguards that no record of CUPS sets off: its texts are arrays inside it.
  if (isNull(choice->text)) PDELog(this, "choice->text is NULL!");
  if (isNull(choice->choice)) PDELog(this, "choice->choice is NULL!");
}

PDEChoice::~PDEChoice() {
  userTitle_.reset();
  ppdTitle_.reset();
}

const std::string *PDEChoice::title(std::optional<std::string> &cache,
                                    std::optional<std::string> (*make)(const ppd_choice_t &),
                                    const char *failure) const {
  if (!cache && choice_) cache = make(*choice_);
  if (cache) return &*cache;
  if (!tracingFailure_) {
    tracingFailure_ = true;
    PDELog(this, failure);
    tracingFailure_ = false;
  }
  return nullptr;
}

const std::string *PDEChoice::userTitle() const {
  return title(
      userTitle_,
      [](const ppd_choice_t &record) {
        return stringFromBytes(record.text, PPD_MAX_TEXT, ppdEncoding);
      },
      "could not create userTitle!");
}

const std::string *PDEChoice::ppdTitle() const {
  return title(
      ppdTitle_,
      [](const ppd_choice_t &record) {
        return stringFromBytes(record.choice, PPD_MAX_NAME, Encoding::ascii);
      },
      "could not create ppdTitle!");
}

bool PDEChoice::isDefaultChoice() const {
  return choice_ && choice_->option &&
         std::strncmp(choice_->choice, choice_->option->defchoice, PPD_MAX_NAME) == 0;
}

int PDEChoice::position() const {
  return choice_ ? positionInOption(choice_, choice_->option) : 0;
}

void PDEChoice::appendDescription(std::string &out) const {
  const std::string *user = userTitle();
  const std::string *ppd = ppdTitle();
  fmt::format_to(std::back_inserter(out), "<{} ", className());
  appendAddress(out, address());
  fmt::format_to(
      std::back_inserter(out), " userTitle:\"{}\" ppdTitle:\"{}\" marked:{} choice:{} of {}>",
      user ? *user : "(null)", ppd ? *ppd : "(null)", choice_ && choice_->marked ? "YES" : "NO",
      position(), choice_ && choice_->option ? choice_->option->num_choices : 0);
}

}  // namespace kwopde
