#ifndef ZELHASH_H
#define ZELHASH_H

#include <cstdint>
#include <cstring>
#include <string_view>

#include "ZELExport.h"

/// Hash keys of texts and bytes. All depend on a seed drawn once per process, so that no document can
/// choose names or identifiers that collide; within a process they are stable. One thread.

/// \returns the process's seed; draws it at the first call.
ZELSYSTEM_API std::uint32_t ZELHashSeed() noexcept;

/// Sets the seed, so that a test sees the same keys in every run. Only before the first key is made:
/// keys made earlier no longer match.
ZELSYSTEM_API void ZELSetHashSeed(std::uint32_t seed) noexcept;

/// \returns the key of \p text, all of it.
ZELSYSTEM_API std::uint32_t ZELHashText(std::string_view text) noexcept;

/// \returns the key of 16 bytes at \p bytes of which \p length count.
ZELSYSTEM_API std::uint32_t ZELHashBytes16(const unsigned char* bytes, unsigned length) noexcept;

#endif
