#include <algorithm>
#include <iterator>

#include "ZELXMLChars.h"
#include "ZELXMLScan.h"
#include "ZELXMLTokenizer.h"

// What stands around the root element, and the comments and processing instructions inside it.

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

constexpr std::string_view kUnmarked = "UTF-16 without a mark or a declaration";

/// What a document that is not read begins with: its byte order mark, or "<" or "<?" in its encoding.
struct EncodingMark {
    std::string_view bytes;
    std::string_view encoding;
};
constexpr EncodingMark kOtherEncodingMarks[] = {
    {"\xFF\xFE\0\0"sv, "UTF-32"}, {"\0\0\xFE\xFF"sv, "UTF-32"}, {"<\0\0\0"sv, "UTF-32"},
    {"\0\0\0<"sv, "UTF-32"},      {"<\0"sv, kUnmarked},         {"\0<"sv, kUnmarked},
};

constexpr ZELXMLEncoding kReadEncodings[] = {ZELXMLEncoding::Utf8, ZELXMLEncoding::Utf16Little,
                                             ZELXMLEncoding::Utf16Big, ZELXMLEncoding::Latin1};

constexpr std::string_view kMarkupDeclarations[] = {"<!ELEMENT", "<!ATTLIST", "<!ENTITY", "<!NOTATION"};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

bool EqualsIgnoringCase(std::string_view text, std::string_view lower) {
    return std::equal(text.begin(), text.end(), lower.begin(), lower.end(),
                      [](char a, char b) { return Lower(a) == b; });
}

bool IsVersion(std::string_view value) {
    return value.size() > 2 && value.substr(0, 2) == "1." &&
           std::all_of(value.begin() + 2, value.end(), IsDigit);
}

bool IsEncodingName(std::string_view value) {
    const auto follows = [](char c) {
        return IsLetter(c) || IsDigit(c) || "._-"sv.find(c) != std::string_view::npos;
    };
    return !value.empty() && IsLetter(value[0]) && std::all_of(value.begin(), value.end(), follows);
}

bool IsYesOrNo(std::string_view value) { return value == "yes" || value == "no"; }

bool IsPublicIdCharacter(char c) {
    return IsLetter(c) || IsDigit(c) || " \r\n-'()+,./:=?;!*#@$_%"sv.find(c) != std::string_view::npos;
}

}  // namespace

struct ZELXMLTokenizer::DeclarationPart {
    std::string_view name;
    bool mandatory;
    ZELXMLFault whenBad;
    bool (*isGood)(std::string_view value);
};

std::uint32_t ZELXMLTokenizer::MarkLength(std::string_view text) {
    return text.starts_with(kUtf8Mark) ? static_cast<std::uint32_t>(kUtf8Mark.size()) : 0;
}

const char* ZELXMLTokenizer::ReadEncodingMark(const char* p) {
    const std::string_view text(text_, static_cast<std::size_t>(end_ - text_));
    if (source_.encoding != ZELXMLEncoding::Utf8) return p;
    for (const EncodingMark& mark : kOtherEncodingMarks) {
        if (text.starts_with(mark.bytes)) return Fail(ZELXMLFault::OtherEncodingMark, p, mark.encoding);
    }
    return p + MarkLength(text);
}

/// Reads the XML declaration, if there is one.
const char* ZELXMLTokenizer::ReadDeclaration(const char* p) {
    static constexpr DeclarationPart kParts[] = {
        {"version", true, ZELXMLFault::DeclarationVersion, IsVersion},
        {"encoding", false, ZELXMLFault::DeclarationMalformed, IsEncodingName},
        {"standalone", false, ZELXMLFault::DeclarationMalformed, IsYesOrNo},
    };
    const bool isThere = ZELXMLStartsWith(p, "<?xml") && !ZELXMLIs(p[5], kZELXMLName) && ZELXMLIsAscii(p[5]);
    if (!isThere) return source_.mustBeDeclared ? Fail(ZELXMLFault::OtherEncodingMark, p, kUnmarked) : p;
    bool isDeclared = false;
    p += 5;
    for (const DeclarationPart& part : kParts) {
        const char* const name = ZELXMLSkipBlanks(p);
        if (!ZELXMLStartsWith(name, part.name)) {
            if (part.mandatory) return Fail(part.whenBad, name);
            continue;
        }
        if (name == p) return Fail(ZELXMLFault::DeclarationMalformed, name);
        std::string_view value;
        p = ReadDeclarationValue(name + part.name.size(), value);
        if (p == nullptr) return nullptr;
        if (!part.isGood(value)) return Fail(part.whenBad, value.data());
        if (part.name != "encoding") continue;
        isDeclared = true;
        if (TakeEncoding(value.data(), value) == nullptr) return nullptr;
    }
    if (source_.mustBeDeclared && !isDeclared) return Fail(ZELXMLFault::OtherEncodingMark, text_, kUnmarked);
    p = ZELXMLSkipBlanks(p);
    return ZELXMLStartsWith(p, "?>") ? p + 2 : Fail(ZELXMLFault::DeclarationMalformed, p);
}

/// Reads the equals sign and the quoted value of a part of the XML declaration.
const char* ZELXMLTokenizer::ReadDeclarationValue(const char* p, std::string_view& value) {
    p = ZELXMLSkipBlanks(p);
    if (*p != '=') return Fail(ZELXMLFault::DeclarationMalformed, p);
    const char* const open = ZELXMLSkipBlanks(p + 1);
    if (*open != '"' && *open != '\'') return Fail(ZELXMLFault::DeclarationMalformed, open);
    const char* const close = ZELXMLFindSpecial<'"', '\''>(open + 1);
    if (*close != *open) return Fail(ZELXMLFault::DeclarationMalformed, close);
    value = {open + 1, static_cast<std::size_t>(close - open - 1)};
    return close + 1;
}

const char* ZELXMLTokenizer::TakeEncoding(const char* p, std::string_view name) {
    asciiOnly_ = EqualsIgnoringCase(name, "us-ascii");
    if (ZELXMLMayDeclare(source_.encoding, name)) return p;
    const bool isRead =
        std::any_of(std::begin(kReadEncodings), std::end(kReadEncodings),
                    [name](ZELXMLEncoding encoding) { return ZELXMLMayDeclare(encoding, name); });
    return Fail(isRead ? ZELXMLFault::EncodingNotAsDeclared : ZELXMLFault::OtherEncodingDeclared, p, name);
}

/// Reads comments, processing instructions, blanks and, before the root element, the document type
/// declaration: up to the root element's tag, or to the end of the text.
const char* ZELXMLTokenizer::ReadMisc(const char* p, bool beforeRoot) {
    while (p != nullptr) {
        const char* const blanks = p;
        p = ZELXMLSkipBlanks(p);
        if (keeps_) Note(ZELVBTXMLPieceKind::Text, blanks, p);
        const char* const markup = p;
        if (p == end_) return beforeRoot ? Fail(ZELXMLFault::NoElement, p) : p;
        if (*p != '<') return FailAt(p, ZELXMLFault::TextOutsideRoot, ZELXMLFault::NoElement, p);
        if (p[1] == '?') {
            p = ReadInstruction(p);
        } else if (ZELXMLStartsWith(p, "<!--")) {
            p = ReadComment(p);
        } else if (ZELXMLStartsWith(p, "<!DOCTYPE")) {
            if (!beforeRoot || doctype_ != nullptr) return Fail(ZELXMLFault::DoctypeMisplaced, p);
            p = ReadDoctype(p);
        } else if (p[1] == '!') {
            return Fail(
                ZELXMLStartsWith(p, "<![CDATA[") ? ZELXMLFault::TextOutsideRoot : ZELXMLFault::MarkupUnknown,
                p);
        } else if (p[1] == '/') {
            return Fail(ZELXMLFault::EndTagUnexpected, p);
        } else {
            return beforeRoot ? p : Fail(ZELXMLFault::SecondRoot, p);
        }
        if (keeps_ && p != nullptr) Note(KindOf(markup), markup, p);
    }
    return nullptr;
}

const char* ZELXMLTokenizer::ReadComment(const char* p) {
    const char* const begin = p;
    p += 4;
    for (;;) {
        p = ZELXMLFindSpecial<'-'>(p);
        if (*p != '-') {
            p = ReadCharacter(p, ZELXMLFault::CommentNotClosed, begin);
            if (p == nullptr) return nullptr;
        } else if (p[1] != '-') {
            ++p;
        } else if (p[2] == '>') {
            return p + 3;
        } else {
            const bool atEnd = p + 2 == end_;
            return atEnd ? Fail(ZELXMLFault::CommentNotClosed, begin)
                         : Fail(ZELXMLFault::CommentDoubleHyphen, p);
        }
    }
}

const char* ZELXMLTokenizer::ReadInstruction(const char* p) {
    const char* const begin = p;
    const char* const target = p + 2;
    p = ReadName(target, ZELXMLFault::InstructionTarget);
    if (p == nullptr) return nullptr;
    const std::string_view name(target, static_cast<std::size_t>(p - target));
    if (name == "xml") return Fail(ZELXMLFault::DeclarationNotFirst, begin);
    if (EqualsIgnoringCase(name, "xml")) return Fail(ZELXMLFault::InstructionTargetReserved, target, name);
    if (!ZELXMLStartsWith(p, "?>") && !ZELXMLIs(*p, kZELXMLBlank)) {
        return FailAt(p, ZELXMLFault::InstructionMalformed, ZELXMLFault::InstructionNotClosed, begin);
    }
    for (;;) {
        p = ZELXMLFindSpecial<'?'>(p);
        if (*p != '?') {
            p = ReadCharacter(p, ZELXMLFault::InstructionNotClosed, begin);
            if (p == nullptr) return nullptr;
        } else if (p[1] == '>') {
            return p + 2;
        } else {
            ++p;
        }
    }
}

/// Passes over the document type declaration. Of the declarations inside, quotes, comments, processing
/// instructions and characters are checked; what they say is not looked at.
const char* ZELXMLTokenizer::ReadDoctype(const char* p) {
    doctype_ = p;
    p += std::string_view("<!DOCTYPE").size();
    const char* const name = ZELXMLSkipBlanks(p);
    if (name == p) return FailInDoctype(p);
    p = ReadName(name, ZELXMLFault::DoctypeMalformed);
    if (p == nullptr) return nullptr;
    const char* next = ZELXMLSkipBlanks(p);
    if (next != p) next = ReadExternalId(next);
    if (next == nullptr) return nullptr;
    if (*next == '[') next = ReadInternalSubset(next + 1);
    if (next == nullptr) return nullptr;
    next = ZELXMLSkipBlanks(next);
    return *next == '>' ? next + 1 : FailInDoctype(next);
}

const char* ZELXMLTokenizer::FailInDoctype(const char* p) {
    return FailAt(p, ZELXMLFault::DoctypeMalformed, ZELXMLFault::DoctypeNotClosed, doctype_);
}

/// Reads the external identifier, if there is one, and the blanks behind it.
const char* ZELXMLTokenizer::ReadExternalId(const char* p) {
    const bool isPublic = ZELXMLStartsWith(p, "PUBLIC");
    if (!isPublic && !ZELXMLStartsWith(p, "SYSTEM")) return p;
    p += 6;
    if (isPublic) {
        const char* const literal = ZELXMLSkipBlanks(p);
        p = ReadSeparateLiteral(p);
        if (p == nullptr) return nullptr;
        const char* const bad = std::find_if_not(literal + 1, p - 1, IsPublicIdCharacter);
        if (bad != p - 1) return FailInDoctype(bad);
    }
    p = ReadSeparateLiteral(p);
    return p == nullptr ? nullptr : ZELXMLSkipBlanks(p);
}

/// Reads blanks, of which there must be one, and a quoted text.
const char* ZELXMLTokenizer::ReadSeparateLiteral(const char* p) {
    return ZELXMLIs(*p, kZELXMLBlank) ? ReadLiteral(ZELXMLSkipBlanks(p)) : FailInDoctype(p);
}

/// Reads a quoted text of the document type declaration.
const char* ZELXMLTokenizer::ReadLiteral(const char* p) {
    const char quote = *p;
    if (quote != '"' && quote != '\'') return FailInDoctype(p);
    ++p;
    for (;;) {
        p = ZELXMLFindSpecial<'"', '\''>(p);
        if (*p == quote) return p + 1;
        const bool otherQuote = *p == '"' || *p == '\'';
        p = otherQuote ? p + 1 : ReadCharacter(p, ZELXMLFault::DoctypeNotClosed, doctype_);
        if (p == nullptr) return nullptr;
    }
}

const char* ZELXMLTokenizer::ReadInternalSubset(const char* p) {
    while (p != nullptr) {
        p = ZELXMLSkipBlanks(p);
        if (*p == ']') return p + 1;
        if (*p == '%') {
            p = ReadName(p + 1, ZELXMLFault::DoctypeMalformed);
            if (p == nullptr) return nullptr;
            if (*p != ';') return FailInDoctype(p);
            ++p;
        } else if (ZELXMLStartsWith(p, "<!--")) {
            p = ReadComment(p);
        } else if (ZELXMLStartsWith(p, "<?")) {
            p = ReadInstruction(p);
        } else {
            p = ReadMarkupDeclaration(p);
        }
    }
    return nullptr;
}

const char* ZELXMLTokenizer::ReadMarkupDeclaration(const char* p) {
    const auto* const row = std::find_if(std::begin(kMarkupDeclarations), std::end(kMarkupDeclarations),
                                         [p](std::string_view word) { return ZELXMLStartsWith(p, word); });
    if (row == std::end(kMarkupDeclarations)) return FailInDoctype(p);
    p += row->size();
    if (!ZELXMLIs(*p, kZELXMLBlank)) return FailInDoctype(p);
    while (p != nullptr) {
        p = ZELXMLFindSpecial<'>', '<', '"', '\''>(p);
        if (*p == '>') return p + 1;
        if (*p == '<') return FailInDoctype(p);
        const bool quote = *p == '"' || *p == '\'';
        p = quote ? ReadLiteral(p) : ReadCharacter(p, ZELXMLFault::DoctypeNotClosed, doctype_);
    }
    return nullptr;
}
