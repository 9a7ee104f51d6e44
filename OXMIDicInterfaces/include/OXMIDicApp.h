#ifndef OXMI_DIC_APP_H
#define OXMI_DIC_APP_H

#include "IUnknown.h"
#include "OXMDicTypes.h"
#include "OXMIDicIdentifiers.h"
#include "ZELDbBinary.h"
#include "ZELString.h"

/// Identity of a dictionary object, and its dump. Every object answers it.
class OXMIDicApp : public IUnknown {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicApp; }

    /// Copies the name out. \returns S_OK.
    virtual HRESULT GetName(ZELString* name) = 0;

    /// Renames the object. Lists that hold it keep it under the name that it had when it was added.
    /// \returns S_OK.
    virtual HRESULT SetName(const ZELString* name) = 0;

    /// Copies the UUID out; it is empty for an object that has none. \returns S_OK.
    virtual HRESULT GetUuid(ZELDbBinary* uuid) = 0;

    /// Gives the object another UUID and registers it under that.
    /// \returns E_FAIL in every case, also when it worked: the result says nothing. When the UUID is
    /// taken, the object keeps it but is registered no more.
    virtual HRESULT SetUuid(const ZELDbBinary* uuid) = 0;

    /// Gives the object a new random UUID; a registered object stays registered. \returns S_OK.
    virtual HRESULT GenUuid() = 0;

    /// \param[out] type the kind of the object. \returns S_OK.
    virtual HRESULT GetType(OXMDicTYPE* type) = 0;

    /// Writes what identifies the object to the dictionary's lines. \param caller named in the first line.
    virtual void Dump(const char* caller) = 0;

protected:
    ~OXMIDicApp() = default;
};

#endif
