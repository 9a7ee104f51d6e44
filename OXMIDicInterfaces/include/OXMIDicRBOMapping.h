#ifndef OXMI_DIC_RBO_MAPPING_H
#define OXMI_DIC_RBO_MAPPING_H

#include "OXMIDicElement.h"

/// How an RBO class is mapped: owns its roots.
class OXMIDicRBOMapping : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicRBOMapping; }

    /// The RBO class that the mapping applies to. A reference, a UUID and a name are three things stored
    /// apart: setting one changes none of the others.
    /// \returns S_OK; setter E_FAIL for null or an object of another library, getter E_FAIL when unset.
    virtual HRESULT SetApplyToRBOClass(const OXMIDicRBOClass* rboClass) = 0;
    virtual HRESULT GetApplyToRBOClass(OXMIDicRBOClass** rboClass) = 0;

    /// \returns S_OK.
    virtual HRESULT SetApplyToRBOClassRef(const ZELDbBinary* uuid) = 0;
    virtual HRESULT GetApplyToRBOClassRef(ZELDbBinary* uuid) = 0;
    virtual HRESULT SetApplyToRBOClassName(const ZELUnicodeString* name) = 0;
    virtual HRESULT GetApplyToRBOClassName(ZELUnicodeString* name) = 0;

    /// Makes a root and appends it. \returns S_OK; E_FAIL, with nothing made or kept, when an argument is
    /// null or the name or the UUID is taken.
    virtual HRESULT CreateRBORoot(const ZELString* name, const ZELDbBinary* uuid, OXMIDicRBORoot** root) = 0;

    /// Appends the roots, in order. \returns S_OK; E_FAIL, after a line, for a null list.
    virtual HRESULT GetElements(ZELListPtrIUnknown* roots) = 0;

protected:
    ~OXMIDicRBOMapping() = default;
};

#endif
