#ifndef ZELHASH_H
#define ZELHASH_H

#include <cstdint>
#include <string_view>

#include "ZELExport.h"

/// Hash keys of texts and bytes. All depend on a seed drawn once per process, so that no document can
/// choose names or identifiers that collide; within a process they are stable. One thread.

/// The process's seed and what is derived from it; ZELHashSeed reads it.
struct ZELSYSTEM_API ZELHashState {
    std::uint64_t first;
    std::uint64_t second;
    std::uint32_t seed;
    bool drawn;
};
extern ZELSYSTEM_API ZELHashState zelHashState;

/// Draws the number from the system's source of random numbers. Called by ZELHashSeed, once.
ZELSYSTEM_API void ZELDrawHashSeed() noexcept;

/// \returns the process's seed; draws it at the first call.
inline std::uint32_t ZELHashSeed() noexcept {
    if (!zelHashState.drawn) [[unlikely]]
        ZELDrawHashSeed();
    return zelHashState.seed;
}

/// Sets the number, so that a test sees the same keys in every run. Only before the first key is made:
/// keys made earlier no longer match.
ZELSYSTEM_API void ZELSetHashSeed(std::uint32_t seed) noexcept;

/// \returns the key of \p text, all of it.
ZELSYSTEM_API std::uint32_t ZELHashText(std::string_view text) noexcept;

/// \returns the key of 16 bytes at \p bytes of which \p length count.
ZELSYSTEM_API std::uint32_t ZELHashBytes16(const unsigned char* bytes, unsigned length) noexcept;

#endif
