#ifndef ZELZEROED_H
#define ZELZEROED_H

#include <cstddef>
#include <memory>
#include <type_traits>

#include "ZELExport.h"

/// \returns \p bytes of zeros, which ZELFreeZeroed takes back. They begin with a line of the cache. Large
/// blocks come from the system in few, large pages where it has them, so that jumps all over one seldom miss
/// the processor's table of pages. Throws std::bad_alloc when there is no memory.
ZELSYSTEM_API void* ZELAllocateZeroed(std::size_t bytes);
ZELSYSTEM_API void ZELFreeZeroed(void* memory) noexcept;

struct ZELZeroedDelete {
    void operator()(void* memory) const noexcept { ZELFreeZeroed(memory); }
};

/// A row of values that are all zero bits at first: for tables, which are read and written at random places.
template <class T>
using ZELZeroed = std::unique_ptr<T[], ZELZeroedDelete>;

template <class T>
ZELZeroed<T> ZELMakeZeroed(std::size_t count) {
    static_assert(std::is_trivial_v<T>);
    return ZELZeroed<T>(static_cast<T*>(ZELAllocateZeroed(count * sizeof(T))));
}

#endif
