#include "ZELXMLPositions.h"

#include <algorithm>
#include <bit>
#include <limits>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

ZELXMLPositions::ZELXMLPositions(std::string_view text, std::uint32_t markLength)
    : text_(text), markLength_(markLength) {
    // All the room now, so that an answer can never fail for want of memory.
    notes_.reserve(text.size() / kStep + 1);
    notes_.push_back({});
}

ZELVBTXMLPosition ZELXMLPositions::PositionOf(std::size_t offset) {
    const std::size_t step = offset / kStep;
    while (notes_.size() <= step) {
        const std::size_t end = notes_.size() * kStep;
        notes_.push_back(Count(notes_.back(), end - kStep, end));
    }
    const Place place = Count(notes_[step], step * kStep, offset);
    const auto fromOne = [](std::uint32_t count) {
        constexpr std::uint32_t kMost = std::numeric_limits<int>::max();
        return static_cast<int>(std::min(count, kMost - 1) + 1);
    };
    return {fromOne(place.lines), fromOne(place.characters)};
}

ZELXMLPositions::Place ZELXMLPositions::Count(Place place, std::size_t begin, std::size_t end) const {
    std::size_t index = std::max<std::size_t>(begin, markLength_);
#if defined(__SSE2__)
    // A byte more than the block is looked at, for a CR at its end.
    for (; index + kBlock < end; index += kBlock) CountBlock(text_.data() + index, place);
#endif
    for (; index < end; ++index) {
        const char c = text_[index];
        const bool lineEnd = c == '\n' || (c == '\r' && text_.data()[index + 1] != '\n');
        if (lineEnd) {
            ++place.lines;
            place.characters = 0;
        } else if ((c & 0xC0) != 0x80) {
            ++place.characters;
        }
    }
    return place;
}

#if defined(__SSE2__)

/// Counts 16 bytes at once: a bit of each mask stands for a byte.
void ZELXMLPositions::CountBlock(const char* bytes, Place& place) {
    const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    const auto mask = [](__m128i matches) { return static_cast<std::uint32_t>(_mm_movemask_epi8(matches)); };
    const std::uint32_t lineFeeds = mask(_mm_cmpeq_epi8(block, _mm_set1_epi8('\n')));
    const std::uint32_t returns = mask(_mm_cmpeq_epi8(block, _mm_set1_epi8('\r')));
    // The bytes 0x80 to 0xBF, which go on with a character, are the least ones with a sign.
    const std::uint32_t goesOn = mask(_mm_cmplt_epi8(block, _mm_set1_epi8(static_cast<char>(0xC0))));
    if ((lineFeeds | returns | goesOn) == 0) {
        place.characters += kBlock;
        return;
    }
    std::uint32_t characters = ~goesOn & 0xFFFFU;
    const std::uint32_t nextLineFeeds = lineFeeds >> 1 | (bytes[kBlock] == '\n' ? 0x8000U : 0U);
    if (const std::uint32_t lineEnds = lineFeeds | (returns & ~nextLineFeeds); lineEnds != 0) {
        place.lines += static_cast<std::uint32_t>(std::popcount(lineEnds));
        place.characters = 0;
        characters &= ~((2U << (31 - std::countl_zero(lineEnds))) - 1);
    }
    place.characters += static_cast<std::uint32_t>(std::popcount(characters));
}

#endif
