/// The text of a UUID without allocation, for what writes many.
#ifndef UUID_CHARACTERS_H
#define UUID_CHARACTERS_H

#include <cstddef>
#include <cstring>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

/// The 35 upper-case characters of 16 bytes, in stored order, grouped 8-4-4-16. What is behind them can be
/// read, so that all of it can be copied as a block.
struct UuidCharacters {
    static constexpr std::size_t kLength = 35;

    /// \param bytes 16 of them.
    explicit UuidCharacters(const unsigned char* bytes) {
        char digits[32];
        WriteDigits(bytes, digits);
        std::memcpy(text, digits, 8);
        text[8] = '-';
        std::memcpy(text + 9, digits + 8, 4);
        text[13] = '-';
        std::memcpy(text + 14, digits + 12, 4);
        text[18] = '-';
        std::memcpy(text + 19, digits + 16, 16);
    }

    std::string_view View() const { return {text, kLength}; }

    char text[48];

private:
#if defined(__SSE2__)
    static void WriteDigits(const unsigned char* bytes, char* digits) {
        const __m128i all = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
        const __m128i half = _mm_set1_epi8(0x0F);
        const __m128i high = _mm_and_si128(_mm_srli_epi16(all, 4), half);
        const __m128i low = _mm_and_si128(all, half);
        auto* const out = reinterpret_cast<__m128i*>(digits);
        _mm_storeu_si128(out, DigitsOf(_mm_unpacklo_epi8(high, low)));
        _mm_storeu_si128(out + 1, DigitsOf(_mm_unpackhi_epi8(high, low)));
    }

    /// The digits of 16 values below 16: letters stand seven places behind the figures.
    static __m128i DigitsOf(__m128i values) {
        const __m128i isLetter = _mm_cmpgt_epi8(values, _mm_set1_epi8(9));
        const __m128i figures = _mm_add_epi8(values, _mm_set1_epi8('0'));
        return _mm_add_epi8(figures, _mm_and_si128(isLetter, _mm_set1_epi8('A' - '0' - 10)));
    }
#else
    static void WriteDigits(const unsigned char* bytes, char* digits) {
        for (int index = 0; index < 16; ++index) {
            *digits++ = "0123456789ABCDEF"[bytes[index] >> 4];
            *digits++ = "0123456789ABCDEF"[bytes[index] & 0xF];
        }
    }
#endif
};

#endif
