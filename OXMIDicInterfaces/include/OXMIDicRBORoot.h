#ifndef OXMI_DIC_RBO_ROOT_H
#define OXMI_DIC_RBO_ROOT_H

#include "OXMIDicElement.h"

/// A root of a mapping: owns its components.
class OXMIDicRBORoot : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicRBORoot; }

    /// The class that this object is based on. A reference, a UUID and a name are three things stored
    /// apart: setting one changes none of the others.
    /// \returns S_OK; setter E_FAIL for null, getter E_FAIL when unset.
    virtual HRESULT SetBaseClass(const OXMIDicClass* baseClass) = 0;
    virtual HRESULT GetBaseClass(OXMIDicClass** baseClass) = 0;

    /// \returns S_OK.
    virtual HRESULT SetBaseClassRef(const ZELDbBinary* uuid) = 0;
    virtual HRESULT GetBaseClassRef(ZELDbBinary* uuid) = 0;
    virtual HRESULT SetBaseClassName(const ZELUnicodeString* name) = 0;
    virtual HRESULT GetBaseClassName(ZELUnicodeString* name) = 0;

    /// Makes a component and appends it. \returns S_OK; E_FAIL, with nothing made or kept, when an argument
    /// is null or the name or the UUID is taken.
    virtual HRESULT CreateRBOComponent(const ZELString* name, const ZELDbBinary* uuid,
                                       OXMIDicRBOComponent** component) = 0;

    /// Appends the components, in order. \returns S_OK; E_FAIL, after a line, for a null list.
    virtual HRESULT GetElements(ZELListPtrIUnknown* components) = 0;

protected:
    ~OXMIDicRBORoot() = default;
};

#endif
