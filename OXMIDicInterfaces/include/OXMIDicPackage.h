#ifndef OXMI_DIC_PACKAGE_H
#define OXMI_DIC_PACKAGE_H

#include "OXMIDicElementH.h"

/// A package: the unit of loading and saving, and the owner and only factory of top-level elements.
class OXMIDicPackage : public OXMIDicElementH {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicPackage; }

    /// Plain texts. \returns S_OK; `GetAlias` S_FALSE, with \p alias untouched, and `GetExpositionLevel`
    /// S_FALSE when the text is null.
    virtual HRESULT SetAlias(const ZELUnicodeString* alias) = 0;
    virtual HRESULT GetAlias(ZELUnicodeString* alias) = 0;
    virtual HRESULT SetExpositionLevel(const ZELUnicodeString* level) = 0;
    virtual HRESULT GetExpositionLevel(ZELUnicodeString* level) = 0;

    /// The domain, "VALKOR" or "DUVRA" in documents. Elements of different domains never refer to each
    /// other. \returns S_OK.
    virtual HRESULT SetDomain(const ZELString* domain) = 0;
    virtual HRESULT GetDomain(ZELString* domain) = 0;

    /// Notes a package that this one uses, or whose scopes it uses. \returns S_OK; E_FAIL for null or
    /// when one of that name is noted already.
    virtual HRESULT AddUsedPackage(const OXMIDicPackage* package) = 0;
    virtual HRESULT AddScopePackage(const OXMIDicPackage* package) = 0;

    /// Appends the packages (`OXMIDicPackage`), in order. \returns S_OK; E_FAIL for a null list.
    virtual HRESULT GetUsedPackages(ZELListPtrIUnknown* packages) = 0;
    virtual HRESULT GetScopePackages(ZELListPtrIUnknown* packages) = 0;

    /// Appends the elements, each as the interface of its kind, in the order of creation.
    /// \returns S_OK; E_FAIL for a null list.
    virtual HRESULT GetElements(ZELListPtrIUnknown* elements) = 0;

    /// Appends the elements of the used packages, depth first in the order of use, then the own ones. A
    /// package used by two ways is listed twice; one already on the way down adds nothing again.
    /// \returns S_OK; E_FAIL for a null list.
    virtual HRESULT GetAllElements(ZELListPtrIUnknown* elements) = 0;

    /// Appends the classes and extensions. \returns S_OK; E_FAIL for a null list.
    virtual HRESULT GetClasses(ZELListPtrIUnknown* classes) = 0;

    /// Finds an element by name. \returns S_OK; E_FAIL when there is none.
    virtual HRESULT GetElement(const ZELString* name, OXMIDicElement** element) = 0;

    /// As GetElement, then in each used package, in order, one level deep.
    virtual HRESULT GetElementR(const ZELString* name, OXMIDicElement** element) = 0;

    /// Finds an RBO class by name. \returns S_OK; E_FAIL when there is none.
    virtual HRESULT GetRBOClass(const ZELString* name, OXMIDicRBOClass** rboClass) = 0;

    /// Finds the first mapping that applies to \p rboClass: by the UUID that it stores or, where it stores
    /// none, by its link. \returns S_OK; E_FAIL when there is none, or, after an error line, for null or an
    /// object of another library.
    virtual HRESULT GetRBOMapping(const OXMIDicRBOClass* rboClass, OXMIDicRBOMapping** mapping) = 0;

    /// Commands that the caller made: the package holds no reference to them, and a command that goes counts
    /// as absent. \returns S_OK; E_FAIL for null, an object of another library, or, respectively, a name that
    /// is there already or is not there.
    virtual HRESULT AddCommand(const OXMIDicCommand* command) = 0;
    virtual HRESULT RemoveCommand(const OXMIDicCommand* command) = 0;
    virtual HRESULT GetCommands(ZELListPtrIUnknown* commands) = 0;

    /// Flushes, unregisters and releases an element. Links to it read as unset from then on.
    /// \returns S_OK; S_FALSE, with an error line, when there is none of that name; else the result of
    /// the step that failed.
    virtual HRESULT RemoveElement(const ZELString* name) = 0;

    /// Flushes, unregisters and releases every element, in order. The package itself stays.
    /// \returns S_OK, or the result of the element that could not be flushed.
    virtual HRESULT FlushAll() = 0;

    /// Computes attribute blocks that were made since (`OXMIDicAttributeBlock`): names, registers with their
    /// classes, roots, fathers, inherited attributes; then checks all classes. Errors are lines on standard
    /// error. Null, for the list or an entry, ends the process. \returns S_OK; E_FAIL.
    virtual HRESULT ComputeAttributeBlocks(const ZELListPtrIUnknown* blocks) = 0;

    /// Not available. \returns E_FAIL.
    virtual HRESULT GetVersion(int* version) = 0;
    virtual HRESULT SetVersion(int version) = 0;
    virtual HRESULT GetInterfaces(ZELListPtrIUnknown* interfaces) = 0;

    /// Factories. Each makes an element and appends it; the forms without UUID are obsolete: they draw a
    /// random one, after a warning line.
    /// \param[out] element the new one; also filled when only the registration failed.
    /// \returns S_OK; E_FAIL when an argument is null or the name is taken by an element of any kind
    /// (nothing is made), or when the UUID is registered already (the element stays in the package).
    virtual HRESULT CreateClass(const ZELString* name, const ZELDbBinary* uuid, OXMIDicClass** element) = 0;
    virtual HRESULT CreateClass(const ZELString* name, OXMIDicClass** element) = 0;
    virtual HRESULT CreateEnum(const ZELString* name, const ZELDbBinary* uuid, OXMIDicEnum** element) = 0;
    virtual HRESULT CreateEnum(const ZELString* name, OXMIDicEnum** element) = 0;
    virtual HRESULT CreateCategory(const ZELString* name, const ZELDbBinary* uuid,
                                   OXMIDicCategory** element) = 0;
    virtual HRESULT CreateCategory(const ZELString* name, OXMIDicCategory** element) = 0;
    virtual HRESULT CreateExtension(const ZELString* name, const ZELDbBinary* uuid,
                                    OXMIDicExtension** element) = 0;
    virtual HRESULT CreateExtension(const ZELString* name, OXMIDicExtension** element) = 0;
    virtual HRESULT CreateInterface(const ZELString* name, const ZELDbBinary* uuid,
                                    OXMIDicInterface** element) = 0;
    virtual HRESULT CreateInterface(const ZELString* name, OXMIDicInterface** element) = 0;
    virtual HRESULT CreateRBOClass(const ZELString* name, const ZELDbBinary* uuid,
                                   OXMIDicRBOClass** element) = 0;
    virtual HRESULT CreateRBOClass(const ZELString* name, OXMIDicRBOClass** element) = 0;
    virtual HRESULT CreateRBOMapping(const ZELString* name, const ZELDbBinary* uuid,
                                     OXMIDicRBOMapping** element) = 0;
    /// Never available. \returns E_FAIL.
    virtual HRESULT CreateRBOMapping(const ZELString* name, OXMIDicRBOMapping** element) = 0;

    /// Makes an attribute block, named "UNDEFINED" and of no class yet. It is no element of the package,
    /// which keeps it until its elements go. \returns S_OK; E_FAIL when an argument is null or the UUID is
    /// registered already, and nothing is made.
    virtual HRESULT CreateAttributeBlock(const ZELDbBinary* uuid, OXMIDicAttributeBlock** block) = 0;

    /// Deprecated: each writes a notice. \returns E_FAIL.
    virtual HRESULT CreateCommand(const ZELString* name, const ZELDbBinary* uuid,
                                  OXMIDicCommand** element) = 0;
    virtual HRESULT CreateCommand(const ZELString* name, OXMIDicCommand** element) = 0;
    virtual HRESULT CreateBObject(const ZELString* name, const ZELDbBinary* uuid,
                                  OXMIDicBObject** element) = 0;
    virtual HRESULT CreateBObject(const ZELString* name, OXMIDicBObject** element) = 0;

protected:
    ~OXMIDicPackage() = default;
};

#endif
