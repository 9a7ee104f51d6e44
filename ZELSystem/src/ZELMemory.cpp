#include "ZELMemory.h"

#include <cstdlib>
#include <new>
#include <utility>

#include "ZELFatalError.h"
#include "ZELOwnMemoryCalls.h"

namespace {

constinit std::uint32_t shortageCount = 0;

constinit ZELMemoryCalls* presentCalls = nullptr;  ///< null: the system's

void* Allocate(std::size_t bytes, std::size_t alignment) {
    return alignment > alignof(std::max_align_t) ? std::aligned_alloc(alignment, bytes) : std::malloc(bytes);
}

}  // namespace

HRESULT ZELNoteShortage() noexcept {
    ++shortageCount;
    return E_FAIL;
}

std::uint32_t ZELShortageCount() noexcept { return shortageCount; }

void ZELOutOfMemory(const char* operation) noexcept { ZELFatalError("Out of memory", operation, 24); }

void ZELShortageWatch::throw_Shortage() { throw std::bad_alloc(); }

void* ZELMemoryCalls::Allocate(std::size_t bytes, std::size_t alignment) {
    return ::Allocate(bytes, alignment);
}

void* ZELMemoryCalls::Reallocate(void* block, std::size_t bytes) { return std::realloc(block, bytes); }

ZELMemoryCalls* ZELSetMemoryCalls(ZELMemoryCalls* calls) noexcept {
    return std::exchange(presentCalls, calls);
}

void* ZELTakeBlock(std::size_t bytes, std::size_t alignment) {
    return presentCalls != nullptr ? presentCalls->Allocate(bytes, alignment) : Allocate(bytes, alignment);
}

void* ZELResizeBlock(void* block, std::size_t bytes) {
    return presentCalls != nullptr ? presentCalls->Reallocate(block, bytes) : std::realloc(block, bytes);
}
