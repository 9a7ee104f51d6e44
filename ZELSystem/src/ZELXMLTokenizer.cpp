#include "ZELXMLTokenizer.h"

#include "ZELXMLChars.h"
#include "ZELXMLScan.h"

namespace {

/// A detail longer than this is cut, so that a reason stays one line.
constexpr std::size_t kMaxDetailLength = 80;

struct PredefinedEntity {
    std::string_view name;
    std::uint32_t code;
};
constexpr PredefinedEntity kPredefinedEntities[] = {
    {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''},
};

const char* FindValueStop(const char* p, char quote) {
    return quote == '"' ? ZELXMLFindSpecial<'"', '<', '&'>(p) : ZELXMLFindSpecial<'\'', '<', '&'>(p);
}

}  // namespace

ZELXMLTokenizer::ZELXMLTokenizer(const char* text, std::size_t length, ZELXMLTapeStore& store,
                                 ZELXMLSource source, ZELVBTXMLKeep keep)
    : text_(text),
      end_(text + length),
      store_(store),
      source_(source),
      keeps_(keep == ZELVBTXMLKeep::Pieces) {
    // More than usual documents need, and untouched room is free.
    store_.elements.Reserve(length / 64 + 16);
    store_.attributes.Reserve(length / 16 + 16);
}

bool ZELXMLTokenizer::Run() {
    const char* p = ReadEncodingMark(text_);
    const char* const declaration = p;
    if (p != nullptr) p = ReadDeclaration(p);
    if (p != nullptr && keeps_) Note(ZELVBTXMLPieceKind::Declaration, declaration, p);
    if (p != nullptr) p = ReadMisc(p, true);
    if (p != nullptr) p = keeps_ ? ReadRoot<true>(p) : ReadRoot<false>(p);
    if (p != nullptr) p = ReadMisc(p, false);
    if (p == nullptr) return false;
    const auto elementCount = static_cast<std::uint32_t>(store_.elements.Size());
    const auto attributeCount = static_cast<std::uint32_t>(store_.attributes.Size());
    store_.elements.Append({Offset(p), 0, attributeCount, elementCount + 1});
    return true;
}

std::string ZELXMLTokenizer::Reason() const {
    std::string reason(kZELXMLReasons[static_cast<std::size_t>(fault_)]);
    const std::size_t hole = reason.find("{}");
    if (hole == std::string::npos) return reason;
    std::string_view detail = faultDetail_;
    if (detail.size() <= kMaxDetailLength) return reason.replace(hole, 2, detail);
    std::size_t length = kMaxDetailLength;
    while ((detail[length] & 0xC0) == 0x80) --length;
    return reason.replace(hole, 2, std::string(detail.substr(0, length)) + "...");
}

const char* ZELXMLTokenizer::Fail(ZELXMLFault fault, const char* place, std::string_view detail) {
    fault_ = fault;
    faultPlace_ = place;
    faultDetail_ = detail;
    return nullptr;
}

/// The fault of a construct that cannot go on with what stands at \p p: at the end of the text \p atEnd, at
/// the place \p begin; that of the character, when no document may have it; otherwise \p fault.
const char* ZELXMLTokenizer::FailAt(const char* p, ZELXMLFault fault, ZELXMLFault atEnd, const char* begin) {
    const bool special = static_cast<unsigned char>(*p) < 0x20 || !ZELXMLIsAscii(*p);
    if (special && ReadCharacter(p, atEnd, begin) == nullptr) return nullptr;
    return Fail(fault, p);
}

/// The fault of the start tag that is being read.
const char* ZELXMLTokenizer::FailInStartTag(const char* p, ZELXMLFault fault) {
    return FailAt(p, fault, ZELXMLFault::TagNotClosed, OpenTag());
}

/// Reads one character that a fast scan does not pass over: a control character or one that is not ASCII.
const char* ZELXMLTokenizer::ReadCharacter(const char* p, ZELXMLFault atEnd, const char* begin) {
    if (ZELXMLIs(*p, kZELXMLBlank)) return p + 1;
    if (p == end_) return Fail(atEnd, begin);
    if (ZELXMLIsAscii(*p)) return Fail(ZELXMLFault::ForbiddenCharacter, p);
    if (asciiOnly_) return Fail(ZELXMLFault::NotAscii, p);
    const ZELXMLCharacter character = ZELXMLDecode(p);
    if (character.length == 0) return Fail(ZELXMLFault::BrokenUtf8, p);
    if (!ZELXMLIsCharacter(character.code)) return Fail(ZELXMLFault::ForbiddenCharacter, p);
    return p + character.length;
}

const char* ZELXMLTokenizer::ReadName(const char* p, ZELXMLFault whenNone) {
    if (!ZELXMLIs(*p, kZELXMLNameStart)) return ReadWideName(p, p, whenNone);
    const char* nameEnd = ZELXMLFindNameEnd(p + 1);
    return ZELXMLIsAscii(*nameEnd) ? nameEnd : ReadWideName(p, nameEnd, whenNone);
}

/// Reads on from \p p in a name that begins at \p begin and has more than ASCII in it.
const char* ZELXMLTokenizer::ReadWideName(const char* begin, const char* p, ZELXMLFault whenNone) {
    while (!ZELXMLIsAscii(*p)) {
        const char* next = ReadCharacter(p, whenNone, begin);
        if (next == nullptr) return nullptr;
        const std::uint32_t code = ZELXMLDecode(p).code;
        if (p == begin ? !ZELXMLIsWideNameStart(code) : !ZELXMLIsWideName(code)) break;
        p = ZELXMLFindNameEnd(next);
    }
    return p == begin ? FailAt(p, whenNone, whenNone, p) : p;
}

void ZELXMLTokenizer::Note(ZELVBTXMLPieceKind kind, const char* begin, const char* end) {
    if (begin == end) return;
    store_.pieces.Append({Offset(begin), static_cast<std::uint32_t>(end - begin), open_, kind});
}

/// The kind of what begins with "<!" or "<?" and was read.
ZELVBTXMLPieceKind ZELXMLTokenizer::KindOf(const char* markup) {
    if (markup[1] == '?') return ZELVBTXMLPieceKind::Instruction;
    if (markup[2] == '-') return ZELVBTXMLPieceKind::Comment;
    return markup[2] == '[' ? ZELVBTXMLPieceKind::CharacterMark : ZELVBTXMLPieceKind::DocumentType;
}

/// Reads the root element, everything inside it included. One turn of the loop is one tag.
template <bool kKeeps>
const char* ZELXMLTokenizer::ReadRoot(const char* p) {
    p = ReadStartTag(p);
    while (p != nullptr && open_ != kNoElement) {
        [[maybe_unused]] const char* const text = p;
        p = ReadText(p);
        if (p == nullptr) return nullptr;
        if constexpr (kKeeps) Note(ZELVBTXMLPieceKind::Text, text, p);
        if (p[1] == '/') {
            p = ReadEndTag(p);
        } else if (p[1] == '!' || p[1] == '?') {
            [[maybe_unused]] const char* const markup = p;
            p = ReadMarkup(p);
            if constexpr (kKeeps) {
                if (p != nullptr) Note(KindOf(markup), markup, p);
            }
        } else {
            p = ReadStartTag(p);
        }
    }
    return p;
}

const char* ZELXMLTokenizer::ReadStartTag(const char* p) {
    const char* const tag = p + 1;
    p = ReadName(tag, ZELXMLFault::TagName);
    if (p == nullptr) return fault_ == ZELXMLFault::TagName ? Fail(fault_, tag - 1) : nullptr;
    const auto firstAttribute = static_cast<std::uint32_t>(store_.attributes.Size());
    const auto element = static_cast<std::uint32_t>(store_.elements.Size());
    store_.elements.Append({Offset(tag), static_cast<std::uint32_t>(p - tag), firstAttribute, open_});
    open_ = element;
    for (;;) {
        while (const char* const behind = ReadUsualAttribute(p)) p = behind;
        const char* next = ZELXMLSkipBlanks(p);
        if (*next == '>') return next + 1;
        if (*next == '/') {
            if (next[1] != '>') return FailInStartTag(next + 1, ZELXMLFault::TagCharacter);
            CloseElement();
            return next + 2;
        }
        if (next == end_ || *next == '<') return Fail(ZELXMLFault::TagNotClosed, tag - 1);
        if (next == p) {
            const bool isName = ZELXMLIs(*p, kZELXMLNameStart);
            return FailInStartTag(p, isName ? ZELXMLFault::AttributeNotSeparated : ZELXMLFault::TagCharacter);
        }
        p = ReadAttribute(next);
        if (p == nullptr) return nullptr;
    }
}

void ZELXMLTokenizer::CloseElement() {
    std::uint32_t& endOfSubtree = store_.elements[open_].endOfSubtree;
    open_ = endOfSubtree;
    endOfSubtree = static_cast<std::uint32_t>(store_.elements.Size());
}

const char* ZELXMLTokenizer::ReadEndTag(const char* p) {
    const ZELVBTXMLElementRecord& element = store_.elements[open_];
    const std::string_view tag(text_ + element.tagOffset, element.tagLength);
    const char* const name = p + 2;
    if (static_cast<std::size_t>(end_ - name) < tag.size() || !ZELXMLStartsWith(name, tag)) {
        return Fail(ZELXMLFault::EndTagMismatch, p, tag);
    }
    const char* close = name + tag.size();
    if (*close != '>') {
        const bool longerName = ZELXMLIs(*close, kZELXMLName) || !ZELXMLIsAscii(*close);
        if (longerName) return Fail(ZELXMLFault::EndTagMismatch, p, tag);
        close = ZELXMLSkipBlanks(close);
        if (*close != '>') return FailAt(close, ZELXMLFault::TagCharacter, ZELXMLFault::TagNotClosed, p);
    }
    CloseElement();
    return close + 1;
}

/// Reads an attribute as nearly all are written: one blank, a name of ASCII, an equals sign, and in double
/// quotes a value that reads as it stands. \returns the place behind it; null, and nothing is read, for any
/// other text.
inline const char* ZELXMLTokenizer::ReadUsualAttribute(const char* p) {
    using Record = ZELVBTXMLAttributeRecord;
    const char* const name = p + 1;
    if (*p != ' ' || !ZELXMLIs(*name, kZELXMLNameStart)) return nullptr;
    const char* const nameEnd = ZELXMLFindNameEnd(name + 1);
    if (nameEnd[0] != '=' || nameEnd[1] != '"') return nullptr;
    const char* const value = nameEnd + Record::kBetween;
    const char* const valueEnd = ZELXMLFindSpecial<'"', '<', '&'>(value);
    const auto nameLength = static_cast<std::size_t>(nameEnd - name);
    const auto valueLength = static_cast<std::size_t>(valueEnd - value);
    if (*valueEnd != '"' || nameLength > Record::kMaxNameLength || valueLength >= Record::kAside)
        return nullptr;
    store_.attributes.Append({Offset(value), static_cast<std::uint32_t>(valueLength << 8 | nameLength)});
    return valueEnd + 1;
}

void ZELXMLTokenizer::AppendAttribute(const char* name, const char* nameEnd, const Value& value) {
    using Record = ZELVBTXMLAttributeRecord;
    const auto nameLength = static_cast<std::uint32_t>(nameEnd - name);
    const bool isNear = Offset(nameEnd) + Record::kBetween == value.offset;
    if (!value.decoded && isNear && nameLength <= Record::kMaxNameLength && value.length < Record::kAside) {
        store_.attributes.Append({value.offset, value.length << 8 | nameLength});
        return;
    }
    const auto index = static_cast<std::uint32_t>(store_.asides.Size());
    store_.asides.Append({Offset(name), nameLength, value.offset, value.length, value.decoded ? 1u : 0u});
    store_.attributes.Append({index, Record::kAside << 8});
}

const char* ZELXMLTokenizer::ReadAttribute(const char* name) {
    const char* const nameEnd = ReadName(name, ZELXMLFault::AttributeName);
    if (nameEnd == nullptr) return nullptr;
    const char* p = *nameEnd == '=' ? nameEnd : ZELXMLSkipBlanks(nameEnd);
    if (*p != '=') return FailInStartTag(p, ZELXMLFault::AttributeEquals);
    ++p;
    if (*p != '"' && *p != '\'') {
        p = ZELXMLSkipBlanks(p);
        if (*p != '"' && *p != '\'') return FailInStartTag(p, ZELXMLFault::AttributeQuote);
    }
    const char* const value = p + 1;
    const char* const stop = FindValueStop(value, *p);
    if (*stop != *p) return ReadUnusualValue(name, nameEnd, value, stop);
    AppendAttribute(name, nameEnd, {Offset(value), static_cast<std::uint32_t>(stop - value), false});
    return stop + 1;
}

/// Reads on from \p p in a value that must be decoded or has more than ASCII.
const char* ZELXMLTokenizer::ReadUnusualValue(const char* name, const char* nameEnd, const char* value,
                                              const char* p) {
    const char quote = value[-1];
    const std::size_t decodedBegin = store_.decodedText.Size();
    const char* run = value;  // what is not decoded yet and reads as it stands
    for (; *p != quote; p = FindValueStop(p, quote)) {
        char text[4] = {' '};
        std::uint32_t textLength = 1;
        const char* next = nullptr;
        if (*p == '<') return Fail(ZELXMLFault::AttributeLessThan, p);
        if (*p == '&') {
            std::uint32_t code = 0;
            next = ReadReference(p, code);
            textLength = ZELXMLEncode(code, text);
        } else {
            next = ReadCharacter(p, ZELXMLFault::AttributeNotClosed, value - 1);
        }
        if (next == nullptr) return nullptr;
        if (ZELXMLIsAscii(*p)) {
            // A reference, or a tab or line end that reads as a blank; CR LF is one line end.
            if (*p == '\r' && *next == '\n') ++next;
            store_.decodedText.Append(run, p);
            store_.decodedText.Append(text, text + textLength);
            run = next;
        }
        p = next;
    }
    if (run == value) {
        AppendAttribute(name, nameEnd, {Offset(value), static_cast<std::uint32_t>(p - value), false});
    } else {
        store_.decodedText.Append(run, p);
        const auto decodedLength = static_cast<std::uint32_t>(store_.decodedText.Size() - decodedBegin);
        AppendAttribute(name, nameEnd, {static_cast<std::uint32_t>(decodedBegin), decodedLength, true});
    }
    return p + 1;
}

/// Reads character data up to the next "<". It is checked and not kept.
const char* ZELXMLTokenizer::ReadText(const char* p) {
    for (;;) {
        p = ZELXMLSkipBlanks(p);  // between tags there is mostly nothing else
        if (*p == '<') return p;
        p = ZELXMLFindSpecial<'<', '&', ']'>(p);
        if (*p == '<') return p;
        if (*p == '&') {
            std::uint32_t code = 0;
            p = ReadReference(p, code);
        } else if (*p == ']') {
            if (ZELXMLStartsWith(p, "]]>")) return Fail(ZELXMLFault::CharacterDataEndMark, p);
            ++p;
        } else if (p == end_) {
            const std::uint32_t tagLength = store_.elements[open_].tagLength;
            return Fail(ZELXMLFault::ElementNotClosed, OpenTag(), {OpenTag() + 1, tagLength});
        } else {
            p = ReadCharacter(p, ZELXMLFault::ElementNotClosed, p);
        }
        if (p == nullptr) return nullptr;
    }
}

/// Reads what begins with "<!" or "<?" inside an element.
const char* ZELXMLTokenizer::ReadMarkup(const char* p) {
    if (p[1] == '?') return ReadInstruction(p);
    if (ZELXMLStartsWith(p, "<!--")) return ReadComment(p);
    if (ZELXMLStartsWith(p, "<![CDATA[")) return ReadCharacterDataMark(p);
    if (ZELXMLStartsWith(p, "<!DOCTYPE")) return Fail(ZELXMLFault::DoctypeMisplaced, p);
    return Fail(ZELXMLFault::MarkupUnknown, p);
}

const char* ZELXMLTokenizer::ReadCharacterDataMark(const char* p) {
    const char* const begin = p;
    p += std::string_view("<![CDATA[").size();
    for (;;) {
        p = ZELXMLFindSpecial<']'>(p);
        if (*p != ']') {
            p = ReadCharacter(p, ZELXMLFault::CharacterDataMarkNotClosed, begin);
            if (p == nullptr) return nullptr;
        } else if (ZELXMLStartsWith(p, "]]>")) {
            return p + 3;
        } else {
            ++p;
        }
    }
}

const char* ZELXMLTokenizer::ReadReference(const char* p, std::uint32_t& code) {
    if (p[1] == '#') return ReadCharacterReference(p, code);
    const char* const name = p + 1;
    for (const PredefinedEntity& entity : kPredefinedEntities) {
        if (ZELXMLStartsWith(name, entity.name) && name[entity.name.size()] == ';') {
            code = entity.code;
            return name + entity.name.size() + 1;
        }
    }
    const char* const nameEnd = ReadName(name, ZELXMLFault::ReferenceMalformed);
    if (nameEnd == nullptr || *nameEnd != ';') return Fail(ZELXMLFault::ReferenceMalformed, p);
    return Fail(ZELXMLFault::ReferenceUndefined, p, {name, static_cast<std::size_t>(nameEnd - name)});
}

const char* ZELXMLTokenizer::ReadCharacterReference(const char* p, std::uint32_t& code) {
    const char* const begin = p;
    const std::uint32_t base = p[2] == 'x' ? 16 : 10;
    const char* const digits = p + (base == 16 ? 3 : 2);
    code = 0;
    for (p = digits;; ++p) {
        const char lower = static_cast<char>(*p | 0x20);
        std::uint32_t digit = base;
        if (*p >= '0' && *p <= '9') digit = static_cast<std::uint32_t>(*p - '0');
        if (lower >= 'a' && lower <= 'f') digit = static_cast<std::uint32_t>(lower - 'a') + 10;
        if (digit >= base) break;
        // Held just beyond the last character, however many digits follow.
        code = code > 0x10FFFF ? code : code * base + digit;
    }
    if (p == digits || *p != ';') return Fail(ZELXMLFault::ReferenceMalformed, begin);
    if (!ZELXMLIsCharacter(code)) return Fail(ZELXMLFault::ReferenceForbidden, begin);
    return p + 1;
}
