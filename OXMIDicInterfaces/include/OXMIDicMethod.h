#ifndef OXMI_DIC_METHOD_H
#define OXMI_DIC_METHOD_H

#include "OXMIDicElement.h"

/// A method of an interface or class: an ordered set of parameters, which it owns.
class OXMIDicMethod : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicMethod; }

    /// Makes a parameter and appends it; it has no package. Results as `OXMIDicInterface::CreateMethod`.
    virtual HRESULT CreateParameter(const ZELString* name, const ZELDbBinary* uuid,
                                    OXMIDicParameter** parameter) = 0;

    /// Obsolete: writes a notice. \returns E_FAIL.
    virtual HRESULT CreateParameter(const ZELString* name, OXMIDicParameter** parameter) = 0;

    /// Finds a parameter. \returns S_OK; E_FAIL when there is none of that name.
    virtual HRESULT GetParameter(const ZELString* name, OXMIDicParameter** parameter) = 0;

    /// Appends the parameters, in order. \returns S_OK; E_FAIL for a null list.
    virtual HRESULT GetParameters(ZELListPtrIUnknown* parameters) = 0;

    /// Takes a parameter out of the list. It stays registered and lives as long as the method.
    /// \returns S_OK; E_FAIL when there is none of that name.
    virtual HRESULT RemoveParameter(const ZELString* name) = 0;

protected:
    ~OXMIDicMethod() = default;
};

#endif
