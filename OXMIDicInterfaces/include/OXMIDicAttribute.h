#ifndef OXMI_DIC_ATTRIBUTE_H
#define OXMI_DIC_ATTRIBUTE_H

#include "OXMIDicElement.h"

/// What simple attributes, relationships and inverses share.
///
/// Flags keep the byte that is given; only 1 means yes. Setters store without a test. A getter of an
/// enumerated property ends the process when the stored value is none of its words.
class OXMIDicAttribute : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicAttribute; }
    using OXMIDicElementH::GetType;

    /// Plain flags, numbers and texts. \returns S_OK.
    virtual HRESULT SetMandatory(unsigned char mandatory) = 0;
    virtual HRESULT GetMandatory(unsigned char* mandatory) = 0;
    virtual HRESULT SetSensitive(unsigned char sensitive) = 0;
    virtual HRESULT GetSensitive(unsigned char* sensitive) = 0;
    virtual HRESULT SetMultiValuated(unsigned char multiValuated) = 0;
    virtual HRESULT GetMultiValuated(unsigned char* multiValuated) = 0;

    /// Largest length of a value; -1 at first, which is no limit. \returns S_OK.
    virtual HRESULT SetMaxLength(int maxLength) = 0;
    virtual HRESULT GetMaxLength(int* maxLength) = 0;

    /// Bounds of the collection of a multi-valued attribute; both 0 at first. \returns S_OK.
    virtual HRESULT SetLower(int lower) = 0;
    virtual HRESULT GetLower(int* lower) = 0;
    virtual HRESULT SetUpper(int upper) = 0;
    virtual HRESULT GetUpper(int* upper) = 0;

    virtual HRESULT SetDefault(const ZELUnicodeString* value) = 0;
    virtual HRESULT GetDefault(ZELUnicodeString* value) = 0;

    /// Enumerated properties; Read, NEUTRAL and List at first. \returns S_OK.
    virtual HRESULT SetAccessMode(OXMDicACCESSMODE mode) = 0;
    virtual HRESULT GetAccessMode(OXMDicACCESSMODE* mode) = 0;
    virtual HRESULT SetUpdateFacet(OXMDicUPDATEFACET facet) = 0;
    virtual HRESULT GetUpdateFacet(OXMDicUPDATEFACET* facet) = 0;
    virtual HRESULT SetCollectionType(OXMDicCOLLECTION collection) = 0;
    virtual HRESULT GetCollectionType(OXMDicCOLLECTION* collection) = 0;

    /// Not available. \returns E_FAIL.
    virtual HRESULT SetProxyable(unsigned char proxyable) = 0;
    virtual HRESULT GetProxyable(unsigned char* proxyable) = 0;

    /// \param[out] origin the class that declares the attribute. \returns S_OK; S_FALSE when unset.
    virtual HRESULT GetOrigin(OXMIDicClass** origin) = 0;

    /// Sets the object that types the attribute: a primitive, an enumeration or a class.
    /// \returns S_OK; E_FAIL for null or an object of another library.
    virtual HRESULT SetType(const OXMIDicElement* type) = 0;

    /// \param[out] type what types the attribute. \returns S_OK; S_FALSE when it has no type.
    virtual HRESULT GetType(OXMIDicElement** type) = 0;

    /// \param[out] attribute the inherited attribute that this one redefines; known once the class
    /// was asked for all its attributes. \returns S_OK; S_FALSE when there is none.
    virtual HRESULT GetSpecializedAttribute(OXMIDicElement** attribute) = 0;

protected:
    ~OXMIDicAttribute() = default;
};

#endif
