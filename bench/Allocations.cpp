#include <cstdlib>
#include <new>

#include "bench/Work.h"

namespace {

long made = 0;

}  // namespace

// Not inlined: GCC takes a pair of which one is for a mismatch.
[[gnu::noinline]] void *operator new(std::size_t size) {
  ++made;
  if (void *memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void *memory) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void *memory, std::size_t) noexcept {
  std::free(memory);
}

long kwopde::bench::allocations() {
  return made;
}
