/// The walk over an element and everything in it.
#ifndef XML_WALK_H
#define XML_WALK_H

#include <string>
#include <vector>

#include "OXMIDicElementH.h"
#include "XmlRows.h"

/// Writes elements with their children into a document.
///
/// A loop, not a recursion: how deep components are nested comes from documents. What one element fails at
/// never keeps others from being written.
class XmlWalk {
public:
    explicit XmlWalk(ZELVBTXMLWriter& document) : _Document(document) {}

    /// \returns S_OK; -1 for null; a failure of the element itself, whatever its children gave.
    HRESULT Write(OXMIDicElementH* element);

private:
    /// An element whose children are being written.
    struct Level {
        ZanDicRefList children;
        int next = 1;         ///< position of the child to write next
        HRESULT rc = S_OK;    ///< the element's own result
        bool hasNode = true;  ///< false for an element of a kind that is not written
    };

    void Enter(OXMIDicElementH* element);
    void WriteNode(const XmlKind& kind, OXMIDicElementH& element, const ZELString& name, Level& level);

    bool FindAttributes(const IUnknown& element);
    void WriteAttributes();
    void WriteAttribute(const StoredAttribute& attribute);
    StoredAttribute At(std::size_t index) const {
        return StoredAttribute(static_cast<const ZanDicAttribute&>(*_ATTRIBUTES[index]));
    }

    ZELVBTXMLWriter& _Document;
    std::string _Scratch;
    std::vector<Level> _LEVELS;
    std::vector<ZanDicRef<ZanDicObj>>
        _ATTRIBUTES;  ///< of the class that is being written, one reference each
};

#endif
