#include "DocumentPlaces.h"

#include <algorithm>
#include <utility>

#include "HexToBinary.h"
#include "ZANDicWords.h"

namespace tool {
namespace {

namespace tag = ZANDicFormat::tag;
namespace word = ZANDicFormat::word;

bool IsComment(const ZELVBTXMLNode& node) {
    return node.getTag() == tag::kComment || node.getTag() == tag::kKVAComment;
}

}  // namespace

std::unique_ptr<DocumentPlaces> DocumentPlaces::Read(const char* path) {
    std::unique_ptr<ZELVBTXMLDocument> document = ZELVBTXMLDocument::CreateFromFile(path, nullptr);
    if (!document) return nullptr;
    return std::make_unique<DocumentPlaces>(std::move(document));
}

DocumentPlaces::DocumentPlaces(std::unique_ptr<ZELVBTXMLDocument> document) : _Document(std::move(document)) {
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
    std::sort(_ENTRIES.begin(), _ENTRIES.end(), [](const Entry& a, const Entry& b) {
        const int order = a.uuid.Compare(b.uuid);
        return order != 0 ? order < 0 : a.element < b.element;
    });
}

ZELVBTXMLNode DocumentPlaces::Find(const ZELDbBinary& uuid) const {
    const auto found =
        std::lower_bound(_ENTRIES.begin(), _ENTRIES.end(), uuid,
                         [](const Entry& entry, const ZELDbBinary& key) { return entry.uuid < key; });
    if (found == _ENTRIES.end() || !(found->uuid == uuid)) return {};
    return _Document->ElementAt(found->element);
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

}  // namespace tool
