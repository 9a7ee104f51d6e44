#ifndef OXMI_DIC_INTERFACE_H
#define OXMI_DIC_INTERFACE_H

#include "OXMIDicElement.h"

/// An interface of the schema: named methods, and one super interface.
class OXMIDicInterface : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicInterface; }

    /// Makes a method and appends it. \param[out] method also filled when only the registration failed.
    /// \returns S_OK; E_FAIL when an argument is null, the name is taken (nothing is made) or the UUID is
    /// registered already (the method stays).
    virtual HRESULT CreateMethod(const ZELString* name, const ZELDbBinary* uuid, OXMIDicMethod** method) = 0;

    /// Obsolete: writes a notice. \returns E_FAIL.
    virtual HRESULT CreateMethod(const ZELString* name, OXMIDicMethod** method) = 0;

    /// Flushes, unregisters and releases an own method. \returns S_OK; S_FALSE, after an error line, when
    /// there is none of that name.
    virtual HRESULT RemoveMethod(const ZELString* name) = 0;

    /// Finds a method here or, nearest first, in the super interfaces. \returns S_OK; E_FAIL.
    virtual HRESULT GetMethod(const ZELString* name, OXMIDicMethod** method) = 0;

    /// Appends the own methods, in order. \returns S_OK.
    virtual HRESULT GetMethods(ZELListPtrIUnknown* methods) = 0;

    /// As GetMethod, among the own ones only.
    virtual HRESULT GetClassMethod(const ZELString* name, OXMIDicMethod** method) = 0;

    /// Appends the own methods, then each super interface's, nearest first, each name once. \returns S_OK.
    virtual HRESULT GetAllMethods(ZELListPtrIUnknown* methods) = 0;

    /// The super interface. Setter and getters as `OXMIDicClass::SetSuperClass` and its getters.
    virtual HRESULT SetSuperInterface(const OXMIDicInterface* superInterface) = 0;
    virtual HRESULT GetSuperInterface(OXMIDicInterface** superInterface) = 0;
    virtual HRESULT GetSuperInterfaces(ZELListPtrIUnknown* superInterfaces) = 0;

protected:
    ~OXMIDicInterface() = default;
};

#endif
