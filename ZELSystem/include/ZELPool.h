#ifndef ZELPOOL_H
#define ZELPOOL_H

#include <cstddef>
#include <new>

#include "ZELExport.h"

/// Memory for many small blocks of few sizes: a free list per size, filled from larger chunks.
///
/// Blocks of at most 512 bytes come from the lists, without a header of their own and rounded up to
/// eight bytes, or to lines of the cache, 64 bytes, above 128; larger ones from the language's allocator. A
/// freed block serves the next request of its size; chunks stay with the process. Blocks are aligned as their
/// size allows, to a line at most, so any object whose alignment is not extended may lie in one. Where the
/// library is built with AddressSanitizer every block comes from the language's allocator, so that a use
/// after the free is seen. Usable from before the first static constructor until after the last destructor.
/// One thread.

/// A block that nobody has.
struct ZELSYSTEM_API ZELPoolBlock {
    ZELPoolBlock* next;
};

/// What the inline functions below need: the lists, and which blocks are in them.
struct ZELSYSTEM_API ZELPoolLists {
    static constexpr std::size_t kGranule = 8;
    static constexpr std::size_t kLine = 64;
    static constexpr std::size_t kLargestSmall = 128;  ///< up to it by granules, then by lines
    static constexpr std::size_t kSmallCount = kLargestSmall / kGranule;
    static constexpr std::size_t kLargest = 512;
    static constexpr std::size_t kCount = kSmallCount + (kLargest - kLargestSmall) / kLine + 1;

    ZELPoolBlock* free[kCount];  ///< blocks of one size, the one given back last first
    std::size_t tooLarge;        ///< from this size on blocks are not in the lists; 0 where none is

    static constexpr std::size_t ListOf(std::size_t size) noexcept {
        if (size <= kLargestSmall) return (size + kGranule - 1) / kGranule;
        return kSmallCount + (size - kLargestSmall + kLine - 1) / kLine;
    }
};
extern ZELSYSTEM_API ZELPoolLists zelPoolLists;

/// What ZELPoolAllocate does when the list of the size is empty, or there is none.
ZELSYSTEM_API void* ZELPoolRefill(std::size_t size);

/// \returns \p size bytes, not initialised. Throws std::bad_alloc when memory is short.
inline void* ZELPoolAllocate(std::size_t size) {
    if (size <= ZELPoolLists::kLargest) {
        ZELPoolBlock*& list = zelPoolLists.free[ZELPoolLists::ListOf(size)];
        if (ZELPoolBlock* const block = list) {
            list = block->next;
            return block;
        }
    }
    return ZELPoolRefill(size);
}

/// Gives \p block back; \p size is the one it was asked with. A null block is ignored.
inline void ZELPoolFree(void* block, std::size_t size) noexcept {
    if (block == nullptr) return;
    if (size >= zelPoolLists.tooLarge) return ::operator delete(block);
    ZELPoolBlock*& list = zelPoolLists.free[ZELPoolLists::ListOf(size)];
    list = ::new (block) ZELPoolBlock{list};
}

/// Base that lets the objects of a class, and of what derives from it, come from the pool.
/// A class hierarchy destroyed through a base needs a virtual destructor, as always; it brings the size.
struct ZELSYSTEM_API ZELPooled {
    static void* operator new(std::size_t size) { return ZELPoolAllocate(size); }
    static void* operator new(std::size_t, void* place) noexcept { return place; }
    static void operator delete(void* block, std::size_t size) noexcept { ZELPoolFree(block, size); }
    static void operator delete(void*, void*) noexcept {}
};

#endif
