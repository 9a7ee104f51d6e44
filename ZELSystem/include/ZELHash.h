#ifndef ZELHASH_H
#define ZELHASH_H

#include <cstddef>
#include <cstdint>
#include <cstring>
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

/// For standard containers whose keys come from documents: the hash of the language's own library has no
/// seed, so that a document could choose texts which all have one key.
struct ZELTextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const noexcept { return ZELHashText(text); }
};

/// Folds the 128-bit product of two words. Both carry random bits, so that nobody outside can make one
/// of them zero.
inline std::uint64_t ZELHashFold(std::uint64_t a, std::uint64_t b) noexcept {
    __extension__ typedef unsigned __int128 Product;
    const Product product = static_cast<Product>(a) * b;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

/// \returns 32 bits that are never 0, which a shared text keeps for "not worked out yet".
inline std::uint32_t ZELHashFinish(std::uint64_t hash) noexcept {
    const auto key = static_cast<std::uint32_t>(hash ^ (hash >> 32));
    return key != 0 ? key : 1;
}

/// \returns the key of 16 bytes at \p bytes of which \p length count.
inline std::uint32_t ZELHashBytes16(const unsigned char* bytes, unsigned length) noexcept {
    ZELHashSeed();
    const ZELHashState& state = zelHashState;
    std::uint64_t words[2];
    std::memcpy(words, bytes, sizeof words);
    const std::uint64_t hash = ZELHashFold(words[0] ^ state.second, words[1] ^ state.first ^ length);
    return ZELHashFinish(ZELHashFold(hash ^ state.first, state.second));
}

#endif
