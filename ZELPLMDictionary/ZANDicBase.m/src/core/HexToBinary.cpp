#include "HexToBinary.h"

#include <array>
#include <cstring>

#include "UuidCharacters.h"
#include "ZELFatalError.h"

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
    // The zeros behind a short text are no digits, so decoding needs no test of the end. The most that it
    // reads is a dash before each of 16 pairs and one after the last.
    unsigned char buffer[kBufferSize] = {};
    text.copy(reinterpret_cast<char*>(buffer), kBufferSize);

    const unsigned char* next = buffer;
    if (*next == '-') ++next;
    unsigned char decoded[kUuidBytes];
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
