#include "ZELHash.h"

#include <sys/random.h>

#include <cstring>
#include <ctime>

constinit ZELHashState zelHashState = {};

namespace {

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

/// What ZELHashText gives; the process must have its number already.
inline std::uint32_t HashDrawn(std::string_view text) noexcept {
    const std::uint64_t first = zelHashState.first;
    const std::uint64_t second = zelHashState.second;
    const char* bytes = text.data();
    std::size_t left = text.size();
    std::uint64_t hash = first ^ left;
    for (; left > 16; left -= 16, bytes += 16) {
        hash = ZELHashFold(Load<std::uint64_t>(bytes) ^ second, Load<std::uint64_t>(bytes + 8) ^ hash);
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
    return ZELHashFinish(ZELHashFold(ZELHashFold(low ^ second, high ^ hash) ^ first, second));
}

/// The same for the first text of a process: apart, so that the usual case has nothing to keep across a call.
[[gnu::cold, gnu::noinline]] std::uint32_t DrawAndHash(std::string_view text) noexcept {
    ZELDrawHashSeed();
    return HashDrawn(text);
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
    if (!zelHashState.drawn) [[unlikely]]
        return DrawAndHash(text);
    return HashDrawn(text);
}
