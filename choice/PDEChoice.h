// One choice of a PPD option, as it stands behind an item of a pop-up menu.
#pragma once

#include <cups/ppd.h>

#include <memory>
#include <optional>
#include <string>

#include "platform/Object.h"

namespace kwopde {

/// Returns the place of `choice` among the choices of `option`, from 1; 0 when the record is none
/// of them, or either is null. Known from the record's address, whatever the number of choices.
int positionInOption(const ppd_choice_t *choice, const ppd_option_t *option);

class PDEChoice : public Object {
public:
  /// Prepares the class; runs by itself for the first choice, however it is made, and only once.
  static void initialize();

  /// Returns a wrapper of `choice`, which belongs to the open PPD and must outlive it. Nothing is
  /// refused: null gives a choice without titles.
  static std::shared_ptr<PDEChoice> choiceWithChoice(ppd_choice_t *choice);

  explicit PDEChoice(ppd_choice_t *choice);
  ~PDEChoice() override;

  /// Returns the text shown to people, UTF-8; made once and owned by the wrapper. Null when the
  /// PPD's bytes are not valid: that is traced, and the next call tries again.
  const std::string *userTitle() const;

  /// Returns the keyword that is marked and compared, ASCII; otherwise like `userTitle`.
  const std::string *ppdTitle() const;

  ppd_choice_t *choice() const { return choice_; }

  /// Returns whether this is the option's default.
  bool isDefaultChoice() const;

  /// Returns the place among the choices of its own option, as `positionInOption` tells it.
  int position() const;

  std::string_view className() const override { return "PDEChoice"; }
  void appendDescription(std::string &out) const override;

private:
  const std::string *title(std::optional<std::string> &cache,
                           std::optional<std::string> (*make)(const ppd_choice_t &),
                           const char *failure) const;

  mutable std::optional<std::string> userTitle_;
  mutable std::optional<std::string> ppdTitle_;
  ppd_choice_t *choice_;

  // Set while a failed title is traced: the line shows the description, which asks for both titles.
  mutable bool tracingFailure_ = false;
};

}  // namespace kwopde
