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

// The counted operators of the whole test program, in every form but the aligned ones.

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  ++count();
  return std::malloc(size == 0 ? 1 : size);
}

void* operator new(std::size_t size) {
  if (void* memory = operator new(size, std::nothrow)) return memory;
  throw std::bad_alloc{};
}

void* operator new[](std::size_t size) {
  return operator new(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& nothrow) noexcept {
  return operator new(size, nothrow);
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}

void operator delete[](void* memory) noexcept {
  std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}

void operator delete[](void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
