#ifndef ZELXMLSCAN_H
#define ZELXMLSCAN_H

#include <cstring>
#include <string_view>

#include "ZELXMLChars.h"

#if defined(__SSE2__)
#include <emmintrin.h>

#include <bit>
#include <cstdint>
#endif

// The loops in which a document's bytes are passed over, 16 at a time where the processor can.
// Each stops at a NUL, and each may read up to 15 bytes behind the place where it stops.

/// The first byte that is one of \p Stops, a control character or no ASCII, one byte at a time.
template <char... Stops>
const char* ZELXMLFindSpecialPortably(const char* p) {
    while (static_cast<unsigned char>(*p) >= 0x20 && ZELXMLIsAscii(*p) && ((*p != Stops) && ...)) ++p;
    return p;
}

/// The first byte that is not an ASCII character of a name, one byte at a time.
inline const char* ZELXMLFindNameEndPortably(const char* p) {
    while (ZELXMLIs(*p, kZELXMLName)) ++p;
    return p;
}

/// Whether \p word stands at \p p, from where its length can be read.
inline bool ZELXMLStartsWith(const char* p, std::string_view word) {
    return std::memcmp(p, word.data(), word.size()) == 0;
}

/// The first byte that is no blank, tab or line end.
inline const char* ZELXMLSkipBlanks(const char* p) {
    while (ZELXMLIs(*p, kZELXMLBlank)) ++p;
    return p;
}

#if defined(__SSE2__)

inline __m128i ZELXMLLoad(const char* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }

inline std::uint32_t ZELXMLMask(__m128i bytes) {
    return static_cast<std::uint32_t>(_mm_movemask_epi8(bytes));
}

/// The bits below the lowest one of \p bits; all bits when there is none.
inline std::uint32_t ZELXMLBitsBelow(std::uint32_t bits) { return (bits - 1) & ~bits; }

template <char Usual, char... Others>
inline const char* ZELXMLFindSpecial(const char* p) {
    for (;; p += 16) {
        const __m128i bytes = ZELXMLLoad(p);
        // Compared as signed bytes, what is not ASCII is below the blank as well.
        __m128i others = _mm_cmplt_epi8(bytes, _mm_set1_epi8(0x20));
        ((others = _mm_or_si128(others, _mm_cmpeq_epi8(bytes, _mm_set1_epi8(Others)))), ...);
        const std::uint32_t usualBits = ZELXMLMask(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(Usual)));
        const std::uint32_t otherBits = ZELXMLMask(others);
        // The place of the next byte to read then waits for one comparison only; the others are predicted.
        if ((otherBits & ZELXMLBitsBelow(usualBits)) != 0) return p + std::countr_zero(otherBits);
        if (usualBits != 0) return p + std::countr_zero(usualBits);
    }
}

/// 0xFF for each byte from \p First to \p Last.
template <char First, char Last>
inline __m128i ZELXMLBytesWithin(__m128i bytes) {
    // Moves the range to the lowest signed values, so that one comparison tells it.
    const __m128i moved = _mm_add_epi8(bytes, _mm_set1_epi8(static_cast<char>(0x80 - First)));
    return _mm_cmplt_epi8(moved, _mm_set1_epi8(static_cast<char>(0x80 + Last - First + 1)));
}

inline const char* ZELXMLFindNameEnd(const char* p) {
    for (;; p += 16) {
        const __m128i bytes = ZELXMLLoad(p);
        const __m128i letters = ZELXMLBytesWithin<'a', 'z'>(_mm_or_si128(bytes, _mm_set1_epi8(0x20)));
        const __m128i slashes = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('/'));
        const __m128i signs = _mm_andnot_si128(slashes, ZELXMLBytesWithin<'-', ':'>(bytes));
        const __m128i lines = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('_'));
        const std::uint32_t name = ZELXMLMask(_mm_or_si128(_mm_or_si128(letters, signs), lines));
        const std::uint32_t equals = ZELXMLMask(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('=')));
        // As above: a name mostly ends at an equals sign.
        if (equals != 0 && (~name & ZELXMLBitsBelow(equals)) == 0) return p + std::countr_zero(equals);
        if (name != 0xFFFF) return p + std::countr_one(name);
    }
}

#else

template <char... Stops>
inline const char* ZELXMLFindSpecial(const char* p) {
    return ZELXMLFindSpecialPortably<Stops...>(p);
}
inline const char* ZELXMLFindNameEnd(const char* p) { return ZELXMLFindNameEndPortably(p); }

#endif

#endif
