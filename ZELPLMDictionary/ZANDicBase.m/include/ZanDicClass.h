#ifndef ZAN_DIC_CLASS_H
#define ZAN_DIC_CLASS_H

#include <vector>

#include "ZanDicElement.h"
#include "ZanDicLinkList.h"
#include "ZanHashList.h"

class ZanDicAllAttributes;
class ZanDicAttribute;
class ZanDicAttributeBlock;
class ZanDicTraceScope;
class ZanDicVisibleBlocks;
struct ZanDicClassBlocks;
struct ZanDicClassFields;

/// A class of the schema: one super class, own attributes, uniques and methods, and flags.
///
/// Owns what its factories make. What is removed from it stays registered and lives as long as the class.
/// Super class, subclasses, reference and the list of all attributes are links: what is gone counts as
/// absent. A link setter refuses what is gone; factories and link setters of a class that is gone itself
/// refuse everything. A null pointer as an argument gives E_FAIL and changes nothing, where nothing else is
/// said. Out arguments for interfaces, and entries of lists, carry one reference. Walks up and down the
/// hierarchy are loops: its depth is no limit. One thread.
class ZANDICBASE_API ZanDicClass : public ZanDicElement {
public:
    ZanDicClass(const ZELString& name, const ZELDbBinary& uuid);
    ZanDicClass(const ZanDicClass&) = delete;
    ZanDicClass& operator=(const ZanDicClass&) = delete;
    ~ZanDicClass() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    _type get_type() const override { return _type_Class; }
    HRESULT SetUuid(const ZELDbBinary* uuid) override;
    HRESULT GenUuid() override;

    /// Attribute factory; any \p type is taken. The form without UUID warns and draws one.
    /// \param[out] attribute also written when only the registration failed, and the attribute is in the
    /// class then; untouched when the type has no interface.
    /// \returns the result of the registration; E_FAIL, after an error line, when an own attribute has the
    /// name; E_FAIL when the class is gone. Nothing is made then.
    HRESULT Create(const ZELString* name, const ZELDbBinary* uuid, OXMDicTYPE type,
                   OXMIDicElement** attribute);
    HRESULT Create(const ZELString* name, OXMDicTYPE type, OXMIDicElement** attribute);

    /// Create with the type fixed.
    HRESULT CreateSimple(const ZELString* name, const ZELDbBinary* uuid, OXMIDicSimple** simple);
    HRESULT CreateSimple(const ZELString* name, OXMIDicSimple** simple);
    HRESULT CreateRelationship(const ZELString* name, const ZELDbBinary* uuid,
                               OXMIDicRelationship** relationship);
    HRESULT CreateRelationship(const ZELString* name, OXMIDicRelationship** relationship);
    HRESULT CreateInverse(const ZELString* name, const ZELDbBinary* uuid, OXMIDicInverse** inverse);
    HRESULT CreateInverse(const ZELString* name, OXMIDicInverse** inverse);

    /// As Create, without a message. The form without UUID is obsolete: it writes a notice, makes nothing
    /// and gives E_FAIL.
    HRESULT CreateUnique(const ZELString* name, const ZELDbBinary* uuid, OXMIDicUnique** unique);
    HRESULT CreateUnique(const ZELString* name, OXMIDicUnique** unique);

    /// As Create, without a message. The form without UUID is obsolete: it writes a notice, makes nothing
    /// and gives E_FAIL.
    HRESULT CreateMethod(const ZELString* name, const ZELDbBinary* uuid, OXMIDicMethod** method);
    HRESULT CreateMethod(const ZELString* name, OXMIDicMethod** method);

    /// Takes a member out of its list, no more. \returns S_OK; E_FAIL when there is none of that name.
    HRESULT RemoveElement(const ZELString* name);
    HRESULT RemoveUnique(const ZELString* name);

    /// Flushes, unregisters and releases an own method: it is gone, and so are its parameters.
    /// \returns the result of the unregistering; S_FALSE, after an error line, when there is none of that
    /// name; the failing result of the method's FlushAll, and it stays.
    HRESULT RemoveMethod(const ZELString* name);

    /// Not available. \returns E_FAIL; `Inherited` also sets its flag to 0.
    HRESULT CreateImplement(const ZELString* name, IUnknown** implement);
    HRESULT CreateSecurity(const ZELString* name, IUnknown** security);
    HRESULT RemoveImplement(const ZELString* name);
    HRESULT RemoveSecurity(const ZELString* name);
    HRESULT GetClassImplements(ZELListPtrIUnknown* implements) const;
    HRESULT GetAllImplements(ZELListPtrIUnknown* implements) const;
    HRESULT GetClassSecurities(ZELListPtrIUnknown* securities) const;
    HRESULT GetAllSecurities(ZELListPtrIUnknown* securities) const;
    HRESULT Inherited(OXMIDicElement* element, unsigned char* inherited) const;

    /// Deprecated: each writes an error line. \returns E_FAIL.
    HRESULT AddCommand(const OXMIDicCommand* command);
    HRESULT RemoveCommand(const OXMIDicCommand* command);
    HRESULT GetCommands(ZELListPtrIUnknown* commands) const;

    /// Not available: each writes a warning line. \returns E_FAIL.
    HRESULT AddInterface(const OXMIDicInterface* interface);
    HRESULT RemoveInterface(const OXMIDicInterface* interface);
    HRESULT GetInterfaces(ZELListPtrIUnknown* interfaces) const;

    /// Sets the super class and attaches this class to it, behind its other subclasses. It cannot be unset.
    /// Costs the depth above the super class or the number of classes below this one, whichever is less.
    /// \returns S_OK; E_FAIL, and nothing has changed, for null, for what is no class in the dictionary
    /// (after an error line), for an extension above a class, or for a class as its own ancestor.
    HRESULT SetSuperClass(const OXMIDicClass* superClass);
    /// \returns S_OK; S_FALSE at a root.
    HRESULT GetSuperClass(OXMIDicClass** superClass) const;
    /// Appends the super classes, nearest first. \returns S_FALSE.
    HRESULT GetSuperClasses(ZELListPtrIUnknown* superClasses) const;
    /// Appends the direct subclasses, in the order of attachment. \returns S_OK.
    HRESULT GetSubClasses(ZELListPtrIUnknown* subClasses) const;
    /// \returns S_OK; S_FALSE at a root.
    HRESULT GetSuperName(ZELString* name) const;

    /// The same links and rules, typed as interfaces.
    HRESULT SetSuperInterface(const OXMIDicInterface* superInterface);
    HRESULT GetSuperInterface(OXMIDicInterface** superInterface) const;
    HRESULT GetSuperInterfaces(ZELListPtrIUnknown* superInterfaces) const;

    /// Appends the own attributes, in the order of creation.
    /// \returns the last query's result, S_OK for none; E_FAIL for a null list.
    HRESULT GetClassElements(ZELListPtrIUnknown* attributes) const;
    /// \returns S_OK; E_FAIL when no own attribute has that name.
    HRESULT GetClassElement(const ZELString* name, OXMIDicElement** attribute) const;
    /// Looks here, then up the super classes. \returns S_OK; E_FAIL.
    HRESULT GetElement(const ZELString* name, OXMIDicElement** attribute) const;

    /// Appends all attributes, the root's first; a redefinition stands where the redefined one stood.
    /// The answer is computed with the first call and kept, for this class and all above it. A later factory
    /// call here or above makes it anew; a removal does not, nor does a new super class further up. A null
    /// list is accepted. \returns the last query's result, S_OK for none.
    HRESULT GetAllElements(ZELListPtrIUnknown* attributes);
    /// Computes that answer anew, here and in all super classes, and notes in each redefinition what it
    /// redefines. Costs nothing where nothing changed since. \returns S_OK.
    HRESULT compute_AllAttributes();

    /// Appends the injective relationships that point at a super class, nearest first, then those that
    /// point here. \returns S_OK; the first failure.
    HRESULT GetInjectivesPointingOnMe(ZELListPtrIUnknown& relationships) const;

    /// Plain flags: the byte is kept; only 1 means yes. Persistent is 1 at first, the others 0.
    /// \returns S_OK.
    HRESULT SetPersistent(unsigned char persistent);
    HRESULT GetPersistent(unsigned char* persistent) const;
    HRESULT SetAbstract(unsigned char abstract);
    HRESULT GetAbstract(unsigned char* abstract) const;
    HRESULT SetInstance(unsigned char instance);
    HRESULT GetInstance(unsigned char* instance) const;

    /// \returns S_OK; the getter S_FALSE with the nearest super class's value, or 0, when none was set here.
    HRESULT SetExtensible(unsigned char extensible);
    HRESULT GetExtensible(unsigned char* extensible) const;
    /// \returns S_OK; the getter S_FALSE with 1 when neither this class nor one above has another value.
    HRESULT SetKVADerivable(int derivable);
    HRESULT GetKVADerivable(int* derivable) const;
    /// The own value. \returns S_OK; S_FALSE, with 0, when none was set here.
    HRESULT GetClassExtensible(unsigned char* extensible) const;
    /// The own value. \returns S_OK; S_FALSE when it is 1.
    HRESULT GetClassKVADerivable(int* derivable) const;

    /// Plain texts. \returns S_OK.
    HRESULT SetLateType(const ZELString* lateType);
    HRESULT GetLateType(ZELString* lateType) const;
    HRESULT SetApplicationName(const ZELUnicodeString* name);
    HRESULT GetApplicationName(ZELUnicodeString* name) const;

    /// \returns S_OK; the setter E_FAIL for what is no class in the dictionary, the getter S_FALSE when
    /// unset.
    HRESULT SetReference(const OXMIDicClass* reference);
    HRESULT GetReference(OXMIDicClass** reference) const;

    /// Own uniques, as GetClassElement and GetClassElements.
    HRESULT GetUnique(const ZELString* name, OXMIDicUnique** unique) const;
    HRESULT GetUniques(ZELListPtrIUnknown* uniques) const;

    /// Looks here, then up the super classes. \returns S_OK; E_FAIL.
    HRESULT GetMethod(const ZELString* name, OXMIDicMethod** method) const;
    /// Looks among the own ones only.
    HRESULT GetClassMethod(const ZELString* name, OXMIDicMethod** method) const;
    /// Appends the own methods, in the order of creation; a null list is accepted.
    /// \returns the last query's result, S_OK for none.
    HRESULT GetMethods(ZELListPtrIUnknown* methods) const;
    /// The same, followed by those of each super class, nearest first; of methods of one name the first only.
    HRESULT GetAllMethods(ZELListPtrIUnknown* methods) const;

    /// Attribute blocks. Visible are the own ones, the last registered first, and the inherited ones, but of
    /// each root only the most derived; the answer is kept until a block, a root or the hierarchy changes.
    /// \returns S_OK; E_FAIL for null.
    HRESULT GetAttBlocks(ZELListPtrIUnknown* blocks);
    HRESULT GetAllAttributeBlockList(ZELListPtrIUnknown* blocks);
    /// The own ones only, in the order of registration, hidden ones included.
    HRESULT GetClassAttBlocks(ZELListPtrIUnknown* blocks) const;
    /// \param[out] hasBlocks 1 when one is visible, else 0.
    HRESULT HasAttBlocks(unsigned char* hasBlocks);
    /// Looks among the own blocks, then among the visible ones. \returns S_OK; E_FAIL when there is none.
    HRESULT GetAttBlock(const ZELString* name, OXMIDicAttributeBlock** block);
    /// The first visible block that holds an attribute of that name. \returns S_OK; E_FAIL.
    HRESULT GetAttBlockForAtt(const ZELString* attributeName, OXMIDicAttributeBlock** block);
    /// The default block: of the attributes that no visible block holds, neither multi-valued ones nor
    /// inverses, the last of all attributes first, as they are when it is made. Its father is the default
    /// block of the super class, which is made first where there is none. \param attributeName null, or an
    /// attribute that the block has to hold; it is then made in any case. \param create whether to make it
    /// without a name. \param[out] block null unless handed out. \returns S_OK; S_FALSE when there is none
    /// and none is to be made; E_FAIL for a null \p block, without a package, or when the block does not hold
    /// the attribute.
    HRESULT GetCBlockForAtt(const ZELString* attributeName, int create, OXMIDicAttributeBlock** block);
    /// Makes a block one of the own ones, under its own name. \returns S_OK; E_FAIL for null, for what is no
    /// block in the dictionary, and when the name is taken, by another block after a line on standard error.
    HRESULT RegisterBlockByName(OXMIDicAttributeBlock* block, const ZELString* name);

    /// Drops attributes, uniques and methods, then the links to super class and subclasses. The class stays.
    /// \returns S_OK; the failing result of a member's FlushAll, and what comes later is as it was.
    HRESULT FlushAll() override;

    void Dump(const char* caller) const override;

    // What follows is for the library itself.

    ZanDicClass* get_SuperClass() const { return _SuperClass.Get(); }
    /// The own attributes, in order.
    const ZanHashList& own_Attributes() const { return _ATTRIBUTES; }
    /// The direct subclasses; of a class that was flushed also former ones, whose super class is another now.
    const ZanDicLinkList<ZanDicClass>& get_SubClasses() const { return _invSuperClass; }
    /// The own blocks, in the order of registration.
    const ZanHashList& own_Blocks() const;
    /// The visible ones, computed when something changed; good until something changes again.
    const ZanDicVisibleBlocks& visible_Blocks();
    /// \returns the visible block of a root; null when there is none.
    ZanDicAttributeBlock* find_BlockOfRoot(const ZanDicAttributeBlock& root);
    void take_Owned(ZanDicTaken& owned) override;
    void expect_Members(int count) override { _ATTRIBUTES.reserve(_ATTRIBUTES.Size() + count); }
    int lost_Links(LinkName link) const override;

protected:
    void drop_Links() override;
    std::unique_ptr<ZanDicRareFields> new_RareFields() const override;

private:
    template <class Interface>
    HRESULT create_Attribute(const ZELString* name, const ZELDbBinary* uuid, OXMDicTYPE type,
                             Interface** attribute);
    HRESULT make_Attribute(const ZELString& name, const ZELDbBinary& uuid, OXMDicTYPE type,
                           IUnknown** attribute, const ZanDicTraceScope& trace);
    HRESULT flush_Members(const ZanDicTraceScope& trace);
    HRESULT set_SuperClass(const IUnknown* superClass, const ZanDicTraceScope& trace,
                           std::string_view foreign);
    void drop_Hierarchy();
    void forget_Relations() noexcept;
    template <class Change>
    HRESULT change_Uuid(const Change& change);
    bool is_AbleToBeUnder(const ZanDicClass& superClass) const;
    void forget_AllAttributes();
    template <class Visit>
    void for_EachSubClass(const Visit& visit) const;

    const ZanDicClassBlocks* blocks() const;
    ZanDicClassBlocks& make_Blocks();
    ZanDicAttributeBlock* default_Block() const;
    bool list_WithoutDefaultBlock(std::vector<ZanDicClass*>& without);
    HRESULT make_DefaultBlock();
    void fill_DefaultBlock(ZanDicAttributeBlock& block);

    const ZanDicClassFields* fields() const;
    ZanDicClassFields& make_Fields();
    const ZanHashList& uniques() const;
    const ZanHashList& methods() const;
    template <class Member, class Interface>
    HRESULT make_Member(ZanHashList ZanDicClassFields::*list, const ZELString* name, const ZELDbBinary* uuid,
                        Interface** member);

    ZanDicLink<ZanDicClass> _SuperClass;  ///< not owning; null at a root and once the class is gone
    ZanDicLink<ZanDicClass> _Reference;   ///< not owning
    unsigned char _Persistent = 1;
    unsigned char _Abstract = 0;
    unsigned char _Extensible = 0;
    bool _ExtensibleSet = false;
    bool _Extension = true;  ///< shown by Dump only
    unsigned char _Instance = 0;
    int _KVADerivable = OXMDicKVADERIVABLE_Inherited;
    ZanHashList _ATTRIBUTES;                     ///< this class owns one reference to each
    ZanDicLinkList<ZanDicClass> _invSuperClass;  ///< not owning, by identity: direct subclasses
    std::shared_ptr<const ZanDicAllAttributes> _ALLATTRIBUTES;  ///< links; null until computed
    std::uint64_t _FreshAt = 0;      ///< state of all hierarchies for which _ALLATTRIBUTES is the answer
    std::uint64_t _ForgottenAt = 0;  ///< as long as that is the newest, no class below keeps an answer
};

#endif
