#ifndef ZELXMLCHARS_H
#define ZELXMLCHARS_H

#include <array>
#include <cstdint>

// The characters of XML 1.0, fifth edition, and their UTF-8.

/// Classes of the ASCII characters. A byte of a longer character is in none of them.
inline constexpr std::uint8_t kZELXMLNameStart = 1;
inline constexpr std::uint8_t kZELXMLName = 2;
inline constexpr std::uint8_t kZELXMLBlank = 4;  ///< blank, tab, line feed, carriage return

constexpr std::uint8_t ZELXMLClassOfAscii(unsigned c) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':';
    if (letter) return kZELXMLNameStart | kZELXMLName;
    if ((c >= '0' && c <= '9') || c == '-' || c == '.') return kZELXMLName;
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' ? kZELXMLBlank : 0;
}

constexpr std::array<std::uint8_t, 256> ZELXMLMakeClasses() {
    std::array<std::uint8_t, 256> classes{};
    for (unsigned c = 0; c < 128; ++c) classes[c] = ZELXMLClassOfAscii(c);
    return classes;
}
inline constexpr std::array<std::uint8_t, 256> kZELXMLClasses = ZELXMLMakeClasses();

constexpr bool ZELXMLIs(char c, std::uint8_t characterClass) {
    return (kZELXMLClasses[static_cast<unsigned char>(c)] & characterClass) != 0;
}
constexpr bool ZELXMLIsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

/// Whether a document may have that character, written out or by reference.
constexpr bool ZELXMLIsCharacter(std::uint32_t c) {
    if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
    return c < 0xD800 || (c >= 0xE000 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0x10FFFF);
}

/// Whether a name may begin with that character, which is not ASCII; whether one may go on with it.
bool ZELXMLIsWideNameStart(std::uint32_t c);
bool ZELXMLIsWideName(std::uint32_t c);

/// A character and how many bytes it took; no bytes when they are not valid UTF-8 (overlong forms,
/// surrogates and what is beyond U+10FFFF included).
struct ZELXMLCharacter {
    std::uint32_t code;
    std::uint32_t length;
};

/// Decodes the character that begins at \p p. Reads no byte behind one that cannot go on the character,
/// so a NUL behind the text is bound enough.
ZELXMLCharacter ZELXMLDecode(const char* p);

/// Writes the UTF-8 of \p c, at most 4 bytes, to \p out.
/// \returns the number of bytes.
std::uint32_t ZELXMLEncode(std::uint32_t c, char* out);

#endif
