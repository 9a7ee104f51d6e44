#ifndef OXMI_DIC_ENUM_H
#define OXMI_DIC_ENUM_H

#include "OXMIDicElement.h"

/// An enumeration: an ordered set of named integer values, which it owns.
class OXMIDicEnum : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicEnum; }

    /// Makes an enumerator and appends it.
    /// \param[out] enumerator the new one; also filled when only the registration failed.
    /// \returns S_OK; E_FAIL when an argument is null or the name is taken (nothing is made), or when
    /// the UUID is registered already (the enumerator stays in the list).
    virtual HRESULT CreateEnumerator(const ZELString* name, const ZELDbBinary* uuid,
                                     OXMIDicEnumerator** enumerator) = 0;

    /// Obsolete: writes a notice. \returns E_FAIL.
    virtual HRESULT CreateEnumerator(const ZELString* name, OXMIDicEnumerator** enumerator) = 0;

    /// Makes an enumerator with a random UUID and gives it \p value.
    /// \returns S_OK; E_FAIL when the name is taken.
    virtual HRESULT CreateEnumValue(const ZELString* name, int value) = 0;

    /// Finds an enumerator by name. \returns S_OK; E_FAIL when there is none.
    virtual HRESULT GetEnumerator(const ZELString* name, OXMIDicEnumerator** enumerator) = 0;

    /// Gives the value of the enumerator named \p name. \returns S_OK; E_FAIL when there is none.
    virtual HRESULT GetEnumValue(const ZELString* name, int* value) = 0;

    /// Appends the names of the enumerators, in order; a null list is accepted. \returns S_OK.
    virtual HRESULT GetEnumValues(ZELListValZELString* names) = 0;

    /// Appends the enumerators (`OXMIDicEnumerator`), in order. \returns S_OK; E_FAIL for a null list.
    virtual HRESULT GetEnumerators(ZELListPtrIUnknown* enumerators) = 0;

    /// Takes an enumerator out of the list. It stays registered and lives as long as the enumeration.
    /// \returns S_OK; E_FAIL when there is none of that name.
    virtual HRESULT RemoveEnumerator(const ZELString* name) = 0;

    /// The same as RemoveEnumerator.
    virtual HRESULT RemoveEnumValue(const ZELString* name) = 0;

protected:
    ~OXMIDicEnum() = default;
};

#endif
