#include "DocumentPlaces.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "HexToBinary.h"
#include "ZANDicWords.h"

namespace tool {
namespace {

namespace tag = ZANDicFormat::tag;
namespace word = ZANDicFormat::word;

constexpr std::size_t kFewestSlots = 16;

}  // namespace

std::unique_ptr<DocumentPlaces> DocumentPlaces::Read(const char* path) {
    std::unique_ptr<ZELVBTXMLDocument> document = ZELVBTXMLDocument::CreateFromFile(path, nullptr);
    if (!document) return nullptr;
    return std::make_unique<DocumentPlaces>(std::move(document));
}

DocumentPlaces::DocumentPlaces(std::unique_ptr<ZELVBTXMLDocument> document) : _Document(std::move(document)) {
    add_All();
    fill_Slots();
}

void DocumentPlaces::add_All() {
    _ENTRIES.reserve(_Document->ElementCount());
    for (std::uint32_t element = 0; element < _Document->ElementCount();) {
        const ZELVBTXMLNode node = _Document->ElementAt(element);
        if (IsComment(node)) {
            // A step of a walk among its siblings passes over all that is inside.
            ZELVBTXMLNodePosition position{element};
            if (!_Document->Root().getNextNode(position)) break;
            element = position.element;
            continue;
        }
        if (const auto uuid = node.getAttributeValue(word::kUuid)) {
            _ENTRIES.push_back({UuidFromText(*uuid), element});
        }
        ++element;
    }
}

void DocumentPlaces::fill_Slots() {
    _SLOTS.resize(std::bit_ceil(std::max(2 * _ENTRIES.size(), kFewestSlots)));
    for (std::size_t index = 0; index < _ENTRIES.size(); ++index) {
        std::uint32_t& slot = _SLOTS[slot_Of(_ENTRIES[index].uuid)];
        if (slot == 0) slot = static_cast<std::uint32_t>(index + 1);
    }
}

/// The slot of that UUID, or the free one where it would stand.
std::size_t DocumentPlaces::slot_Of(const ZELDbBinary& uuid) const {
    const std::size_t mask = _SLOTS.size() - 1;
    std::size_t slot = uuid.ComputeHashKey() & mask;
    while (_SLOTS[slot] != 0 && !(_ENTRIES[_SLOTS[slot] - 1].uuid == uuid)) slot = (slot + 1) & mask;
    return slot;
}

ZELVBTXMLNode DocumentPlaces::Find(const ZELDbBinary& uuid) const {
    const std::uint32_t number = _SLOTS[slot_Of(uuid)];
    return number != 0 ? _Document->ElementAt(_ENTRIES[number - 1].element) : ZELVBTXMLNode();
}

ZanDicPlace DocumentPlaces::PlaceOf(const ZELDbBinary& uuid) const { return tool::PlaceOf(Find(uuid)); }

ZanDicPlace DocumentPlaces::PlaceOf(const ZELDbBinary& uuid, std::string_view attribute) const {
    const ZELVBTXMLNode node = Find(uuid);
    if (!node) return {};
    const ZELVBTXMLAttribute given = node.getAttribute(attribute);
    return given ? tool::PlaceOf(given) : tool::PlaceOf(node);
}

ZanDicPlace PlaceOf(const ZELVBTXMLNode& node) {
    if (!node) return {};
    const ZELVBTXMLPosition position = node.Position();
    return {position.line, position.column};
}

ZanDicPlace PlaceOf(const ZELVBTXMLAttribute& attribute) {
    if (!attribute) return {};
    const ZELVBTXMLPosition position = attribute.Position();
    return {position.line, position.column};
}

bool IsComment(const ZELVBTXMLNode& node) {
    return node.getTag() == tag::kComment || node.getTag() == tag::kKVAComment;
}

}  // namespace tool
