#ifndef ZAN_DIC_PACKAGE_H
#define ZAN_DIC_PACKAGE_H

#include "ZanDicExport.h"
#include "ZanDicObj.h"
#include "ZanHashList.h"

class ZanDicAttributeBlock;
class ZanDicElement;

/// The unit of loading and saving: owns its elements and is the only factory of top-level elements.
///
/// Holds one reference to each element; used packages, scope packages and commands are links. Every element
/// is registered by its factory, and unregistered and released when it is removed or flushed. A null
/// pointer as an argument gives E_FAIL and makes nothing. A package that is out of the dictionary, but
/// still held by a caller, answers for its own texts; its factories and link setters refuse. One thread.
class ZANDICBASE_API ZanDicPackage : public ZanDicObj {
public:
    /// Enters the registry; `is_Registered` tells whether that worked. Alias and exposition level null.
    /// \param domain may be null: no domain.
    ZanDicPackage(const ZELString* name, const ZELDbBinary* uuid, const ZELString* domain);
    ZanDicPackage(const ZanDicPackage&) = delete;
    ZanDicPackage& operator=(const ZanDicPackage&) = delete;
    /// Does not flush: gives back what it still owns, without a word about it.
    ~ZanDicPackage() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    _type get_type() const override { return _type_Package; }

    /// Plain accessors. \returns S_OK; `GetAlias` S_FALSE, with \p alias untouched, when it is null;
    /// `GetExpositionLevel` S_FALSE, but copied, when it is null.
    HRESULT SetAlias(const ZELUnicodeString* alias);
    HRESULT GetAlias(ZELUnicodeString* alias) const;
    HRESULT SetExpositionLevel(const ZELUnicodeString* level);
    HRESULT GetExpositionLevel(ZELUnicodeString* level) const;
    HRESULT SetDomain(const ZELString* domain);
    HRESULT GetDomain(ZELString* domain) const;

    /// \returns S_OK; E_FAIL for null, for what is no package in the dictionary, or for a name that is noted.
    HRESULT AddUsedPackage(const OXMIDicPackage* package);
    HRESULT AddScopePackage(const OXMIDicPackage* package);

    /// Append interfaces, one reference each. \returns the last query's result, S_OK for none; E_FAIL for a
    /// null list.
    HRESULT GetUsedPackages(ZELListPtrIUnknown* packages) const;
    HRESULT GetScopePackages(ZELListPtrIUnknown* packages) const;
    HRESULT GetElements(ZELListPtrIUnknown* elements) const;
    /// The used packages' elements, depth first, then the own ones. What two ways lead to is listed twice;
    /// a package that is on the way down already adds nothing again.
    HRESULT GetAllElements(ZELListPtrIUnknown* elements) const;
    /// Those of the type codes Class and Extension.
    HRESULT GetClasses(ZELListPtrIUnknown* classes) const;

    /// \param[out] element carries one reference. \returns S_OK; E_FAIL when there is none of that name.
    HRESULT GetElement(const ZELString* name, OXMIDicElement** element) const;
    /// Looks here, then one level deep in the used packages. \returns the last result.
    HRESULT GetElementR(const ZELString* name, OXMIDicElement** element) const;

    /// \returns S_OK; E_FAIL when there is no RBO class of that name.
    HRESULT GetRBOClass(const ZELString* name, OXMIDicRBOClass** rboClass) const;
    /// Finds the first mapping whose stored reference is the UUID of \p rboClass or, where it stores none,
    /// that is linked to it. \returns S_OK; E_FAIL when there is none, or, after an error line, for null or
    /// what is no RBO class in the dictionary.
    HRESULT GetRBOMapping(const OXMIDicRBOClass* rboClass, OXMIDicRBOMapping** mapping) const;

    /// Commands that a caller made and registered: links, by name. \returns S_OK; E_FAIL for null, for what
    /// is no command in the dictionary, or for a name that is there already.
    HRESULT AddCommand(const OXMIDicCommand* command);
    /// \returns S_OK; E_FAIL for null or a name that is not there.
    HRESULT RemoveCommand(const OXMIDicCommand* command);
    /// As GetElements.
    HRESULT GetCommands(ZELListPtrIUnknown* commands) const;

    /// Flushes, unregisters and releases one element: it is gone, and so are its members.
    /// \returns the result of the unregistering; S_FALSE, after an error line, when there is none of that
    /// name; the failing result of the element's own FlushAll, and it stays.
    HRESULT RemoveElement(const ZELString* name);

    /// The same for every element, in order. The commands stay. \returns the last result; on a failing
    /// FlushAll of an element that result, at once: it and those behind it stay.
    virtual HRESULT FlushAll();

    /// Computes blocks that were made since: gives each its name, registers it with its class, gives it root,
    /// father and inherited attributes, each step for all blocks in order before the next, and checks all
    /// classes. The first failing block ends everything; the checks go on, and their errors are lines on
    /// standard error. A null list, or an entry that is no block, ends the process.
    /// \returns S_OK; E_FAIL.
    HRESULT ComputeAttributeBlocks(const ZELListPtrIUnknown* createdBlocks);

    /// Not available. \returns E_FAIL.
    HRESULT GetVersion(int* version) const;
    HRESULT SetVersion(int version);
    HRESULT GetInterfaces(ZELListPtrIUnknown* interfaces) const;

    /// Factories; the forms without UUID warn and draw one.
    /// \param[out] element carries one reference; also written when only the registration failed, and the
    /// element is in the package then. \returns the result of the registration; E_FAIL when the name is
    /// taken by any element or the package is gone, and nothing is made.
    HRESULT CreateClass(const ZELString* name, const ZELDbBinary* uuid, OXMIDicClass** element);
    HRESULT CreateClass(const ZELString* name, OXMIDicClass** element);
    HRESULT CreateEnum(const ZELString* name, const ZELDbBinary* uuid, OXMIDicEnum** element);
    HRESULT CreateEnum(const ZELString* name, OXMIDicEnum** element);
    HRESULT CreateCategory(const ZELString* name, const ZELDbBinary* uuid, OXMIDicCategory** element);
    HRESULT CreateCategory(const ZELString* name, OXMIDicCategory** element);
    HRESULT CreateExtension(const ZELString* name, const ZELDbBinary* uuid, OXMIDicExtension** element);
    HRESULT CreateExtension(const ZELString* name, OXMIDicExtension** element);
    HRESULT CreateInterface(const ZELString* name, const ZELDbBinary* uuid, OXMIDicInterface** element);
    HRESULT CreateInterface(const ZELString* name, OXMIDicInterface** element);
    HRESULT CreateRBOClass(const ZELString* name, const ZELDbBinary* uuid, OXMIDicRBOClass** element);
    HRESULT CreateRBOClass(const ZELString* name, OXMIDicRBOClass** element);
    HRESULT CreateRBOMapping(const ZELString* name, const ZELDbBinary* uuid, OXMIDicRBOMapping** element);

    /// Makes an attribute block without name or class. It is no element: this package keeps it until it is
    /// flushed itself. \returns S_OK; E_FAIL when the UUID is registered already, and nothing is made.
    HRESULT CreateAttributeBlock(const ZELDbBinary* uuid, OXMIDicAttributeBlock** block);

    /// Never available. \returns E_FAIL.
    HRESULT CreateRBOMapping(const ZELString* name, OXMIDicRBOMapping** element);
    HRESULT CreateClass_internal(const ZELString* name, OXMIDicClass** element);

    /// Deprecated: each writes an error line. \returns E_FAIL.
    HRESULT CreateCommand(const ZELString* name, const ZELDbBinary* uuid, OXMIDicCommand** element);
    HRESULT CreateCommand(const ZELString* name, OXMIDicCommand** element);
    HRESULT CreateBObject(const ZELString* name, const ZELDbBinary* uuid, OXMIDicBObject** element);
    HRESULT CreateBObject(const ZELString* name, OXMIDicBObject** element);

    // What follows is for the library itself.

    void take_Owned(ZanDicTaken& owned) override;
    void expect_Members(int count) override { _ELEMENTS.reserve(_ELEMENTS.Size() + count); }
    /// The last step of the computation of blocks: looks for attributes and names that a class has twice.
    HRESULT check_Blocks() const;
    /// Takes out a block that this package made.
    void drop_Block(ZanDicAttributeBlock& block);
    int lost_Links(LinkName link) const override;

    /// The content kind that the package was loaded from, under which it is saved; metadata unless the reader
    /// says otherwise.
    void set_Content(OXMDicCONTENT content) { _Content = content; }
    OXMDicCONTENT get_Content() const { return _Content; }

protected:
    void drop_Links() override;

private:
    template <class Element, class Interface>
    HRESULT make_Element(const ZELString* name, const ZELDbBinary* uuid, Interface** element,
                         OXMDicTYPE type = OXMDicTYPE_UNDEFINED);
    HRESULT add_Package(ZanHashList& packages, const OXMIDicPackage* package);
    void drop_Blocks();
    HRESULT get_Packages(const ZanHashList& list, ZELListPtrIUnknown* packages) const;

    OXMDicCONTENT _Content = OXMDicCONTENT_metadata;
    ZELString _Domain;
    mutable bool _OnTheWay = false;  ///< during GetAllElements: among those whose elements are being listed
    ZanHashList _ELEMENTS;           ///< this package owns one reference to each
    ZanHashList _BLOCKS{
        29, ZanHashListKind::Unnamed};  ///< attribute blocks: this package owns one reference to each
    ZanHashList _COMMANDS;              ///< not owning
    ZanHashList _USEDPACKAGES;          ///< not owning
    ZanHashList _SCOPEPACKAGES;         ///< not owning
};

#endif
