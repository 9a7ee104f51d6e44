#include "ZELXMLPositions.h"

#include <algorithm>
#include <limits>

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
    for (std::size_t index = std::max<std::size_t>(begin, markLength_); index < end; ++index) {
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
