#include "support/allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t>& count() {
  static std::atomic<std::size_t> calls{0};
  return calls;
}

}  // namespace

namespace norvik::tests {

std::size_t allocations() {
  return count();
}

}  // namespace norvik::tests

// The counted operators of the whole test program. The other forms come down to these.

void* operator new(std::size_t size) {
  ++count();
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc{};
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
