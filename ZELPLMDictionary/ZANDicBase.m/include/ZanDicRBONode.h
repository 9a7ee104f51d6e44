#ifndef ZAN_DIC_RBO_NODE_H
#define ZAN_DIC_RBO_NODE_H

#include "ZanDicElement.h"
#include "ZanHashList.h"

class ZanDicClass;

/// What roots and components of a mapping share: they are based on a class and own components, in the order
/// of creation.
///
/// The base class is a link; its UUID and name are stored apart, and setting one changes none of the others.
/// Components nest to any depth: nothing here recurses. A null pointer as an argument gives E_FAIL and
/// changes nothing, where nothing else is said. One thread.
class ZANDICBASE_API ZanDicRBONode : public ZanDicElement {
public:
    ZanDicRBONode(const ZanDicRBONode&) = delete;
    ZanDicRBONode& operator=(const ZanDicRBONode&) = delete;
    ~ZanDicRBONode() override;

    /// \returns S_OK; the setter E_FAIL for what is no class in the dictionary, the getter when unset.
    HRESULT SetBaseClass(const OXMIDicClass* baseClass);
    HRESULT GetBaseClass(OXMIDicClass** baseClass) const;

    /// Plain values. \returns S_OK.
    HRESULT SetBaseClassRef(const ZELDbBinary* uuid);
    HRESULT GetBaseClassRef(ZELDbBinary* uuid) const;
    HRESULT SetBaseClassName(const ZELUnicodeString* name);
    HRESULT GetBaseClassName(ZELUnicodeString* name) const;

    /// \param[out] component carries one reference. \returns S_OK; E_FAIL, with nothing made or kept, when
    /// the name or the UUID is taken or this object is gone.
    HRESULT CreateRBOComponent(const ZELString* name, const ZELDbBinary* uuid,
                               OXMIDicRBOComponent** component);

    /// Flushes, unregisters and releases the components, then what else the object owns.
    /// \returns S_OK; the failing result of a member's FlushAll.
    HRESULT FlushAll() override;

    /// Writes a line, the element's dump and one line per property.
    void Dump(const char* caller) const override;

    // What follows is for the library itself.

    void take_Owned(ZanDicTaken& owned) override;

protected:
    ZanDicRBONode(const ZELString& name, const ZELDbBinary& uuid);

    void drop_Links() override;
    int lost_Links(LinkName link) const override;
    const ZanHashList& components() const { return _COMPONENTS; }
    /// The components as the list that the teardown walks. \param operation as the trace names it.
    ZanDicOwnedList components_AsOwned(std::string_view operation) {
        return {&_COMPONENTS, "_COMPONENTS", operation};
    }

private:
    ZanDicLink<ZanDicClass> _BaseClass;  ///< not owning
    ZELUnicodeString _BaseClassName{""};
    ZELDbBinary _BaseClassRef;
    ZanHashList _COMPONENTS;  ///< this object owns one reference to each
};

#endif
