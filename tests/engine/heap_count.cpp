#include "tests/engine/heap_count.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t count = 0;

}  // namespace

// Apart from the code that allocates: inlined there, the compiler would take them for a mismatched pair.
void* operator new(std::size_t size) {
    ++count;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

std::size_t veraqua::HeapCount() { return count; }
