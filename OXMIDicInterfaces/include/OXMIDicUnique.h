#ifndef OXMI_DIC_UNIQUE_H
#define OXMI_DIC_UNIQUE_H

#include "OXMIDicElement.h"

/// A unique key of a class: an ordered set of attributes, which it does not own.
class OXMIDicUnique : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicUnique; }

    /// Appends an attribute. \returns S_OK; E_FAIL for null or when one of that name is in the key.
    virtual HRESULT AddElement(const OXMIDicElement* element) = 0;

    /// Takes the attribute that bears the name of \p element out. \returns S_OK; E_FAIL for null or
    /// when none of that name is in the key.
    virtual HRESULT RemoveElement(const OXMIDicElement* element) = 0;

    /// Appends the attributes, in order. \returns S_OK; E_FAIL for a null list.
    virtual HRESULT GetElements(ZELListPtrIUnknown* elements) = 0;

protected:
    ~OXMIDicUnique() = default;
};

#endif
