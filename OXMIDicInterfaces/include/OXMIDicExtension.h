#ifndef OXMI_DIC_EXTENSION_H
#define OXMI_DIC_EXTENSION_H

#include "OXMIDicClass.h"

/// Attributes added to classes that exist already: a class of its own kind, with the classes that it extends,
/// its scopes.
class OXMIDicExtension : public OXMIDicClass {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicExtension; }

    /// Adds a class to the scopes. \returns S_OK; S_FALSE when it is among them already; E_FAIL for null,
    /// an object of another library or one that is gone.
    virtual HRESULT AddScope(const OXMIDicClass* scope) = 0;

    /// Takes a class out of the scopes. \returns S_OK, also when nothing was ever added; E_FAIL for null or
    /// a class that is not among them.
    virtual HRESULT RemoveScope(const OXMIDicClass* scope) = 0;

    /// Appends the own scopes and then those of the super classes for as long as they are extensions,
    /// nearest first. \returns S_OK; E_FAIL for a null list.
    virtual HRESULT GetScopes(ZELListPtrIUnknown* scopes) = 0;

protected:
    ~OXMIDicExtension() = default;
};

#endif
