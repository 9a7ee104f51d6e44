#include "ZELPool.h"

#include <algorithm>
#include <cstdlib>
#include <new>

#include "ZELHugePages.h"

#if defined(__SANITIZE_ADDRESS__)
#define ZELPOOL_BYPASSED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZELPOOL_BYPASSED 1
#endif
#endif

#ifdef ZELPOOL_BYPASSED

void* ZELPoolAllocate(std::size_t size) { return ::operator new(size); }
void ZELPoolFree(void* block, std::size_t) noexcept { ::operator delete(block); }

#else

namespace {

constexpr std::size_t kGranule = 8;
constexpr std::size_t kLargestBlock = 512;
constexpr std::size_t kFirstChunk = 1024;
// A little less than what the C allocator would give pages of its own, rounded up.
constexpr std::size_t kLargestChunk = std::size_t{128} * 1024 - 64;

struct FreeBlock {
    FreeBlock* next;
};

/// Head of a chunk; keeps the blocks behind it aligned to 16 bytes.
struct alignas(16) Chunk {
    Chunk* next;
};

/// Blocks of one size.
struct SizeClass {
    FreeBlock* free;        ///< given back, last first
    unsigned char* unused;  ///< rest of the newest chunk, up to unusedEnd
    unsigned char* unusedEnd;
    std::size_t chunkBytes;  ///< of the newest chunk
};

// Neither constructed nor destroyed, so that they serve static objects of any library.
constinit SizeClass sizeClasses[kLargestBlock / kGranule + 1] = {};
constinit Chunk* chunks = nullptr;  ///< all of them: keeps leak detectors quiet about what is in use at exit

void AddChunk(SizeClass& sizeClass, std::size_t blockSize) {
    const std::size_t wanted = std::clamp(sizeClass.chunkBytes * 2, kFirstChunk, kLargestChunk);
    const std::size_t bytes = (wanted - sizeof(Chunk)) / blockSize * blockSize;
    void* const memory = std::malloc(sizeof(Chunk) + bytes);
    if (memory == nullptr) throw std::bad_alloc();
    // A class that has come to the largest chunks will fill this one too.
    if (wanted == kLargestChunk) ZELTakePages(memory, sizeof(Chunk) + bytes);
    chunks = ::new (memory) Chunk{chunks};
    sizeClass.unused = static_cast<unsigned char*>(memory) + sizeof(Chunk);
    sizeClass.unusedEnd = sizeClass.unused + bytes;
    sizeClass.chunkBytes = wanted;
}

}  // namespace

void* ZELPoolAllocate(std::size_t size) {
    if (size > kLargestBlock) return ::operator new(size);
    const std::size_t granules = size > 0 ? (size + kGranule - 1) / kGranule : 1;
    SizeClass& sizeClass = sizeClasses[granules];
    if (FreeBlock* const block = sizeClass.free) {
        sizeClass.free = block->next;
        return block;
    }
    const std::size_t blockSize = granules * kGranule;
    if (sizeClass.unused == sizeClass.unusedEnd) AddChunk(sizeClass, blockSize);
    void* const block = sizeClass.unused;
    sizeClass.unused += blockSize;
    return block;
}

void ZELPoolFree(void* block, std::size_t size) noexcept {
    if (block == nullptr) return;
    if (size > kLargestBlock) return ::operator delete(block);
    SizeClass& sizeClass = sizeClasses[size > 0 ? (size + kGranule - 1) / kGranule : 1];
    sizeClass.free = ::new (block) FreeBlock{sizeClass.free};
}

#endif
