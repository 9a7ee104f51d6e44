#include "ZELZeroed.h"

#include <cstdlib>
#include <cstring>
#include <new>

#include "ZELHugePages.h"
#include "ZELOwnMemoryCalls.h"

void* ZELAllocateZeroed(std::size_t bytes) {
    constexpr std::size_t kLine = 64;
    const std::size_t room = (bytes + kLine - 1) / kLine * kLine;
    void* const memory = ZELTakeBlock(room, kLine);
    if (memory == nullptr) throw std::bad_alloc();
    ZELAdviseHugePages(memory, room);
    // All pages at once: one by one each would be waited for.
    ZELTakePages(memory, room);
    return std::memset(memory, 0, room);
}

void ZELFreeZeroed(void* memory) noexcept { std::free(memory); }
