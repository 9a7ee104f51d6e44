#include "ZELVBTXMLWriter.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "ZELXMLChars.h"
#include "ZELXMLScan.h"

namespace {

using namespace std::literals;

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

constexpr auto MakeBlanks() {
    std::array<char, std::size_t{2} * ZELVBTXMLWriter::kMostIndented> blanks{};
    blanks.fill(' ');
    return blanks;
}
constexpr auto kBlanks = MakeBlanks();

/// \returns the reference that stands for an ASCII character; empty when it is written as it is or not at
/// all.
constexpr std::string_view ReferenceOf(char c) {
    switch (c) {
        case '"':
            return "&quot;";
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '\t':
            return "&#9;";
        case '\n':
            return "&#10;";
        case '\r':
            return "&#13;";
        default:
            return {};
    }
}

constexpr bool IsSpecial(char c) {
    return static_cast<unsigned char>(c) < 0x20 || !ZELXMLIsAscii(c) || c == '"' || c == '&' || c == '<';
}

/// \returns the first byte that is not written as it is, one byte at a time.
const char* FindSpecialPortably(const char* p, const char* end) {
    while (p != end && !IsSpecial(*p)) ++p;
    return p;
}

#if defined(__SSE2__)

/// A bit for each byte that is not written as it is.
std::uint32_t SpecialBits(__m128i bytes) {
    // Compared as signed bytes, what is not ASCII is below the blank as well.
    __m128i special = _mm_cmplt_epi8(bytes, _mm_set1_epi8(0x20));
    special = _mm_or_si128(special, _mm_cmpeq_epi8(bytes, _mm_set1_epi8('"')));
    special = _mm_or_si128(special, _mm_cmpeq_epi8(bytes, _mm_set1_epi8('&')));
    special = _mm_or_si128(special, _mm_cmpeq_epi8(bytes, _mm_set1_epi8('<')));
    return ZELXMLMask(special);
}

__m128i LoadHalf(const char* p) { return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)); }

/// The same, 16 bytes at a time, and nothing is read behind \p end.
const char* FindSpecial(const char* p, const char* end) {
    for (; end - p >= 16; p += 16) {
        if (const std::uint32_t bits = SpecialBits(ZELXMLLoad(p)); bits != 0) {
            return p + std::countr_zero(bits);
        }
    }
    // What is left is looked at as two halves that overlap; where there is something, byte by byte.
    if (end - p >= 8) {
        const __m128i halves = _mm_unpacklo_epi64(LoadHalf(p), LoadHalf(end - 8));
        return SpecialBits(halves) == 0 ? end : FindSpecialPortably(p, end);
    }
    return FindSpecialPortably(p, end);
}

#else

const char* FindSpecial(const char* p, const char* end) { return FindSpecialPortably(p, end); }

#endif

/// Decodes the character at \p p of a text that ends at \p end; no length when it is not valid.
ZELXMLCharacter DecodeWithin(const char* p, const char* end) {
    char character[5] = {};  // the zero behind it stops the decoder
    const auto size = static_cast<std::size_t>(std::min<std::ptrdiff_t>(end - p, 4));
    std::memcpy(character, p, size);
    return ZELXMLDecode(character);
}

/// Writes what stands for the character at \p p, and the characters beyond ASCII that follow it.
/// \returns where it stopped.
template <class Out>
const char* PutSpecial(const char* p, const char* end, Out& out, long& replaced) {
    if (const std::string_view reference = ReferenceOf(*p); !reference.empty()) {
        out.Append(reference);
        return p + 1;
    }
    const char* const begin = p;
    while (p != end && !ZELXMLIsAscii(*p)) {
        const ZELXMLCharacter c = DecodeWithin(p, end);
        if (c.length == 0 || !ZELXMLIsCharacter(c.code)) break;
        p += c.length;
    }
    if (p != begin) {
        out.Append({begin, static_cast<std::size_t>(p - begin)});
        return p;
    }
    const std::uint32_t length = DecodeWithin(p, end).length;
    out.Append(kReplacement);
    ++replaced;
    return p + (length != 0 ? length : 1);
}

template <class Out>
void PutEscaped(std::string_view text, Out& out, long& replaced) {
    const char* const end = text.data() + text.size();
    for (const char* p = text.data(); p != end;) {
        const char* const special = FindSpecial(p, end);
        out.Append({p, static_cast<std::size_t>(special - p)});
        p = special != end ? PutSpecial(special, end, out, replaced) : end;
    }
}

/// A text that takes what a file takes otherwise.
struct TextEnd {
    std::string& text;
    void Append(std::string_view bytes) { text.append(bytes); }
};

}  // namespace

long ZELXMLEscape(std::string_view value, std::string& text) {
    TextEnd end{text};
    long replaced = 0;
    PutEscaped(value, end, replaced);
    return replaced;
}

bool ZELXMLIsName(std::string_view name) {
    if (name.empty()) return false;
    const char* const end = name.data() + name.size();
    for (const char* p = name.data(); p != end;) {
        const bool first = p == name.data();
        const ZELXMLCharacter c = DecodeWithin(p, end);
        if (c.length == 0) return false;
        const bool allowed = c.length == 1 ? ZELXMLIs(*p, first ? kZELXMLNameStart : kZELXMLName)
                             : first       ? ZELXMLIsWideNameStart(c.code)
                                           : ZELXMLIsWideName(c.code);
        if (!allowed) return false;
        p += c.length;
    }
    return true;
}

void ZELVBTXMLWriter::Markup(std::string_view line) {
    _File.Append(line);
    _File.Append('\n');
}

void ZELVBTXMLWriter::NewLine(std::size_t depth) {
    const std::size_t indented = std::min(depth, static_cast<std::size_t>(kMostIndented));
    _File.Append({kBlanks.data(), 2 * indented});
}

void ZELVBTXMLWriter::Begin(std::string_view tag) {
    if (_TagIsOpen) _File.Append(">\n");
    NewLine(_OPEN.size());
    _File.Append('<');
    _File.Append(tag);
    _OPEN.push_back(tag);
    _TagIsOpen = true;
}

void ZELVBTXMLWriter::PlainAttribute(std::string_view name, std::string_view value) {
    _File.AppendAll(" "sv, name, "=\""sv, value, "\""sv);
}

void ZELVBTXMLWriter::Attribute(std::string_view name, std::string_view value) {
    _File.AppendAll(" "sv, name, "=\""sv);
    EndValue(value);
}

void ZELVBTXMLWriter::EndWithText(std::string_view text) {
    _File.Append('>');
    Escaped(text);
    _File.Append("</");
    _File.Append(_OPEN.back());
    _File.Append(">\n");
    _OPEN.pop_back();
    _TagIsOpen = false;
}

void ZELVBTXMLWriter::End() {
    const std::string_view tag = _OPEN.back();
    _OPEN.pop_back();
    if (_TagIsOpen) {
        _File.Append("/>\n");
    } else {
        NewLine(_OPEN.size());
        _File.Append("</");
        _File.Append(tag);
        _File.Append(">\n");
    }
    _TagIsOpen = false;
}

void ZELVBTXMLWriter::Escaped(std::string_view text) { PutEscaped(text, _File, _Replaced); }
