#ifndef ZELVBTXMLNODE_H
#define ZELVBTXMLNODE_H

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ZELExport.h"
#include "ZELVBTXMLTape.h"

// Elements and attributes of an XML document, as cheap values that refer to the document: copy them
// freely, and not beyond the life of their ZELVBTXMLDocument.
//
// Names and values are views. At least ZELVBTXMLDocument::kReadablePadding bytes can be read behind the
// end of each of them, so that they can be compared in blocks. They do not end with a NUL.
// A document may be read from several threads, but Position() is for one thread at a time.

/// Why a document was refused, and where.
struct ZELVBTXMLError {
    std::string reason;  ///< one line of plain English, without a full stop
    int line = 0;        ///< from 1; 0 when the file could not be read at all
    int column = 0;      ///< in characters, from 1; 0 when the file could not be read at all
};

/// An attribute of a tag, or no attribute.
class ZELVBTXMLAttribute {
public:
    /// No attribute.
    ZELVBTXMLAttribute() = default;
    ZELVBTXMLAttribute(const ZELVBTXMLTape& tape, std::uint32_t index) : tape_(&tape), index_(index) {}

    /// Whether there is an attribute; the other operations are for one that is.
    explicit operator bool() const { return tape_ != nullptr; }

    std::string_view Name() const { return tape_->Name(index_); }
    /// The value as XML says: references replaced, and each tab, line end and blank a blank.
    std::string_view Value() const { return tape_->Value(index_); }
    /// Place of the first character of the name.
    ZELVBTXMLPosition Position() const { return tape_->PositionOf(tape_->NameOffset(index_)); }
    /// Number of the attribute in the document, from 0; see ZELVBTXMLDocument::AttributeAt.
    std::uint32_t Index() const { return index_; }

private:
    const ZELVBTXMLTape* tape_ = nullptr;
    std::uint32_t index_ = 0;
};

/// The attributes of one tag in document order; an attribute given twice is there twice.
class ZELVBTXMLAttributes {
public:
    class iterator {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = ZELVBTXMLAttribute;
        using difference_type = std::ptrdiff_t;
        using pointer = const ZELVBTXMLAttribute*;
        using reference = ZELVBTXMLAttribute;

        iterator(const ZELVBTXMLTape& tape, std::uint32_t index) : tape_(&tape), index_(index) {}
        ZELVBTXMLAttribute operator*() const { return {*tape_, index_}; }
        iterator& operator++() {
            ++index_;
            return *this;
        }
        bool operator==(const iterator& other) const { return index_ == other.index_; }

    private:
        const ZELVBTXMLTape* tape_;
        std::uint32_t index_;
    };

    ZELVBTXMLAttributes(const ZELVBTXMLTape& tape, std::uint32_t first, std::uint32_t end)
        : tape_(&tape), first_(first), end_(end) {}
    iterator begin() const { return {*tape_, first_}; }
    iterator end() const { return {*tape_, end_}; }
    std::uint32_t Size() const { return end_ - first_; }

private:
    const ZELVBTXMLTape* tape_;
    std::uint32_t first_;
    std::uint32_t end_;
};

class ZELVBTXMLChildren;

/// Where a walk over child elements stands; see ZELVBTXMLNode::getFirstNodePosition.
struct ZELVBTXMLNodePosition {
    std::uint32_t element = 0;
};

/// An element of a document, or no element.
class ZELVBTXMLNode {
public:
    /// No element.
    ZELVBTXMLNode() = default;
    ZELVBTXMLNode(const ZELVBTXMLTape& tape, std::uint32_t index) : tape_(&tape), index_(index) {}

    /// Whether there is an element; the other operations are for one that is.
    explicit operator bool() const { return tape_ != nullptr; }

    std::string_view getTag() const { return tape_->Tag(index_); }

    /// Begins a walk over the child elements.
    ZELVBTXMLNodePosition getFirstNodePosition() const { return {index_ + 1}; }
    /// The child element at \p position, which moves on to the next one.
    /// \returns no element, and \p position stays, once there is none left.
    ZELVBTXMLNode getNextNode(ZELVBTXMLNodePosition& position) const;

    /// The child elements in document order. Each step costs the same, whatever is inside the child.
    ZELVBTXMLChildren Children() const;

    ZELVBTXMLAttributes Attributes() const {
        return {*tape_, tape_->elements[index_].firstAttribute, tape_->elements[index_ + 1].firstAttribute};
    }
    /// The first attribute of that name, or none. The cost is that of comparing the tag's names.
    ZELVBTXMLAttribute getAttribute(std::string_view name) const;
    /// The value of the first attribute of that name.
    std::optional<std::string_view> getAttributeValue(std::string_view name) const;

    /// Place of the "<" of the start tag.
    ZELVBTXMLPosition Position() const { return tape_->PositionOf(tape_->elements[index_].tagOffset - 1); }
    /// Number of the element in the document, from 0 (the root); see ZELVBTXMLDocument::ElementAt.
    std::uint32_t Index() const { return index_; }

private:
    const ZELVBTXMLTape* tape_ = nullptr;
    std::uint32_t index_ = 0;
};

/// The child elements of one element in document order.
class ZELVBTXMLChildren {
public:
    class iterator {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = ZELVBTXMLNode;
        using difference_type = std::ptrdiff_t;
        using pointer = const ZELVBTXMLNode*;
        using reference = ZELVBTXMLNode;

        iterator(const ZELVBTXMLTape& tape, std::uint32_t index) : tape_(&tape), index_(index) {}
        ZELVBTXMLNode operator*() const { return {*tape_, index_}; }
        iterator& operator++() {
            index_ = tape_->elements[index_].endOfSubtree;
            return *this;
        }
        bool operator==(const iterator& other) const { return index_ == other.index_; }

    private:
        const ZELVBTXMLTape* tape_;
        std::uint32_t index_;
    };

    ZELVBTXMLChildren(const ZELVBTXMLTape& tape, std::uint32_t parent) : tape_(&tape), parent_(parent) {}
    iterator begin() const { return {*tape_, parent_ + 1}; }
    iterator end() const { return {*tape_, tape_->elements[parent_].endOfSubtree}; }

    /// How many there are. The cost is that of a walk.
    int Count() const { return static_cast<int>(std::distance(begin(), end())); }

private:
    const ZELVBTXMLTape* tape_;
    std::uint32_t parent_;
};

/// Something of a document that is neither tag nor attribute; only of documents that keep these.
class ZELVBTXMLPiece {
public:
    ZELVBTXMLPiece(const ZELVBTXMLTape& tape, std::uint32_t index) : tape_(&tape), index_(index) {}

    ZELVBTXMLPieceKind Kind() const { return Record().kind; }
    /// The piece as it stands in the document, its marks included and references not replaced. Line ends are
    /// those of the document.
    std::string_view Text() const { return {tape_->text + Record().offset, Record().length}; }

    /// Number of the element that it stands in; ZELVBTXMLPieceRecord::kNoElement outside the root.
    std::uint32_t Parent() const { return Record().parent; }
    /// Whether it stands directly inside \p element.
    bool IsIn(const ZELVBTXMLNode& element) const { return Record().parent == element.Index(); }
    /// Whether it stands outside the root.
    bool IsOutside() const { return Record().parent == ZELVBTXMLPieceRecord::kNoElement; }
    /// Whether it stands in front of the start tag of \p element.
    bool IsBefore(const ZELVBTXMLNode& element) const {
        return Record().offset < tape_->elements[element.Index()].tagOffset;
    }
    /// Whether nothing stands between it and \p next.
    bool Touches(const ZELVBTXMLPiece& next) const {
        return Record().offset + Record().length == next.Record().offset;
    }

    /// Place of its first character.
    ZELVBTXMLPosition Position() const { return tape_->PositionOf(Record().offset); }

private:
    const ZELVBTXMLPieceRecord& Record() const { return tape_->pieces[index_]; }

    const ZELVBTXMLTape* tape_;
    std::uint32_t index_;
};

/// What a document keeps beside elements and attributes.
enum class ZELVBTXMLKeep {
    Nothing,
    Pieces,  ///< for programs that write the document again: 16 bytes more for each piece
};

/// An XML document that was read: owner of its text and of everything that the views refer to.
///
/// Reading checks the whole of XML 1.0 (fifth edition) that concerns a reader which does not validate,
/// with one departure: an attribute given twice in a tag is accepted, and both stay, in their order.
/// Text is UTF-8, with or without byte order mark; US-ASCII may be declared too, and is then enforced. A
/// text in UTF-16 (of either order, marked or declared) or ISO-8859-1 (declared) is turned into UTF-8 first.
/// Any other encoding is refused. A document type declaration is passed over: of the declarations inside,
/// quotes, comments and characters are checked and nothing else; nothing that they define is used, nothing
/// outside the document is ever read, and a reference to anything but a character or one of the five
/// predefined entities is a fault. Comments, processing instructions and character data
/// are checked, and kept only when that is asked for (ZELVBTXMLKeep). A document has less than 4 GiB; nesting
/// is bounded by memory alone. Costs, beside the text: 16 bytes an element, 8 an attribute.
class ZELSYSTEM_API ZELVBTXMLDocument {
public:
    static constexpr std::size_t kReadablePadding = 32;

    /// Reads the document in the file \p path.
    /// \param[out] error written on failure; may be null.
    /// \returns null when the file cannot be read, is no regular file or is refused.
    static std::unique_ptr<ZELVBTXMLDocument> CreateFromFile(const char* path, ZELVBTXMLError* error,
                                                             ZELVBTXMLKeep keep = ZELVBTXMLKeep::Nothing);

    /// Reads the document \p text, of which a copy is kept.
    /// \param[out] error written on failure; may be null.
    /// \returns null when it is refused.
    static std::unique_ptr<ZELVBTXMLDocument> CreateFromMemory(std::string_view text, ZELVBTXMLError* error,
                                                               ZELVBTXMLKeep keep = ZELVBTXMLKeep::Nothing);

    ~ZELVBTXMLDocument();
    ZELVBTXMLDocument(const ZELVBTXMLDocument&) = delete;
    ZELVBTXMLDocument& operator=(const ZELVBTXMLDocument&) = delete;

    ZELVBTXMLNode Root() const { return {*tape_, 0}; }
    /// The path given to CreateFromFile; empty when the document came from memory.
    const std::string& FileName() const { return fileName_; }

    std::uint32_t ElementCount() const { return tape_->elementCount; }
    std::uint32_t AttributeCount() const { return tape_->attributeCount; }
    /// The element of number \p index, which is below ElementCount().
    ZELVBTXMLNode ElementAt(std::uint32_t index) const { return {*tape_, index}; }
    /// The attribute of number \p index, which is below AttributeCount().
    ZELVBTXMLAttribute AttributeAt(std::uint32_t index) const { return {*tape_, index}; }

    /// How many pieces are kept, in document order; 0 unless that was asked for.
    std::uint32_t PieceCount() const { return tape_->pieceCount; }
    /// The piece of number \p index, which is below PieceCount().
    ZELVBTXMLPiece PieceAt(std::uint32_t index) const { return {*tape_, index}; }

private:
    class Storage;

    ZELVBTXMLDocument(std::unique_ptr<Storage> storage, std::string fileName);

    std::unique_ptr<Storage> storage_;  ///< owns the text and the tape
    const ZELVBTXMLTape* tape_;         ///< inside the storage
    std::string fileName_;
};

inline ZELVBTXMLNode ZELVBTXMLNode::getNextNode(ZELVBTXMLNodePosition& position) const {
    const std::uint32_t element = position.element;
    if (element >= tape_->elements[index_].endOfSubtree) return {};
    position.element = tape_->elements[element].endOfSubtree;
    return {*tape_, element};
}

inline ZELVBTXMLChildren ZELVBTXMLNode::Children() const { return {*tape_, index_}; }

inline ZELVBTXMLAttribute ZELVBTXMLNode::getAttribute(std::string_view name) const {
    for (const ZELVBTXMLAttribute attribute : Attributes()) {
        if (attribute.Name() == name) return attribute;
    }
    return {};
}

inline std::optional<std::string_view> ZELVBTXMLNode::getAttributeValue(std::string_view name) const {
    const ZELVBTXMLAttribute attribute = getAttribute(name);
    return attribute ? std::optional(attribute.Value()) : std::nullopt;
}

#endif
