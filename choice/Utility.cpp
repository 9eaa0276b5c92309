#include "choice/Utility.h"

#include <algorithm>

#include "choice/Encoding.h"

namespace kwopde {

std::unique_ptr<ChoiceList> ArrayFromPPDOption(const ppd_option_t *option, ChoiceMaker make) {
  if (!option) return nullptr;
  auto list = std::make_unique<ChoiceList>();
  list->reserve(static_cast<std::size_t>(std::max(option->num_choices, 0)));
  for (int i = 0; i < option->num_choices; ++i) list->push_back(make(&option->choices[i]));
  return list;
}

void InitPopUpFromArray(PopUpButton &popUp, const ChoiceList *list) {
  popUp.removeAllItems();
  Menu *const menu = popUp.menu();
  if (!menu || !list) return;
  for (const auto &choice : *list) {
    MenuItem item;
    if (const std::string *title = choice->userTitle()) item.title = *title;
    item.representedObject = choice;
    menu->addItem(std::move(item));
  }
}

PDEChoice *FindChoiceForString(const std::string *keyword, const ChoiceList *list) {
  if (!list) return nullptr;
  const auto matches = [&](const std::shared_ptr<PDEChoice> &choice) {
    if (!keyword) return choice->isDefaultChoice();
    const std::string *title = choice->ppdTitle();
    return title && *title == *keyword;
  };
  const auto found = std::find_if(list->begin(), list->end(), matches);
  return found == list->end() ? nullptr : found->get();
}

std::optional<std::string> CreateOptionTitle(const ppd_option_t *option) {
  return stringFromBytes(option ? option->text : nullptr, PPD_MAX_TEXT, Encoding::utf8);
}

std::optional<int> IndexOfChoiceIdenticalTo(const PDEChoice *choice, const ChoiceList *list) {
  if (!choice || !list) return {};
  const auto isIt = [&](const std::shared_ptr<PDEChoice> &element) {
    return element.get() == choice;
  };
  // Where its record stands, as a rule, so that a long list costs nothing.
  const auto expected = static_cast<std::size_t>(choice->position()) - 1;
  if (expected < list->size() && isIt((*list)[expected])) return static_cast<int>(expected);
  const auto found = std::find_if(list->begin(), list->end(), isIt);
  if (found == list->end()) return {};
  return static_cast<int>(found - list->begin());
}

}  // namespace kwopde
