#include "ZELMemory.h"

#include <cstdlib>
#include <new>
#include <utility>

#include "ZELFatalError.h"
#include "ZELOwnMemoryCalls.h"

namespace {

constinit std::uint32_t shortageCount = 0;

class SystemMemoryCalls final : public ZELMemoryCalls {};

// Ready before the first initialiser: static objects of any library take memory.
constinit SystemMemoryCalls systemCalls;
constinit ZELMemoryCalls* presentCalls = &systemCalls;

}  // namespace

HRESULT ZELNoteShortage() noexcept {
    ++shortageCount;
    return E_FAIL;
}

std::uint32_t ZELShortageCount() noexcept { return shortageCount; }

void ZELOutOfMemory(const char* operation) noexcept { ZELFatalError("Out of memory", operation, 24); }

void ZELShortageWatch::throw_Shortage() { throw std::bad_alloc(); }

void* ZELMemoryCalls::Allocate(std::size_t bytes, std::size_t alignment) {
    return alignment > alignof(std::max_align_t) ? std::aligned_alloc(alignment, bytes) : std::malloc(bytes);
}

void* ZELMemoryCalls::AllocateZeroed(std::size_t bytes) { return std::calloc(bytes, 1); }

void* ZELMemoryCalls::Reallocate(void* block, std::size_t bytes) { return std::realloc(block, bytes); }

ZELMemoryCalls* ZELSetMemoryCalls(ZELMemoryCalls* calls) noexcept {
    ZELMemoryCalls* const before = std::exchange(presentCalls, calls != nullptr ? calls : &systemCalls);
    return before != &systemCalls ? before : nullptr;
}

ZELMemoryCalls& ZELPresentMemoryCalls() noexcept { return *presentCalls; }
