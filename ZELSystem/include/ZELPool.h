#ifndef ZELPOOL_H
#define ZELPOOL_H

#include <cstddef>

#include "ZELExport.h"

/// Memory for many small blocks of few sizes: a free list per size, filled from larger chunks.
///
/// Blocks of at most 512 bytes come from the lists, without a header of their own and rounded up to
/// eight bytes; larger ones from the language's allocator. A freed block serves the next request of its
/// size; chunks stay with the process. Blocks are aligned as their size allows, to 16 bytes at most, so any
/// object whose alignment is not extended may lie in one. Where the library is built with AddressSanitizer
/// every block comes from the language's allocator, so that a use after the free is seen.
/// Usable from before the first static constructor until after the last destructor. One thread.

/// \returns \p size bytes, not initialised. Throws std::bad_alloc when memory is short.
ZELSYSTEM_API void* ZELPoolAllocate(std::size_t size);

/// Gives \p block back; \p size is the one it was asked with. A null block is ignored.
ZELSYSTEM_API void ZELPoolFree(void* block, std::size_t size) noexcept;

/// Base that lets the objects of a class, and of what derives from it, come from the pool.
/// A class hierarchy destroyed through a base needs a virtual destructor, as always; it brings the size.
struct ZELSYSTEM_API ZELPooled {
    static void* operator new(std::size_t size) { return ZELPoolAllocate(size); }
    static void* operator new(std::size_t, void* place) noexcept { return place; }
    static void operator delete(void* block, std::size_t size) noexcept { ZELPoolFree(block, size); }
    static void operator delete(void*, void*) noexcept {}
};

#endif
