#ifndef ZAN_DIC_RBO_MAPPING_H
#define ZAN_DIC_RBO_MAPPING_H

#include "ZanDicElement.h"
#include "ZanHashList.h"

class ZanDicRBOClass;

/// How an RBO class is mapped: owns its roots, in the order of creation.
///
/// The RBO class is a link; its UUID and name are stored apart, and setting one changes none of the others.
/// A null pointer as an argument gives E_FAIL and changes nothing. One thread.
class ZANDICBASE_API ZanDicRBOMapping : public ZanDicElement {
public:
    ZanDicRBOMapping(const ZELString& name, const ZELDbBinary& uuid);
    ZanDicRBOMapping(const ZanDicRBOMapping&) = delete;
    ZanDicRBOMapping& operator=(const ZanDicRBOMapping&) = delete;
    ~ZanDicRBOMapping() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }

    /// \returns S_OK; the setter E_FAIL for what is no RBO class in the dictionary, the getter when unset.
    HRESULT SetApplyToRBOClass(const OXMIDicRBOClass* rboClass);
    HRESULT GetApplyToRBOClass(OXMIDicRBOClass** rboClass) const;

    /// Plain values. \returns S_OK.
    HRESULT SetApplyToRBOClassRef(const ZELDbBinary* uuid);
    HRESULT GetApplyToRBOClassRef(ZELDbBinary* uuid) const;
    HRESULT SetApplyToRBOClassName(const ZELUnicodeString* name);
    HRESULT GetApplyToRBOClassName(ZELUnicodeString* name) const;

    /// \param[out] root carries one reference. \returns S_OK; E_FAIL, with nothing made or kept, when the
    /// name or the UUID is taken or the mapping is gone.
    HRESULT CreateRBORoot(const ZELString* name, const ZELDbBinary* uuid, OXMIDicRBORoot** root);

    /// Appends the roots. \returns the last query's result, S_OK for none; E_FAIL, after an error line, for a
    /// null list.
    HRESULT GetElements(ZELListPtrIUnknown* roots) const;

    HRESULT FlushAll() override;

    /// Writes a line, the element's dump and one line per property.
    void Dump(const char* caller) const override;

    // What follows is for the library itself.

    /// Whether the stored reference is the UUID of that class or, without one, the link leads to it.
    bool applies_To(const ZanDicRBOClass& rboClass) const;
    ZanDicOwnedList owned_List() override;
    void take_Owned(ZanDicTaken& owned) override;

protected:
    void drop_Links() override;
    int lost_Links(LinkName link) const override;

private:
    ZanDicLink<ZanDicRBOClass> _ApplyToRBOClass;  ///< not owning
    ZELUnicodeString _ApplyToRBOClassName{""};
    ZELDbBinary _ApplyToRBOClassRef;
    ZanHashList _ROOTS;  ///< this mapping owns one reference to each
};

#endif
