// Choices of the core that stand for objects of the bundle.
#pragma once

#include <memory>

#include "choice/PDEChoice.h"

namespace kwopde::cocoa {

/// Makes a choice of the core that stands for a new PDEChoice object, which it retains.
std::shared_ptr<kwopde::PDEChoice> makeChoice(ppd_choice_t *choice);

}  // namespace kwopde::cocoa
