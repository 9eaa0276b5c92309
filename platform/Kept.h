// References that are taken and, on purpose, never given back.
#pragma once

#include <memory>
#include <utility>
#include <vector>

namespace kwopde {

/// Keeps `reference` for the rest of the process. It stays reachable, so leak checkers are silent
/// about it and about nothing else. Each call says why the reference is not given back.
inline void keepForever(std::shared_ptr<const void> reference) {
  static auto *const kept = new std::vector<std::shared_ptr<const void>>;
  kept->push_back(std::move(reference));
}

}  // namespace kwopde
