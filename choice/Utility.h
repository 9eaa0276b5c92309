// From a PPD option to a list of choices, from there to a pop-up menu, and back from a keyword.
#pragma once

#include <cups/ppd.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "choice/PDEChoice.h"
#include "platform/Controls.h"

namespace kwopde {

/// The choices of one option, in the option's order.
using ChoiceList = std::vector<std::shared_ptr<PDEChoice>>;

/// Makes the wrapper of one choice.
using ChoiceMaker = std::shared_ptr<PDEChoice> (*)(ppd_choice_t *choice);

/// Returns a new list with a wrapper, made by `make`, for every choice of `option`; null for a null
/// option, and empty for one without choices.
std::unique_ptr<ChoiceList> ArrayFromPPDOption(const ppd_option_t *option,
                                               ChoiceMaker make = &PDEChoice::choiceWithChoice);

/// Replaces the items of `popUp` by one for each choice of `list`, titled with its `userTitle` and
/// representing it. Selects nothing; a null list only empties the pop-up.
void InitPopUpFromArray(PopUpButton &popUp, const ChoiceList *list);

/// Returns the first choice of `list` with the keyword `keyword` (exact, letter case included), or
/// with a null keyword the first that is its option's default; owned by the list. Null when there
/// is none.
PDEChoice *FindChoiceForString(const std::string *keyword, const ChoiceList *list);

/// Returns the text that `option` shows to people; none when it is not valid UTF-8, or `option` is
/// null.
std::optional<std::string> CreateOptionTitle(const ppd_option_t *option);

/// Returns the index of this very object in `list`, from 0; none when it is not an element.
std::optional<int> IndexOfChoiceIdenticalTo(const PDEChoice *choice, const ChoiceList *list);

}  // namespace kwopde
