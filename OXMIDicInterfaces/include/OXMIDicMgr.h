#ifndef OXMI_DIC_MGR_H
#define OXMI_DIC_MGR_H

#include "IUnknown.h"
#include "OXMDicTypes.h"
#include "OXMIDicIdentifiers.h"
#include "ZELDbBinary.h"
#include "ZELListPtr.h"
#include "ZELString.h"

/// The manager: the one object of a process through which the whole dictionary is reached. It holds
/// the packages, the built-in primitives and the registry of all objects by UUID.
///
/// `GetOXMIDicMgr` hands it out. Where a directory and a name are both arguments the directory stands
/// first; a null directory means the search path of the environment variable `ZELDictionaryPath`,
/// directories separated by ":". One thread.
class OXMIDicMgr : public IUnknown {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicMgr; }

    /// Prepares the dictionary: makes the primitives. Call it once at the start; calling it again, or
    /// after End, is legal. With "VALKOR_META" set to "OFF" the loading mode becomes none.
    /// \param reserved ignored. \returns S_OK.
    virtual HRESULT Init(int reserved) = 0;

    /// Not available. \returns E_FAIL.
    virtual HRESULT Save() = 0;

    /// Saves a package in the given mode. \returns E_FAIL when the package is not loaded, or the result
    /// of the writer of that mode; S_OK, with nothing written, for a mode that has no writer.
    virtual HRESULT SavePackageToDir(const char* directory, const ZELString* packageName,
                                     OXMDicPERSISTENT mode) = 0;
    virtual HRESULT SavePackage(const ZELString* packageName, OXMDicPERSISTENT mode) = 0;

    /// Gives back every object that the dictionary owns. Interfaces that callers still hold stay valid;
    /// their objects answer as taken out. May be called twice; Init starts again. \returns S_OK.
    virtual HRESULT End() = 0;

    /// Makes the built-in primitives unless they exist. \returns S_OK.
    virtual HRESULT Create() = 0;

    /// Loads a package, and before it every package that it uses, unless it is loaded already. A failed
    /// load leaves nothing of the package; what it used stays loaded.
    /// \param packageName with or without the content word of its document, as in "Items.metadata".
    /// \param mode must be `OXMDicPERSISTENT_Xml`. \param content the document that a name without
    /// content word means; metadata in the short form.
    /// \returns S_OK; E_FAIL.
    virtual HRESULT LoadPackageFromDir(const char* directory, const ZELString* packageName,
                                       OXMDicPERSISTENT mode, OXMDicCONTENT content) = 0;
    virtual HRESULT LoadPackageFromDir(const char* directory, const ZELString* packageName,
                                       OXMDicPERSISTENT mode) = 0;

    /// As LoadPackageFromDir on the search path. The manager's loading mode is tried first and \p mode
    /// only after it; when the manager's mode is none, nothing is loaded. \returns S_OK; E_FAIL.
    virtual HRESULT LoadPackage(const ZELString* packageName, OXMDicPERSISTENT mode,
                                OXMDicCONTENT content) = 0;
    virtual HRESULT LoadPackage(const ZELString* packageName, OXMDicPERSISTENT mode) = 0;

    /// Appends the packages of a domain (`OXMIDicPackage`), in the order of creation; the short form
    /// gives those of "VALKOR". \returns S_OK; E_FAIL for a null argument.
    virtual HRESULT GetPackages(const ZELString* domain, ZELListPtrIUnknown* packages) = 0;
    virtual HRESULT GetPackages(ZELListPtrIUnknown* packages) = 0;

    /// Finds a package by its name, or by what stands before the first "." of \p name.
    /// \returns S_OK; E_FAIL.
    virtual HRESULT GetPackage(const ZELString* name, OXMIDicPackage** package) = 0;

    /// Makes an empty package. \returns S_OK; E_FAIL, and nothing is made, when an argument is null or
    /// the name or the UUID is taken. The short form is obsolete: random UUID, domain "VALKOR".
    virtual HRESULT CreatePackage(const ZELString* name, const ZELDbBinary* uuid, const ZELString* domain,
                                  OXMIDicPackage** package) = 0;
    virtual HRESULT CreatePackage(const ZELString* name, OXMIDicPackage** package) = 0;

    /// Unloads a package: flushes, unregisters and releases it and what it owns. Links into it read as
    /// unset. \param name the exact name. \returns S_OK; E_FAIL when there is none of that name.
    virtual HRESULT RemovePackage(const ZELString* name) = 0;

    /// Not available. \returns E_FAIL.
    virtual HRESULT Reserved1() = 0;
    virtual HRESULT Reserved2() = 0;
    virtual HRESULT Reserved3() = 0;
    virtual HRESULT Reserved4() = 0;
    virtual HRESULT Reserved5() = 0;
    virtual HRESULT Reserved6() = 0;
    virtual HRESULT Reserved7() = 0;
    virtual HRESULT Reserved8() = 0;

    /// \param kind 1 to 9. \returns S_OK; E_FAIL for another kind or before Init.
    virtual HRESULT GetPrimitive(OXMDicPRIMITIVEType kind, OXMIDicPrimitive** primitive) = 0;

    /// Not available. \returns E_FAIL.
    virtual HRESULT Reserved9() = 0;
    virtual HRESULT Reserved10() = 0;

    /// How packages are loaded; `OXMDicPERSISTENT_Xml` at first. \returns S_OK.
    virtual HRESULT SetLoadingMode(OXMDicPERSISTENT mode) = 0;
    virtual HRESULT GetLoadingMode(OXMDicPERSISTENT* mode) = 0;

    /// Writes a loaded package as an EXPRESS schema, or as a package document of the content kind that it was
    /// loaded from. Without a directory the file goes where the package's document is on the search path.
    /// \returns E_FAIL when the package is not loaded or there is no directory; SaveExpress also when the
    /// file could not be written. SaveXml tells that by an error line only.
    virtual HRESULT SaveExpress(const char* directory, const ZELString* packageName) = 0;
    virtual HRESULT SaveXml(const char* directory, const ZELString* packageName) = 0;

    /// Reads one package document, whether or not the loading mode allows it. \returns S_OK; E_FAIL.
    virtual HRESULT LoadXml(const char* directory, const ZELString* packageName, OXMDicCONTENT content) = 0;

    /// Finds any registered object by UUID, in constant time. \returns S_OK; E_FAIL.
    virtual HRESULT Search(const ZELDbBinary* uuid, OXMIDicElementH** object) = 0;

    /// Appends the package of that name, then the element of that name of each package, in order.
    /// \returns S_OK as soon as any package is loaded, even when nothing was found; E_FAIL otherwise
    /// and for a null argument.
    virtual HRESULT SearchByName(const ZELString* name, ZELListPtrIUnknown* objects) = 0;

protected:
    ~OXMIDicMgr() = default;
};

#endif
