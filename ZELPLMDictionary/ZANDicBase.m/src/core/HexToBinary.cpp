#include "HexToBinary.h"

#include <array>
#include <cstring>

#include "UuidCharacters.h"
#include "ZELFatalError.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace {

constexpr int kUuidBytes = 16;
constexpr std::size_t kBufferSize = 64;
constexpr unsigned char kInvalid = 0xFF;
constexpr char kDigits[] = "0123456789ABCDEF";

using ByteTable = std::array<unsigned char, 256>;

/// The digit of a byte's half, by byte.
constexpr ByteTable DigitsOf(int shift) {
    ByteTable table{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        table[byte] = static_cast<unsigned char>(kDigits[byte >> shift & 0xFU]);
    }
    return table;
}

/// The value of a digit in a byte's half, by character; 0xFF for what is no digit.
constexpr ByteTable ValuesOf(int shift) {
    ByteTable table{};
    table.fill(kInvalid);
    for (unsigned value = 0; value < 16; ++value) {
        const auto upper = static_cast<unsigned char>(kDigits[value]);
        const auto lower = value < 10 ? upper : static_cast<unsigned char>(upper + ('a' - 'A'));
        table[upper] = table[lower] = static_cast<unsigned char>(value << shift);
    }
    return table;
}

constexpr ByteTable kHighDigit = DigitsOf(4);
constexpr ByteTable kLowDigit = DigitsOf(0);
constexpr ByteTable kHighValue = ValuesOf(4);
constexpr ByteTable kLowValue = ValuesOf(0);

constexpr bool HasDashBefore(int index) { return index == 4 || index == 6 || index == 8; }

#if defined(__SSE2__)

/// The values of 16 digits as bytes; \p areDigits is told whether they all are.
inline __m128i ValuesOfDigits(__m128i text, bool& areDigits) {
    const __m128i lower = _mm_or_si128(text, _mm_set1_epi8(0x20));
    const auto within = [](__m128i bytes, char first, char last) {
        return _mm_and_si128(_mm_cmpgt_epi8(bytes, _mm_set1_epi8(static_cast<char>(first - 1))),
                             _mm_cmplt_epi8(bytes, _mm_set1_epi8(static_cast<char>(last + 1))));
    };
    const __m128i isNumber = within(text, '0', '9');
    const __m128i isLetter = within(lower, 'a', 'f');
    areDigits = _mm_movemask_epi8(_mm_or_si128(isNumber, isLetter)) == 0xFFFF;
    const __m128i base = _mm_or_si128(_mm_and_si128(isNumber, _mm_set1_epi8('0')),
                                      _mm_and_si128(isLetter, _mm_set1_epi8('a' - 10)));
    return _mm_sub_epi8(lower, base);
}

/// The bytes of 16 digits, each in a word of 16 bits.
inline __m128i PairsOf(__m128i values) {
    const __m128i high = _mm_slli_epi16(_mm_and_si128(values, _mm_set1_epi16(0xFF)), 4);
    return _mm_or_si128(high, _mm_srli_epi16(values, 8));
}

/// Decodes what UuidText writes, in a few steps. \returns false, \p decoded not written, for any other text.
bool DecodeUsualText(std::string_view text, unsigned char* decoded) {
    const char* const at = text.data();
    if (text.size() != 35 || at[8] != '-' || at[13] != '-' || at[18] != '-') return false;
    char front[16];
    std::memcpy(front, at, 8);
    std::memcpy(front + 8, at + 9, 4);
    std::memcpy(front + 12, at + 14, 4);
    bool isFront = false;
    bool isBack = false;
    const __m128i first = ValuesOfDigits(_mm_loadu_si128(reinterpret_cast<const __m128i*>(front)), isFront);
    const __m128i second = ValuesOfDigits(_mm_loadu_si128(reinterpret_cast<const __m128i*>(at + 19)), isBack);
    if (!isFront || !isBack) return false;
    _mm_storeu_si128(reinterpret_cast<__m128i*>(decoded), _mm_packus_epi16(PairsOf(first), PairsOf(second)));
    return true;
}

#else

bool DecodeUsualText(std::string_view, unsigned char*) { return false; }

#endif

}  // namespace

void UuidBinToHexa(unsigned char* bytes, int /*bytesLength*/, unsigned char* text, int /*textLength*/) {
    const UuidCharacters characters(bytes);
    std::memcpy(text, characters.text, UuidCharacters::kLength);
    text[UuidCharacters::kLength] = 0;
}

void UuidBinToHexa_V2(unsigned char* bytes, int length, unsigned char* text, int /*textLength*/) {
    for (int index = 0; index < length; ++index) {
        if (HasDashBefore(index)) *text++ = '-';
        *text++ = kHighDigit[bytes[index]];
        *text++ = kLowDigit[bytes[index]];
    }
    *text = 0;
}

ZELDbBinary UuidFromText(std::string_view text) {
    unsigned char decoded[kUuidBytes];
    if (DecodeUsualText(text, decoded)) return {decoded, kUuidBytes};

    // The zeros behind a short text are no digits, so decoding needs no test of the end. The most that it
    // reads is a dash before each of 16 pairs and one after the last.
    unsigned char buffer[kBufferSize] = {};
    text.copy(reinterpret_cast<char*>(buffer), kBufferSize);

    const unsigned char* next = buffer;
    if (*next == '-') ++next;
    for (unsigned char& byte : decoded) {
        byte = static_cast<unsigned char>(kHighValue[next[0]] | kLowValue[next[1]]);
        next += 2;
        if (*next == '-') ++next;
    }
    return {decoded, kUuidBytes};
}

void UuidHexToBinary(ZELString* text, ZELDbBinary* bytes) {
    if (text == nullptr) ZELFatalError("AssertionFailed:Hex", "HexToBinary", 122);
    const ZELDbBinary decoded = UuidFromText(text->View());
    // Deliberate: tested only after the decoding (HexToBinaryDeathTest.EndsTheProcessWithoutAnOutput).
    if (bytes == nullptr) ZELFatalError("AssertionFailed:Bin", "HexToBinary", 164);
    *bytes = decoded;
}

std::string UuidText(const ZELDbBinary& uuid) {
    if (uuid.IsEmpty()) return "UNDEFINED";

    unsigned char bytes[ZELDbBinary::kCapacity];
    std::memcpy(bytes, uuid.Data(), sizeof bytes);
    unsigned char text[2 * ZELDbBinary::kCapacity + 4];
    UuidBinToHexa_V2(bytes, uuid.Length(), text, sizeof text);
    return reinterpret_cast<const char*>(text);
}
