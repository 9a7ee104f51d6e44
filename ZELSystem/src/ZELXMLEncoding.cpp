#include "ZELXMLEncoding.h"

#include <algorithm>
#include <cstdint>

#include "ZELXMLChars.h"

namespace {

using namespace std::string_view_literals;
using enum ZELXMLEncoding;

/// What a document in UTF-16 begins with: its byte order mark, or "<?" when it is only declared.
struct SourceMark {
    std::string_view bytes;
    ZELXMLSource source;
};
constexpr SourceMark kMarks[] = {
    {"\xFF\xFE"sv, {Utf16Little, 2}},
    {"\xFE\xFF"sv, {Utf16Big, 2}},
    {"<\0?\0"sv, {Utf16Little, 0, true}},
    {"\0<\0?"sv, {Utf16Big, 0, true}},
};
/// The mark of UTF-32 begins like one of UTF-16.
constexpr std::string_view kUtf32Mark = "\xFF\xFE\0\0"sv;

struct EncodingName {
    std::string_view lower;
    ZELXMLEncoding encoding;
};
constexpr EncodingName kNames[] = {
    {"utf-8", Utf8},           {"us-ascii", Utf8},     {"utf-16", Utf16Little}, {"utf-16", Utf16Big},
    {"utf-16le", Utf16Little}, {"utf-16be", Utf16Big}, {"iso-8859-1", Latin1},  {"iso_8859-1", Latin1},
    {"latin1", Latin1},        {"l1", Latin1},
};

bool EqualsIgnoringCase(std::string_view text, std::string_view lower) {
    return std::equal(text.begin(), text.end(), lower.begin(), lower.end(), [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? static_cast<char>(a + ('a' - 'A')) : a) == b;
    });
}

/// The encoding that a text's XML declaration names; empty when it names none, or there is no declaration.
std::string_view DeclaredEncoding(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    constexpr std::string_view kOpen = "<?xml";
    if (!text.starts_with(kOpen)) return {};
    text = text.substr(kOpen.size(), text.find("?>"sv) - kOpen.size());
    if (text.find_first_of(kBlanks) != 0) return {};  // an instruction whose name begins like that
    const std::size_t word = text.find("encoding"sv);
    if (word == std::string_view::npos) return {};
    text.remove_prefix(word + "encoding"sv.size());
    const auto skipBlanks = [&] {
        text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    };
    skipBlanks();
    if (!text.starts_with('=')) return {};
    text.remove_prefix(1);
    skipBlanks();
    if (!text.starts_with('"') && !text.starts_with('\'')) return {};
    const std::size_t close = text.find(text.front(), 1);
    return close == std::string_view::npos ? std::string_view() : text.substr(1, close - 1);
}

/// One unit of UTF-16.
std::uint32_t UnitAt(std::string_view bytes, std::size_t offset, bool isBig) {
    const auto byte = [&](std::size_t index) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[offset + index]));
    };
    return isBig ? byte(0) << 8U | byte(1) : byte(1) << 8U | byte(0);
}

void AppendCharacter(std::uint32_t code, ZELXMLBlock<char>& text) {
    char bytes[4];
    text.Append(bytes, bytes + ZELXMLEncode(code, bytes));
}

bool Utf16ToUtf8(std::string_view bytes, bool isBig, ZELXMLBlock<char>& text) {
    constexpr auto isHigh = [](std::uint32_t unit) { return unit >= 0xD800 && unit < 0xDC00; };
    constexpr auto isLow = [](std::uint32_t unit) { return unit >= 0xDC00 && unit < 0xE000; };
    std::size_t offset = 0;
    for (; offset + 2 <= bytes.size(); offset += 2) {
        std::uint32_t code = UnitAt(bytes, offset, isBig);
        if (isLow(code)) return false;
        if (isHigh(code)) {
            if (offset + 4 > bytes.size()) return false;
            const std::uint32_t low = UnitAt(bytes, offset + 2, isBig);
            if (!isLow(low)) return false;
            code = 0x10000 + ((code - 0xD800) << 10U) + (low - 0xDC00);
            offset += 2;
        }
        AppendCharacter(code, text);
    }
    return offset == bytes.size();
}

}  // namespace

ZELXMLSource ZELXMLFindSource(std::string_view bytes) {
    if (bytes.starts_with(kUtf32Mark)) return {};
    for (const SourceMark& mark : kMarks) {
        if (bytes.starts_with(mark.bytes)) return mark.source;
    }
    const bool isLatin1 = ZELXMLMayDeclare(Latin1, DeclaredEncoding(bytes));
    return isLatin1 ? ZELXMLSource{Latin1, 0, true} : ZELXMLSource{};
}

bool ZELXMLMayDeclare(ZELXMLEncoding encoding, std::string_view name) {
    return std::any_of(std::begin(kNames), std::end(kNames), [&](const EncodingName& row) {
        return row.encoding == encoding && EqualsIgnoringCase(name, row.lower);
    });
}

bool ZELXMLToUtf8(ZELXMLEncoding encoding, std::string_view bytes, ZELXMLBlock<char>& text) {
    text.Reserve(text.Size() + bytes.size() + bytes.size() / 8);
    if (encoding != Latin1) return Utf16ToUtf8(bytes, encoding == Utf16Big, text);
    for (const char byte : bytes) AppendCharacter(static_cast<unsigned char>(byte), text);
    return true;
}
