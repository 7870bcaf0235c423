#pragma once

#include <cstddef>

namespace veraqua {

/// How often this test program has taken memory from the heap.
std::size_t HeapCount();

}  // namespace veraqua
