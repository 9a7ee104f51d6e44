#include "ZELPool.h"

#include <algorithm>
#include <cstddef>
#include <new>

#include "ZELHugePages.h"
#include "ZELOwnMemoryCalls.h"

#if defined(__SANITIZE_ADDRESS__)
#define ZELPOOL_BYPASSED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZELPOOL_BYPASSED 1
#endif
#endif

#ifdef ZELPOOL_BYPASSED

constinit ZELPoolLists zelPoolLists = {{}, 0};

void* ZELPoolRefill(std::size_t size) { return ::operator new(size); }

#else

// Neither constructed nor destroyed, so that they serve static objects of any library.
constinit ZELPoolLists zelPoolLists = {{}, ZELPoolLists::kLargest + 1};

namespace {

constexpr std::size_t kFirstChunk = 1024;
// A little less than what the C allocator would give pages of its own, rounded up.
constexpr std::size_t kLargestChunk = std::size_t{128} * 1024 - 64;

/// Head of a chunk.
struct Chunk {
    Chunk* next;
};

/// The newest chunk of the blocks of one size.
struct SizeClass {
    unsigned char* unused;  ///< its rest, up to unusedEnd
    unsigned char* unusedEnd;
    std::size_t chunkBytes;
};

constinit SizeClass sizeClasses[ZELPoolLists::kCount] = {};
constinit Chunk* chunks = nullptr;  ///< all of them: keeps leak detectors quiet about what is in use at exit

/// \returns the size of the blocks of a list.
constexpr std::size_t BlockSize(std::size_t list) noexcept {
    using Lists = ZELPoolLists;
    if (list <= Lists::kSmallCount) return std::max<std::size_t>(list, 1) * Lists::kGranule;
    return Lists::kLargestSmall + (list - Lists::kSmallCount) * Lists::kLine;
}

/// \returns where in a chunk the blocks begin: behind the head, aligned as their size allows.
constexpr std::size_t FirstBlock(std::size_t blockSize) noexcept {
    return blockSize % 32 == 0 ? ZELPoolLists::kLine : 2 * sizeof(Chunk);
}

void AddChunk(SizeClass& sizeClass, std::size_t blockSize) {
    const std::size_t wanted = std::clamp(sizeClass.chunkBytes * 2, kFirstChunk, kLargestChunk);
    const std::size_t first = FirstBlock(blockSize);
    const std::size_t bytes = first + (wanted - first) / blockSize * blockSize;
    constexpr std::size_t kLine = ZELPoolLists::kLine;
    void* const memory = first == kLine ? ZELTakeBlock((bytes + kLine - 1) / kLine * kLine, kLine)
                                        : ZELTakeBlock(bytes, alignof(std::max_align_t));
    if (memory == nullptr) throw std::bad_alloc();
    // A class that has come to the largest chunks will fill this one too.
    if (wanted == kLargestChunk) ZELTakePages(memory, bytes);
    chunks = ::new (memory) Chunk{chunks};
    sizeClass.unused = static_cast<unsigned char*>(memory) + first;
    sizeClass.unusedEnd = static_cast<unsigned char*>(memory) + bytes;
    sizeClass.chunkBytes = wanted;
}

}  // namespace

void* ZELPoolRefill(std::size_t size) {
    if (size > ZELPoolLists::kLargest) return ::operator new(size);
    const std::size_t list = ZELPoolLists::ListOf(size);
    SizeClass& sizeClass = sizeClasses[list];
    const std::size_t blockSize = BlockSize(list);
    if (sizeClass.unused == sizeClass.unusedEnd) AddChunk(sizeClass, blockSize);
    void* const block = sizeClass.unused;
    sizeClass.unused += blockSize;
    return block;
}

#endif
