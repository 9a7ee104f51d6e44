#ifndef OXMI_DIC_RBO_COMPONENT_H
#define OXMI_DIC_RBO_COMPONENT_H

#include "OXMIDicElement.h"

/// A component of a mapping: owns further components and perhaps one path expression.
class OXMIDicRBOComponent : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicRBOComponent; }

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

    /// Makes the path expression. \returns S_OK; E_FAIL, with nothing made or kept, when there is one
    /// already, an argument is null or the UUID is taken.
    virtual HRESULT CreateRBOPathExpression(const ZELString* name, const ZELDbBinary* uuid,
                                            OXMIDicRBOPathExpression** path) = 0;

    /// \returns S_OK; E_FAIL when there is none.
    virtual HRESULT GetRBOPathExpression(OXMIDicRBOPathExpression** path) = 0;

    /// \returns S_OK; getter S_FALSE, with \p rule emptied, when the rule is empty.
    virtual HRESULT SetValidityRule(const ZELUnicodeString* rule) = 0;
    virtual HRESULT GetValidityRule(ZELUnicodeString* rule) = 0;

    /// Appends the components, in order; a null list is accepted. \returns S_OK.
    virtual HRESULT GetElements(ZELListPtrIUnknown* components) = 0;

protected:
    ~OXMIDicRBOComponent() = default;
};

#endif
