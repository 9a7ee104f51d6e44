#ifndef ZELXMLTOKENIZER_H
#define ZELXMLTOKENIZER_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "ZELVBTXMLNode.h"
#include "ZELXMLBlock.h"
#include "ZELXMLEncoding.h"
#include "ZELXMLFault.h"

/// What the tokenizer writes.
struct ZELXMLTapeStore {
    ZELXMLBlock<ZELVBTXMLElementRecord> elements;  ///< and one more behind the last, see ZELVBTXMLTape
    ZELXMLBlock<ZELVBTXMLAttributeRecord> attributes;
    ZELXMLBlock<ZELVBTXMLAsideRecord> asides;
    ZELXMLBlock<char> decodedText;
    ZELXMLBlock<ZELVBTXMLPieceRecord> pieces;  ///< none unless they are kept
};

/// Checks a document against the rules of XML 1.0 that ZELVBTXMLDocument names, and writes its tape, in
/// one pass and without recursion.
///
/// Inside, each Read function is given the place where its construct begins and returns the place behind
/// it, or null once the fault is noted. The NULs behind the text stop every scan, so only a NUL is ever
/// checked for being the end.
///
/// Comments, processing instructions and character data are noted where ReadRoot and ReadMisc call what reads
/// them, when they are to be kept. ReadRoot is compiled for both cases: a load does not pay for the question.
class ZELXMLTokenizer {
public:
    /// NULs that must stand behind the text.
    static constexpr std::size_t kPadding = 64;

    /// \param text \p length bytes of UTF-8, less than 4 GiB, and kPadding NULs; both stay the caller's.
    /// \param source the encoding that the document has itself.
    ZELXMLTokenizer(const char* text, std::size_t length, ZELXMLTapeStore& store, ZELXMLSource source = {},
                    ZELVBTXMLKeep keep = ZELVBTXMLKeep::Nothing);

    /// Reads the whole document. Call it once.
    /// \returns whether it is well formed; if not, the store holds nothing of use.
    bool Run();

    ZELXMLFault Fault() const { return fault_; }
    /// Where the fault is: a byte of the text, or the end of it.
    std::size_t FaultOffset() const { return static_cast<std::size_t>(faultPlace_ - text_); }
    /// The reason in plain English.
    std::string Reason() const;

    /// Length of the byte order mark with which the text begins, or 0.
    static std::uint32_t MarkLength(std::string_view text);

private:
    static constexpr std::uint32_t kNoElement = ZELVBTXMLPieceRecord::kNoElement;

    /// One of the three parts of an XML declaration.
    struct DeclarationPart;

    /// Where the value of an attribute stands: in the decoded text or in the text itself.
    struct Value {
        std::uint32_t offset;
        std::uint32_t length;
        bool decoded;
    };

    const char* Fail(ZELXMLFault fault, const char* place, std::string_view detail = {});
    const char* FailAt(const char* p, ZELXMLFault fault, ZELXMLFault atEnd, const char* begin);
    const char* FailInStartTag(const char* p, ZELXMLFault fault);
    std::uint32_t Offset(const char* p) const { return static_cast<std::uint32_t>(p - text_); }
    /// Keeps what was read from \p begin to \p end, if there is anything.
    void Note(ZELVBTXMLPieceKind kind, const char* begin, const char* end);
    static ZELVBTXMLPieceKind KindOf(const char* markup);
    /// The "<" of the innermost open element.
    const char* OpenTag() { return text_ + store_.elements[open_].tagOffset - 1; }

    template <bool kKeeps>
    const char* ReadRoot(const char* p);
    const char* ReadStartTag(const char* p);
    const char* ReadEndTag(const char* p);
    void CloseElement();
    const char* ReadUsualAttribute(const char* p);
    const char* ReadAttribute(const char* name);
    const char* ReadUnusualValue(const char* name, const char* nameEnd, const char* value, const char* p);
    void AppendAttribute(const char* name, const char* nameEnd, const Value& value);
    const char* ReadText(const char* p);
    const char* ReadMarkup(const char* p);
    const char* ReadCharacterDataMark(const char* p);
    const char* ReadName(const char* p, ZELXMLFault whenNone);
    const char* ReadWideName(const char* begin, const char* p, ZELXMLFault whenNone);
    const char* ReadCharacter(const char* p, ZELXMLFault atEnd, const char* begin);
    const char* ReadReference(const char* p, std::uint32_t& code);
    const char* ReadCharacterReference(const char* p, std::uint32_t& code);

    const char* ReadEncodingMark(const char* p);
    const char* ReadDeclaration(const char* p);
    const char* ReadDeclarationValue(const char* p, std::string_view& value);
    const char* TakeEncoding(const char* p, std::string_view name);
    const char* ReadMisc(const char* p, bool beforeRoot);
    const char* ReadComment(const char* p);
    const char* ReadInstruction(const char* p);
    const char* ReadDoctype(const char* p);
    const char* FailInDoctype(const char* p);
    const char* ReadExternalId(const char* p);
    const char* ReadInternalSubset(const char* p);
    const char* ReadMarkupDeclaration(const char* p);
    const char* ReadSeparateLiteral(const char* p);
    const char* ReadLiteral(const char* p);

    const char* const text_;
    const char* const end_;
    ZELXMLTapeStore& store_;
    const ZELXMLSource source_;
    const bool keeps_;
    std::uint32_t open_ = kNoElement;  ///< innermost open element; its endOfSubtree names the one around it
    bool asciiOnly_ = false;
    const char* doctype_ = nullptr;  ///< where the document type declaration begins, if there is one

    ZELXMLFault fault_ = ZELXMLFault::None;
    const char* faultPlace_ = nullptr;
    std::string_view faultDetail_;
};

#endif
