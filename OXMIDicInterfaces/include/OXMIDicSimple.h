#ifndef OXMI_DIC_SIMPLE_H
#define OXMI_DIC_SIMPLE_H

#include "OXMIDicAttribute.h"

/// An attribute whose values are of a primitive type or an enumeration.
class OXMIDicSimple : public OXMIDicAttribute {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicSimple; }

    /// Plain texts. \returns S_OK.
    virtual HRESULT SetMagnitude(const ZELUnicodeString* magnitude) = 0;
    virtual HRESULT GetMagnitude(ZELUnicodeString* magnitude) = 0;
    virtual HRESULT SetDBFormat(const ZELUnicodeString* format) = 0;
    virtual HRESULT GetDBFormat(ZELUnicodeString* format) = 0;

    /// Letter case of text values; Mixed at first. \returns S_OK.
    virtual HRESULT SetCaseMode(OXMDicCASEMODE mode) = 0;
    virtual HRESULT GetCaseMode(OXMDicCASEMODE* mode) = 0;

    /// Types the attribute by a primitive. \returns S_OK; E_FAIL for null.
    virtual HRESULT SetPrimitive(const OXMIDicPrimitive* primitive) = 0;

    /// \param[out] primitive the primitive that types the attribute.
    /// \returns S_OK; S_FALSE without a type; E_FAIL when the type is no primitive.
    virtual HRESULT GetPrimitive(OXMIDicPrimitive** primitive) = 0;

protected:
    ~OXMIDicSimple() = default;
};

#endif
