#include "ZELXMLChars.h"

#include <algorithm>
#include <iterator>

namespace {

struct Range {
    std::uint32_t first;
    std::uint32_t last;
};

constexpr Range kNameStartRanges[] = {
    {0xC0, 0xD6},     {0xD8, 0xF6},     {0xF8, 0x2FF},    {0x370, 0x37D},
    {0x37F, 0x1FFF},  {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF},
    {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF},
};

/// What a name may go on with beyond what it may begin with.
constexpr Range kNameRanges[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <std::size_t N>
bool IsIn(const Range (&ranges)[N], std::uint32_t c) {
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [c](const Range& range) { return c >= range.first && c <= range.last; });
}

/// Bytes of a character by its first byte, what that byte contributes, and the least code of that length.
struct Lead {
    unsigned char mask;
    unsigned char mark;
    std::uint32_t length;
    std::uint32_t least;
};
constexpr Lead kLeads[] = {
    {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

}  // namespace

bool ZELXMLIsWideNameStart(std::uint32_t c) { return IsIn(kNameStartRanges, c); }

bool ZELXMLIsWideName(std::uint32_t c) { return IsIn(kNameStartRanges, c) || IsIn(kNameRanges, c); }

ZELXMLCharacter ZELXMLDecode(const char* p) {
    const auto byte = [p](std::uint32_t index) { return static_cast<unsigned char>(p[index]); };
    for (const Lead& lead : kLeads) {
        if ((byte(0) & lead.mask) != lead.mark) continue;
        std::uint32_t code = byte(0) & static_cast<unsigned char>(~lead.mask);
        for (std::uint32_t index = 1; index < lead.length; ++index) {
            if ((byte(index) & 0xC0) != 0x80) return {0, 0};
            code = code << 6 | (byte(index) & 0x3Fu);
        }
        const bool surrogate = code >= 0xD800 && code < 0xE000;
        if (code < lead.least || surrogate || code > 0x10FFFF) return {0, 0};
        return {code, lead.length};
    }
    return {0, 0};
}

std::uint32_t ZELXMLEncode(std::uint32_t c, char* out) {
    const auto put = [out](std::uint32_t index, std::uint32_t byte) { out[index] = static_cast<char>(byte); };
    const std::uint32_t length = c < 0x80 ? 1 : c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
    for (std::uint32_t index = length - 1; index > 0; --index, c >>= 6) put(index, 0x80 | (c & 0x3F));
    put(0, kLeads[length - 1].mark | c);
    return length;
}
