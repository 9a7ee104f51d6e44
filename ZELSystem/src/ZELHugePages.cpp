#include "ZELHugePages.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstdint>

void ZELAdviseHugePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t bytes) noexcept {
#if defined(MADV_HUGEPAGE)
    constexpr std::uintptr_t kHugePage = std::uintptr_t{2} << 20;
    constexpr std::size_t kAtHand = std::size_t{8} << 20;
    const auto begin = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t first = (begin + kHugePage - 1) / kHugePage * kHugePage;
    const std::uintptr_t end = (begin + std::min(bytes, kAtHand)) / kHugePage * kHugePage;
    // Advice only: nothing depends on whether the system follows it.
    if (end > first) madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE);
#endif
}

void ZELTakePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t bytes) noexcept {
#if defined(MADV_POPULATE_WRITE)
    constexpr std::uintptr_t kPage = 4096;
    const auto begin = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t first = (begin + kPage - 1) / kPage * kPage;
    const std::uintptr_t end = (begin + bytes) / kPage * kPage;
    // Help only: a system that cannot do it gives the pages one by one.
    if (end > first) madvise(reinterpret_cast<void*>(first), end - first, MADV_POPULATE_WRITE);
#endif
}
