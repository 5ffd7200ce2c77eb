#pragma once
// How often this program has asked for memory.

#include <cstddef>

namespace norvik::tests {

/// The calls of operator new so far, on all threads.
std::size_t allocations();

}  // namespace norvik::tests
