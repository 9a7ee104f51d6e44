#ifndef OXMI_DIC_PARAMETER_H
#define OXMI_DIC_PARAMETER_H

#include "OXMIDicElement.h"

/// A parameter of a method.
class OXMIDicParameter : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicParameter; }
    using OXMIDicElementH::GetType;

    /// \param[out] type what types the parameter. \returns S_OK; S_FALSE when it has no type.
    virtual HRESULT GetType(OXMIDicElement** type) = 0;

    /// Sets what types the parameter: an element of any kind.
    /// \returns E_FAIL in every case, also when it worked: the result says nothing. Null changes nothing.
    virtual HRESULT SetType(const OXMIDicElement* type) = 0;

    /// Direction, and default value text. \returns S_OK.
    virtual HRESULT GetKind(OXMDicKIND* kind) = 0;
    virtual HRESULT SetKind(OXMDicKIND kind) = 0;
    virtual HRESULT GetDefault(ZELUnicodeString* value) = 0;
    virtual HRESULT SetDefault(const ZELUnicodeString* value) = 0;

protected:
    ~OXMIDicParameter() = default;
};

#endif
