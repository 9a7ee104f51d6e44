#include "ZELHash.h"

#include <sys/random.h>

#include <cstring>
#include <ctime>

constinit ZELHashState zelHashState = {};

namespace {

__extension__ typedef unsigned __int128 Product;

/// Folds the 128-bit product of two words. Both words carry bits of this seed, so that nobody outside can
/// make one of them zero.
std::uint64_t Fold(std::uint64_t a, std::uint64_t b) noexcept {
    const Product product = static_cast<Product>(a) * b;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

/// Spreads \p word over 64 bits (a step of the splitmix generator).
std::uint64_t Spread(std::uint64_t word) noexcept {
    word += 0x9E3779B97F4A7C15ULL;
    word = (word ^ (word >> 30)) * 0xBF58476D1CE4E5B9ULL;
    word = (word ^ (word >> 27)) * 0x94D049BB133111EBULL;
    return word ^ (word >> 31);
}

template <class Word>
std::uint64_t Load(const char* bytes) noexcept {
    Word word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

/// \returns 32 bits that are never 0, which a shared text keeps for "not worked out yet".
std::uint32_t Finish(std::uint64_t hash) noexcept {
    const auto key = static_cast<std::uint32_t>(hash ^ (hash >> 32));
    return key != 0 ? key : 1;
}

}  // namespace

void ZELSetHashSeed(std::uint32_t seed) noexcept {
    zelHashState = {Spread(seed), Spread(Spread(seed) ^ seed), seed, true};
}

void ZELDrawHashSeed() noexcept {
    std::uint32_t seed = 0;
    if (getrandom(&seed, sizeof seed, GRND_NONBLOCK) != sizeof seed) {
        // Too early after the machine's start for good numbers: an address and the time must do.
        const auto address = reinterpret_cast<std::uintptr_t>(&seed);
        seed = static_cast<std::uint32_t>(Spread(address ^ static_cast<std::uint64_t>(std::time(nullptr))));
    }
    ZELSetHashSeed(seed);
}

std::uint32_t ZELHashText(std::string_view text) noexcept {
    ZELHashSeed();
    const std::uint64_t first = zelHashState.first;
    const std::uint64_t second = zelHashState.second;
    const char* bytes = text.data();
    std::size_t left = text.size();
    std::uint64_t hash = first ^ left;
    for (; left > 16; left -= 16, bytes += 16) {
        hash = Fold(Load<std::uint64_t>(bytes) ^ second, Load<std::uint64_t>(bytes + 8) ^ hash);
    }
    // The last 1 to 16 bytes as two words that may overlap; the length is in the hash already.
    std::uint64_t low = 0;
    std::uint64_t high = 0;
    if (left >= 8) {
        low = Load<std::uint64_t>(bytes);
        high = Load<std::uint64_t>(bytes + left - 8);
    } else if (left >= 4) {
        low = Load<std::uint32_t>(bytes);
        high = Load<std::uint32_t>(bytes + left - 4);
    } else if (left > 0) {
        low = static_cast<unsigned char>(bytes[0]);
        high = static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[left / 2])) << 8 |
               static_cast<unsigned char>(bytes[left - 1]);
    }
    return Finish(Fold(Fold(low ^ second, high ^ hash) ^ first, second));
}

std::uint32_t ZELHashBytes16(const unsigned char* bytes, unsigned length) noexcept {
    ZELHashSeed();
    std::uint64_t words[2];
    std::memcpy(words, bytes, sizeof words);
    const std::uint64_t hash = Fold(words[0] ^ zelHashState.second, words[1] ^ zelHashState.first ^ length);
    return Finish(Fold(hash ^ zelHashState.first, zelHashState.second));
}
