#ifndef ZELXMLPOSITIONS_H
#define ZELXMLPOSITIONS_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "ZELVBTXMLTape.h"

/// Lines and columns of a text, worked out when they are asked for.
///
/// Notes the place at every kStep bytes, as far as was asked for, and counts on from the nearest note:
/// an answer costs kStep bytes of reading at most however long the lines are, once the notes are there.
class ZELXMLPositions {
public:
    /// \param text valid for as long as questions are asked, with a byte to read behind its end.
    /// \param markLength length of the byte order mark, which takes no column.
    ZELXMLPositions(std::string_view text, std::uint32_t markLength);

    /// The place of the byte \p offset, at most the length of the text, which is the place of its end.
    ZELVBTXMLPosition PositionOf(std::size_t offset);

private:
    static constexpr std::size_t kStep = 1024;

    /// Line breaks before a byte, and characters since the last one.
    struct Place {
        std::uint32_t lines = 0;
        std::uint32_t characters = 0;
    };

    static constexpr std::size_t kBlock = 16;

    Place Count(Place place, std::size_t begin, std::size_t end) const;
    static void CountBlock(const char* bytes, Place& place);

    std::string_view text_;
    std::uint32_t markLength_;
    std::vector<Place> notes_;  ///< entry n is the place of byte n * kStep
};

#endif
