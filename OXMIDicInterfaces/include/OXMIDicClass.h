#ifndef OXMI_DIC_CLASS_H
#define OXMI_DIC_CLASS_H

#include "OXMIDicElement.h"

/// A class of the schema: one super class, own attributes, uniques and methods, and flags.
///
/// The class owns its attributes, uniques and methods; super class, subclasses and the reference class
/// are links that read as unset once their object is gone.
class OXMIDicClass : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicClass; }

    /// Makes an attribute of the kind \p type and appends it to the own ones.
    /// \param[out] attribute the new one, as the interface of its kind; also filled when only the
    /// registration failed.
    /// \returns S_OK; E_FAIL when an argument is null or the class has an attribute of that name
    /// (nothing is made), or when the UUID is registered already (the attribute stays in the class).
    virtual HRESULT Create(const ZELString* name, const ZELDbBinary* uuid, OXMDicTYPE type,
                           OXMIDicElement** attribute) = 0;

    /// Obsolete: as above with a random UUID, after a warning line.
    virtual HRESULT Create(const ZELString* name, OXMDicTYPE type, OXMIDicElement** attribute) = 0;

    /// Create with the kind fixed; the forms without UUID are obsolete.
    virtual HRESULT CreateSimple(const ZELString* name, const ZELDbBinary* uuid, OXMIDicSimple** simple) = 0;
    virtual HRESULT CreateSimple(const ZELString* name, OXMIDicSimple** simple) = 0;
    virtual HRESULT CreateRelationship(const ZELString* name, const ZELDbBinary* uuid,
                                       OXMIDicRelationship** relationship) = 0;
    virtual HRESULT CreateRelationship(const ZELString* name, OXMIDicRelationship** relationship) = 0;
    virtual HRESULT CreateInverse(const ZELString* name, const ZELDbBinary* uuid,
                                  OXMIDicInverse** inverse) = 0;
    virtual HRESULT CreateInverse(const ZELString* name, OXMIDicInverse** inverse) = 0;

    /// Makes a unique key and appends it. Results as Create, without a message.
    virtual HRESULT CreateUnique(const ZELString* name, const ZELDbBinary* uuid, OXMIDicUnique** unique) = 0;

    /// Obsolete: writes a notice. \returns E_FAIL.
    virtual HRESULT CreateUnique(const ZELString* name, OXMIDicUnique** unique) = 0;

    /// Makes a method and appends it. Results as Create, without a message.
    virtual HRESULT CreateMethod(const ZELString* name, const ZELDbBinary* uuid, OXMIDicMethod** method) = 0;

    /// Obsolete: writes a notice. \returns E_FAIL.
    virtual HRESULT CreateMethod(const ZELString* name, OXMIDicMethod** method) = 0;

    /// Not available. \returns E_FAIL.
    virtual HRESULT CreateImplement(const ZELString* name, IUnknown** implement) = 0;
    virtual HRESULT CreateSecurity(const ZELString* name, IUnknown** security) = 0;

    /// Takes an own attribute out of the class. It stays registered and lives as long as the class;
    /// a list of all attributes that was computed before keeps it.
    /// \returns S_OK; E_FAIL when there is none of that name.
    virtual HRESULT RemoveElement(const ZELString* name) = 0;

    /// Flushes, unregisters and releases an own method. \returns S_OK; S_FALSE, after an error line, when
    /// there is none of that name.
    virtual HRESULT RemoveMethod(const ZELString* name) = 0;

    /// As RemoveElement, for uniques.
    virtual HRESULT RemoveUnique(const ZELString* name) = 0;

    /// Not available. \returns E_FAIL.
    virtual HRESULT RemoveImplement(const ZELString* name) = 0;
    virtual HRESULT RemoveSecurity(const ZELString* name) = 0;

    /// Deprecated: each writes a notice. \returns E_FAIL.
    virtual HRESULT AddCommand(const OXMIDicCommand* command) = 0;
    virtual HRESULT RemoveCommand(const OXMIDicCommand* command) = 0;
    virtual HRESULT GetCommands(ZELListPtrIUnknown* commands) = 0;

    /// Not available: each writes a notice. \returns E_FAIL.
    virtual HRESULT AddInterface(const OXMIDicInterface* interface) = 0;
    virtual HRESULT RemoveInterface(const OXMIDicInterface* interface) = 0;
    virtual HRESULT GetInterfaces(ZELListPtrIUnknown* interfaces) = 0;

    /// Not available. \returns E_FAIL.
    virtual HRESULT GetClassImplements(ZELListPtrIUnknown* implements) = 0;
    virtual HRESULT GetAllImplements(ZELListPtrIUnknown* implements) = 0;
    virtual HRESULT GetClassSecurities(ZELListPtrIUnknown* securities) = 0;
    virtual HRESULT GetAllSecurities(ZELListPtrIUnknown* securities) = 0;

    /// Not available. \param[out] inherited set to 0. \returns E_FAIL.
    virtual HRESULT Inherited(OXMIDicElement* element, unsigned char* inherited) = 0;

    /// Sets the super class. It cannot be unset again.
    /// \returns S_OK; E_FAIL, and nothing has changed, for null, an object of another library, an
    /// extension above a class, or a class that would become its own ancestor.
    virtual HRESULT SetSuperClass(const OXMIDicClass* superClass) = 0;

    /// \returns S_OK; S_FALSE at a root.
    virtual HRESULT GetSuperClass(OXMIDicClass** superClass) = 0;

    /// Appends the super classes (`OXMIDicClass`), nearest first. \returns S_FALSE, always.
    virtual HRESULT GetSuperClasses(ZELListPtrIUnknown* superClasses) = 0;

    /// Appends the direct subclasses (`OXMIDicClass`), in the order of attachment. \returns S_OK.
    virtual HRESULT GetSubClasses(ZELListPtrIUnknown* subClasses) = 0;

    /// \returns S_OK; S_FALSE at a root.
    virtual HRESULT GetSuperName(ZELString* name) = 0;

    /// The same links, typed as interfaces.
    virtual HRESULT SetSuperInterface(const OXMIDicInterface* superInterface) = 0;
    virtual HRESULT GetSuperInterface(OXMIDicInterface** superInterface) = 0;
    virtual HRESULT GetSuperInterfaces(ZELListPtrIUnknown* superInterfaces) = 0;

    /// Appends the own attributes, in the order of creation. \returns S_OK; E_FAIL for a null list.
    virtual HRESULT GetClassElements(ZELListPtrIUnknown* attributes) = 0;

    /// Finds an own attribute. \returns S_OK; E_FAIL when there is none of that name.
    virtual HRESULT GetClassElement(const ZELString* name, OXMIDicElement** attribute) = 0;

    /// Finds an attribute in this class or, nearest first, in its super classes. \returns S_OK; E_FAIL.
    virtual HRESULT GetElement(const ZELString* name, OXMIDicElement** attribute) = 0;

    /// Appends all attributes, the root's first; a redefinition stands at the place of what it
    /// redefines. Linear in what is handed out once the super classes were asked.
    /// \returns the result of the last attribute handed out; S_OK for none.
    virtual HRESULT GetAllElements(ZELListPtrIUnknown* attributes) = 0;

    /// Appends the injective relationships that point at a super class, nearest first, then those that
    /// point at this class. Cost: one look-up for each super class, and the result. \returns S_OK.
    virtual HRESULT GetInjectivesPointingOnMe(ZELListPtrIUnknown& relationships) = 0;

    /// Plain flags: a byte, of which only 1 means yes. Persistent is 1 at first, the others 0.
    /// \returns S_OK.
    virtual HRESULT SetPersistent(unsigned char persistent) = 0;
    virtual HRESULT GetPersistent(unsigned char* persistent) = 0;
    virtual HRESULT SetAbstract(unsigned char abstract) = 0;
    virtual HRESULT GetAbstract(unsigned char* abstract) = 0;
    virtual HRESULT SetInstance(unsigned char instance) = 0;
    virtual HRESULT GetInstance(unsigned char* instance) = 0;

    /// Whether extensions may extend the class. \returns S_OK.
    virtual HRESULT SetExtensible(unsigned char extensible) = 0;

    /// \returns S_OK with the own value when one was set; S_FALSE with the nearest super class's, or 0.
    virtual HRESULT GetExtensible(unsigned char* extensible) = 0;

    /// Whether classes may be derived at run time (`OXMDicKVADERIVABLE`); 1 is inherited. \returns S_OK.
    virtual HRESULT SetKVADerivable(int derivable) = 0;

    /// \returns S_OK with the nearest value that is not 1; S_FALSE with 1 when there is none.
    virtual HRESULT GetKVADerivable(int* derivable) = 0;

    /// Plain texts. \returns S_OK.
    virtual HRESULT SetLateType(const ZELString* lateType) = 0;
    virtual HRESULT GetLateType(ZELString* lateType) = 0;
    virtual HRESULT SetApplicationName(const ZELUnicodeString* name) = 0;
    virtual HRESULT GetApplicationName(ZELUnicodeString* name) = 0;

    /// The class that this one refers to. \returns S_OK; setter E_FAIL for null or an object of another
    /// library, getter S_FALSE when unset.
    virtual HRESULT SetReference(const OXMIDicClass* reference) = 0;
    virtual HRESULT GetReference(OXMIDicClass** reference) = 0;

    /// Own uniques. \returns S_OK; E_FAIL for an unknown name or a null list.
    virtual HRESULT GetUnique(const ZELString* name, OXMIDicUnique** unique) = 0;
    virtual HRESULT GetUniques(ZELListPtrIUnknown* uniques) = 0;

    /// Methods, as in `OXMIDicInterface`: GetMethod looks up the super classes as well, GetMethods and
    /// GetClassMethod at the own ones only.
    virtual HRESULT GetMethod(const ZELString* name, OXMIDicMethod** method) = 0;
    virtual HRESULT GetMethods(ZELListPtrIUnknown* methods) = 0;
    virtual HRESULT GetClassMethod(const ZELString* name, OXMIDicMethod** method) = 0;
    virtual HRESULT GetAllMethods(ZELListPtrIUnknown* methods) = 0;

    /// Attribute blocks. Visible in a class are its own, the last registered first, and inherited ones: of
    /// each root only the most derived. GetAttBlock finds an own or visible one by name, GetAttBlockForAtt
    /// the first visible one that holds an attribute, GetCBlockForAtt the default block, of the attributes
    /// that none holds, which is made when \p create says so or an attribute is named.
    /// \returns S_OK; S_FALSE when there is no default block; E_FAIL for null or when nothing is found.
    virtual HRESULT GetAttBlock(const ZELString* name, OXMIDicAttributeBlock** block) = 0;
    virtual HRESULT GetAttBlocks(ZELListPtrIUnknown* blocks) = 0;
    virtual HRESULT GetAttBlockForAtt(const ZELString* attributeName, OXMIDicAttributeBlock** block) = 0;
    virtual HRESULT GetCBlockForAtt(const ZELString* attributeName, int create,
                                    OXMIDicAttributeBlock** block) = 0;
    virtual HRESULT HasAttBlocks(unsigned char* hasBlocks) = 0;
    virtual HRESULT GetAllAttributeBlockList(ZELListPtrIUnknown* blocks) = 0;
    virtual HRESULT RegisterBlockByName(OXMIDicAttributeBlock* block, const ZELString* name) = 0;

    /// The class's own derivability, 1 when it inherits. \returns S_OK; S_FALSE when it inherits.
    virtual HRESULT GetClassKVADerivable(int* derivable) = 0;

    /// Whether the class itself is extensible, 0 when that was not set here. \returns S_OK; S_FALSE when it
    /// was not set here.
    virtual HRESULT GetClassExtensible(unsigned char* extensible) = 0;

    /// Appends the class's own blocks (`OXMIDicAttributeBlock`), in the order of registration; those that
    /// another of the same root hides are among them, the default block is not.
    /// \returns S_OK; E_FAIL for a null list.
    virtual HRESULT GetClassAttBlocks(ZELListPtrIUnknown* blocks) = 0;

protected:
    ~OXMIDicClass() = default;
};

#endif
