// UUIDs and their texts, against a second reading of the text that is written for plainness; and every UUID
// that the input or the system makes comes back from each form of its text.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

#include "FuzzSupport.h"
#include "HexToBinary.h"
#include "ZELUuid.h"

namespace {

constexpr int kUuidBytes = 16;
constexpr std::size_t kCharactersThatCount = 64;

/// \returns the value of a digit; -1 for another character.
int ValueOf(char digit) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const char lower = digit >= 'A' && digit <= 'F' ? static_cast<char>(digit + 32) : digit;
    const std::size_t value = kDigits.find(lower);
    return value == kDigits.npos ? -1 : static_cast<int>(value);
}

/// One character after the other; behind the text's end stand zeros.
std::basic_string<unsigned char> PlainlyRead(std::string_view text) {
    std::string characters(text.substr(0, kCharactersThatCount));
    characters.resize(2 * kCharactersThatCount);
    std::size_t at = characters[0] == '-' ? 1 : 0;
    std::basic_string<unsigned char> bytes;
    while (bytes.size() < kUuidBytes) {
        const int high = ValueOf(characters[at++]);
        const int low = ValueOf(characters[at++]);
        bytes += static_cast<unsigned char>(high < 0 || low < 0 ? 0xFF : high * 16 + low);
        if (characters[at] == '-') ++at;
    }
    return bytes;
}

std::string PlainlyWritten(const unsigned char* bytes, int count) {
    std::string text;
    for (int index = 0; index < count; ++index) {
        char digits[4];
        std::snprintf(digits, sizeof digits, "%02X", bytes[index]);
        if (index == 4 || index == 6 || index == 8) text += '-';
        text += digits;
    }
    return text;
}

ZELDbBinary ReadByHexToBinary(std::string_view text) {
    ZELString string(text);
    ZELDbBinary bytes;
    UuidHexToBinary(&string, &bytes);
    return bytes;
}

void CheckText(std::string_view text) {
    const ZELDbBinary read = UuidFromText(text);
    const auto expected = PlainlyRead(text);
    Require(read.Length() == kUuidBytes, "any text gives 16 bytes");
    Require(std::memcmp(read.Data(), expected.data(), kUuidBytes) == 0, "a text is read as it is plainly");
    Require(ReadByHexToBinary(text) == read, "both ways to read agree");
}

/// Writes \p count bytes at the end of a block of its own, so that nothing behind them may be read.
void CheckBytes(const std::uint8_t* data, int count) {
    std::string held(reinterpret_cast<const char*>(data), static_cast<std::size_t>(count));
    auto* const bytes = reinterpret_cast<unsigned char*>(held.data());
    std::basic_string<unsigned char> text(static_cast<std::size_t>(2 * count + 4), '#');
    UuidBinToHexa_V2(bytes, count, text.data(), 0);
    Require(PlainlyWritten(bytes, count) == reinterpret_cast<const char*>(text.data()),
            "bytes are written as they are plainly");

    const ZELDbBinary uuid(bytes, count);
    Require(uuid.IsEmpty() ? UuidText(uuid) == "UNDEFINED"
                           : UuidText(uuid) == PlainlyWritten(bytes, uuid.Length()),
            "the text of a UUID is that of its bytes");
}

void CheckComesBack(const ZELDbBinary& uuid) {
    unsigned char bytes[kUuidBytes];
    std::memcpy(bytes, uuid.Data(), kUuidBytes);
    unsigned char written[36];
    UuidBinToHexa(bytes, 0, written, 0);
    std::string text(reinterpret_cast<const char*>(written));
    Require(text == PlainlyWritten(bytes, kUuidBytes) && text == UuidText(uuid), "all ways to write agree");
    Require(UuidFromText(text) == uuid, "a UUID comes back from its text");
    CheckText(text);
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'F' ? static_cast<char>(c + 32) : c; });
    Require(UuidFromText(text) == uuid, "a UUID comes back from lower case");
    std::erase(text, '-');
    Require(UuidFromText(text) == uuid, "a UUID comes back from its digits");
    Require(UuidFromText("-" + text) == uuid, "a UUID comes back from behind a dash");
    Require(UuidFromText(uuid.HexText()) == uuid, "a UUID comes back from its hexadecimal text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CheckText({reinterpret_cast<const char*>(data), size});
    CheckBytes(data, static_cast<int>(std::min<std::size_t>(size, 64)));
    if (size >= kUuidBytes) CheckComesBack({data, kUuidBytes});

    const ZELDbBinary made = getuuid();
    Require(made.Length() == kUuidBytes && !(made == getuuid()), "each UUID that is made is another");
    CheckComesBack(made);
    return 0;
}
