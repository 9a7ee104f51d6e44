#ifndef ZELVBTXMLTAPE_H
#define ZELVBTXMLTAPE_H

#include <cstdint>
#include <string_view>

#include "ZELExport.h"

class ZELXMLPositions;

/// A place in a document. Line and column count from 1, the column in characters; CR LF, LF and CR
/// each end a line, and a byte order mark takes no column.
struct ZELVBTXMLPosition {
    int line = 0;
    int column = 0;
};

/// An element on the tape: 16 bytes. Elements stand in document order, so that the first child of
/// element n is n + 1, and its attributes end where those of element n + 1 begin.
struct ZELVBTXMLElementRecord {
    std::uint32_t tagOffset;       ///< in the text; the "<" is the byte before
    std::uint32_t tagLength;       ///< bytes
    std::uint32_t firstAttribute;  ///< index of the first attribute
    std::uint32_t endOfSubtree;    ///< index of the first element in document order that is not inside
};

/// An attribute on the tape: 8 bytes, for one that is written as most are, name="value". One with kAside for
/// its value's length is told in a ZELVBTXMLAsideRecord, whose index then stands in `valueOffset`.
struct ZELVBTXMLAttributeRecord {
    static constexpr std::uint32_t kAside = 0xFFFFFF;
    static constexpr std::uint32_t kMaxNameLength = 0xFF;
    static constexpr std::uint32_t kBetween = 2;  ///< bytes from the end of the name to the value

    std::uint32_t valueOffset;  ///< in the text
    std::uint32_t lengths;      ///< value's length << 8 | name's length, in bytes

    std::uint32_t NameLength() const { return lengths & kMaxNameLength; }
    std::uint32_t NameOffset() const { return valueOffset - kBetween - NameLength(); }
    std::uint32_t ValueLength() const { return lengths >> 8; }
    bool IsAside() const { return ValueLength() == kAside; }
};

/// What the 8 bytes of an attribute cannot hold: a value that had to be decoded, one that is very long or has
/// a very long name, and one with blanks around the equals sign.
struct ZELVBTXMLAsideRecord {
    std::uint32_t nameOffset;  ///< in the text
    std::uint32_t nameLength;
    std::uint32_t valueOffset;  ///< in the decoded text when `decoded`, else in the text
    std::uint32_t valueLength;
    std::uint32_t decoded;  ///< 1 or 0
};

/// What a document has beside tags and attributes.
enum class ZELVBTXMLPieceKind : std::uint32_t {
    Declaration,    ///< <?xml ...?>
    DocumentType,   ///< <!DOCTYPE ...>, with everything inside
    Comment,        ///< <!-- ... -->
    Instruction,    ///< <? ... ?>
    CharacterMark,  ///< <![CDATA[ ... ]]>
    Text,           ///< what stands between two of these, or tags; blanks and line ends too
};

/// A piece on the tape: 16 bytes.
struct ZELVBTXMLPieceRecord {
    static constexpr std::uint32_t kNoElement = 0xFFFFFFFF;

    std::uint32_t offset;  ///< in the text, of its first character
    std::uint32_t length;  ///< bytes
    std::uint32_t parent;  ///< index of the element that it stands in; kNoElement outside the root
    ZELVBTXMLPieceKind kind;
};

/// The tape of one document, as the views of ZELVBTXMLNode.h read it: the document's own text, offsets
/// and lengths into it, and the values that do not stand in the text as they read.
/// The document owns it; callers use the views.
struct ZELVBTXMLTape {
    const char* text = nullptr;
    const char* decodedText = nullptr;
    const ZELVBTXMLElementRecord* elements = nullptr;  ///< one more than there are, for the ends of the last
    const ZELVBTXMLAttributeRecord* attributes = nullptr;
    const ZELVBTXMLAsideRecord* asides = nullptr;
    const ZELVBTXMLPieceRecord* pieces = nullptr;
    ZELXMLPositions* positions = nullptr;
    std::uint32_t elementCount = 0;
    std::uint32_t attributeCount = 0;
    std::uint32_t pieceCount = 0;

    std::string_view Tag(std::uint32_t element) const {
        return {text + elements[element].tagOffset, elements[element].tagLength};
    }

    std::uint32_t NameOffset(std::uint32_t attribute) const {
        const ZELVBTXMLAttributeRecord& record = attributes[attribute];
        return record.IsAside() ? asides[record.valueOffset].nameOffset : record.NameOffset();
    }

    std::string_view Name(std::uint32_t attribute) const {
        const ZELVBTXMLAttributeRecord& record = attributes[attribute];
        if (!record.IsAside()) return {text + record.NameOffset(), record.NameLength()};
        const ZELVBTXMLAsideRecord& aside = asides[record.valueOffset];
        return {text + aside.nameOffset, aside.nameLength};
    }

    std::string_view Value(std::uint32_t attribute) const {
        const ZELVBTXMLAttributeRecord& record = attributes[attribute];
        if (!record.IsAside()) return {text + record.valueOffset, record.ValueLength()};
        const ZELVBTXMLAsideRecord& aside = asides[record.valueOffset];
        return {(aside.decoded != 0 ? decodedText : text) + aside.valueOffset, aside.valueLength};
    }

    /// Line and column of a byte of the text. The first question reads the whole text once; each one
    /// costs no more than a few kilobytes of reading, however long the lines are.
    ZELSYSTEM_API ZELVBTXMLPosition PositionOf(std::uint32_t offset) const;
};

#endif
