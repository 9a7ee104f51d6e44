#ifndef OXMI_DIC_ELEMENT_H
#define OXMI_DIC_ELEMENT_H

#include "OXMIDicElementH.h"

/// A named element of a package, or a member of one.
class OXMIDicElement : public OXMIDicElementH {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicElement; }

    /// Plain setters of texts and visibility. \returns S_OK; E_FAIL when a text is null as an argument.
    virtual HRESULT SetAlias(const ZELUnicodeString* alias) = 0;
    virtual HRESULT SetExpositionLevel(const ZELUnicodeString* level) = 0;
    virtual HRESULT SetVisibility(OXMDicVISIBILITY visibility) = 0;

    /// \returns S_OK; S_FALSE, with \p alias untouched, when the alias is null.
    virtual HRESULT GetAlias(ZELUnicodeString* alias) = 0;

    /// Copies the level out. \returns S_OK; S_FALSE when it is null.
    virtual HRESULT GetExpositionLevel(ZELUnicodeString* level) = 0;

    /// \returns S_OK.
    virtual HRESULT GetVisibility(OXMDicVISIBILITY* visibility) = 0;

    /// \param[out] package the owning package. \returns S_OK; E_FAIL when the element has none.
    virtual HRESULT GetPackage(OXMIDicPackage** package) = 0;

    /// \param[out] name the owning package's name. \returns S_OK; S_FALSE when the element has none.
    virtual HRESULT GetPackageName(ZELString* name) = 0;

    /// Not available. \returns E_FAIL.
    virtual HRESULT BelongsTo(OXMIDicElement** owner) = 0;

    /// Not available. \returns E_FAIL.
    virtual HRESULT GetSuperPackage(OXMIDicPackage** package) = 0;

    /// Drops what the element owns: each member is flushed, unregistered and released. The element
    /// itself stays. \returns S_OK, or the result of the member that could not be flushed.
    virtual HRESULT FlushAll() = 0;

protected:
    ~OXMIDicElement() = default;
};

#endif
