// What the benchmarks repeat.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kwopde::bench {

/// Something that is done again and again, and counted.
struct Work {
  std::string name;
  int times;  // in a row
  /// Makes everything ready and returns what is counted, which owns what it needs.
  std::function<std::function<void()>()> prepare;
};

/// Work of the core and of the host, with plain values for controls.
std::vector<Work> works();

/// Qt's own dialog, with and without the panels, on the server's default queue.
std::vector<Work> dialogs();

/// Prints the bytes, and the number of allocations, that things take.
void printMemory();

/// The number of allocations until now.
long allocations();

}  // namespace kwopde::bench
