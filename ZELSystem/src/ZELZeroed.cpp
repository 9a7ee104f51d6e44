#include "ZELZeroed.h"

#include <cstdlib>
#include <new>

#include "ZELHugePages.h"
#include "ZELOwnMemoryCalls.h"

void* ZELAllocateZeroed(std::size_t bytes) {
    void* const memory = ZELTakeZeroedBlock(bytes);
    if (memory == nullptr) throw std::bad_alloc();
    ZELAdviseHugePages(memory, bytes);
    // Its places are filled in any order: one by one they would each wait for a page.
    ZELTakePages(memory, bytes);
    return memory;
}

void ZELFreeZeroed(void* memory) noexcept { std::free(memory); }
