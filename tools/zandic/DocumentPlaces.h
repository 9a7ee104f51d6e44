#ifndef ZANDIC_TOOL_DOCUMENT_PLACES_H
#define ZANDIC_TOOL_DOCUMENT_PLACES_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "ZELDbBinary.h"
#include "ZELVBTXMLNode.h"
#include "ZanDicDiagnostic.h"

namespace tool {

/// Where the elements of a document stand: the model holds no places, so they are found by UUID in the
/// document, which is read for that.
///
/// Making one reads the whole document and keeps 24 bytes for each UUID, so it is made when a place is asked
/// for first. A question costs one hash lookup. Nothing of the dictionary is asked, and the package need not
/// be loaded. Lines and columns count from 1, columns in characters. The nodes live as long as this object.
/// One thread.
class DocumentPlaces {
public:
    /// Reads the document in the file \p path, of any kind.
    /// \returns null when it cannot be read or is not well formed.
    static std::unique_ptr<DocumentPlaces> Read(const char* path);

    /// \param document is taken over; must not be null.
    explicit DocumentPlaces(std::unique_ptr<ZELVBTXMLDocument> document);

    const ZELVBTXMLDocument& Document() const { return *_Document; }

    /// \returns the element whose attribute `Uuid` says \p uuid, whatever its tag: the first of several, what
    /// stands inside a comment aside; no element when there is none.
    ZELVBTXMLNode Find(const ZELDbBinary& uuid) const;

    /// Fetches what Find will need into the cache, in two steps: for many questions at a time, the first for
    /// each, then the second for each.
    void PrefetchSlot(const ZELDbBinary& uuid) const {
        __builtin_prefetch(&_SLOTS[uuid.ComputeHashKey() & (_SLOTS.size() - 1)]);
    }
    void PrefetchEntry(const ZELDbBinary& uuid) const {
        const std::uint32_t number = _SLOTS[uuid.ComputeHashKey() & (_SLOTS.size() - 1)];
        if (number != 0) __builtin_prefetch(&_ENTRIES[number - 1]);
    }

    /// \returns the place of the "<" of that element; zeros when there is none.
    ZanDicPlace PlaceOf(const ZELDbBinary& uuid) const;

    /// \returns the place of the name of an attribute of that element, the first of that name; of the "<"
    /// when the tag lacks the attribute; zeros when there is no such element.
    ZanDicPlace PlaceOf(const ZELDbBinary& uuid, std::string_view attribute) const;

private:
    struct Entry {
        ZELDbBinary uuid;
        std::uint32_t element;
    };

    void add_All();
    void fill_Slots();
    std::size_t slot_Of(const ZELDbBinary& uuid) const;

    std::unique_ptr<ZELVBTXMLDocument> _Document;
    std::vector<Entry> _ENTRIES;        ///< in document order
    std::vector<std::uint32_t> _SLOTS;  ///< 1-based numbers of entries, 0: free; a power of two of them
};

/// \returns whether the tag is one that no pass reads, whatever is inside.
bool IsComment(const ZELVBTXMLNode& node);

/// \returns the place of a node's "<" or an attribute's name; zeros for none.
ZanDicPlace PlaceOf(const ZELVBTXMLNode& node);
ZanDicPlace PlaceOf(const ZELVBTXMLAttribute& attribute);

}  // namespace tool

#endif
