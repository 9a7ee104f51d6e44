#ifndef ZAN_DIC_OBJ_H
#define ZAN_DIC_OBJ_H

#include <cstdint>
#include <memory>

#include "OXMDicTypes.h"
#include "OXMIDicIdentifiers.h"
#include "ZELBaseUnknown.h"
#include "ZELDbBinary.h"
#include "ZELListPtr.h"
#include "ZELListVal.h"
#include "ZELMetaClass.h"
#include "ZELPool.h"
#include "ZELString.h"
#include "ZELUnicodeString.h"
#include "ZanDicExport.h"

class ZanDicTaken;
class ZanHashList;
struct ZanDicNameIndex;

/// What an object holds only when it was set: kept apart, so that the many objects without pay one word.
/// Kinds with rare fields of their own derive from it.
struct ZANDICBASE_API ZanDicRareFields : ZELPooled {
    ZanDicRareFields();
    virtual ~ZanDicRareFields();
    ZanDicRareFields(const ZanDicRareFields&);
    ZanDicRareFields& operator=(const ZanDicRareFields&) = delete;
    /// \returns a copy for a copied object: categories shared, links to others as they are.
    virtual std::unique_ptr<ZanDicRareFields> Copy() const;

    ZELListValZELUnicodeString otherNames;
    ZELListValZELUnicodeString otherValues;   ///< same index as the names
    std::shared_ptr<ZanHashList> categories;  ///< links; shared by copies, freed with the last holder
    ZELUnicodeString alias;                   ///< of elements and packages
    ZELUnicodeString expositionLevel;
    OXMDicVISIBILITY visibility = OXMDicVISIBILITY_Public;  ///< of an element, when it is an odd number

    /// \returns the position of the free attribute of that name; 0 when there is none. Where there are many,
    /// an index is brought up to date first.
    int locate_Other(const ZELUnicodeString& name);
    /// Adds one of a name that is not there.
    void append_Other(const ZELUnicodeString& name, const ZELUnicodeString& value);

private:
    std::unique_ptr<ZanDicNameIndex> _OtherIndex;  ///< of the names; null while they are few, and in a copy
};

/// Base of every object of the dictionary: name, 16-byte UUID, type code, free attributes, categories.
///
/// Counted: born with one reference, the creator's. Registered with the manager by UUID at most once;
/// an object that is destroyed takes itself out. Callers of the dictionary hold interfaces
/// (`QueryInterface`), never the object. One thread.
class ZANDICBASE_API ZanDicObj : public ZELBaseUnknown, public ZELPooled {
public:
    /// Which class implements an object, as opposed to what kind of element it is.
    enum _type : int {
        _type_Attribute = 1,
        _type_Class = 2,
        _type_Command = 4,
        _type_CommandParameter = 5,
        _type_Element = 6,
        _type_Enum = 7,
        _type_Enumerator = 8,
        _type_Method = 9,
        _type_Package = 10,
        _type_Parameter = 12,
        _type_Primitive = 13,
        _type_Unique = 14,
        _type_AttributeBlock = 15,
    };

    /// Name "UNDEFINED", no UUID, type -1.
    ZanDicObj();
    /// Copies both; the concrete class sets the type.
    ZanDicObj(const ZELString& name, const ZELDbBinary& uuid);
    /// Copies the fields and shares the categories; neither count, adapters, registration nor links to
    /// \p other. Assignment to a registered object registers it under the new UUID.
    ZanDicObj(const ZanDicObj& other);
    ZanDicObj& operator=(const ZanDicObj& other);
    ~ZanDicObj() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    HRESULT QueryInterface(const ZELInterfaceId& id, void** out) noexcept override;

    /// Identity, as `OXMIDicElementH`. \returns S_OK, but for SetUuid: E_FAIL in every case.
    HRESULT GetName(ZELString* name) const noexcept;
    virtual HRESULT SetName(const ZELString* name);
    HRESULT GetUuid(ZELDbBinary* uuid) const noexcept;
    virtual HRESULT SetUuid(const ZELDbBinary* uuid);
    virtual HRESULT GenUuid();
    HRESULT GetType(OXMDicTYPE* type) const noexcept;
    OXMDicTYPE Type() const { return _Type; }
    HRESULT set_TYPE(OXMDicTYPE type);
    const ZELString& Name() const { return _Name; }
    const ZELDbBinary& Uuid() const { return _Uuid; }

    /// Free attributes, as `OXMIDicElementH`.
    HRESULT SetOtherAttribute(const ZELUnicodeString& name, const ZELUnicodeString& value);
    HRESULT GetOtherAttribute(const ZELUnicodeString& name, ZELUnicodeString& value) const;
    HRESULT GetAllOtherAttributes(ZELListValZELUnicodeString& names,
                                  ZELListValZELUnicodeString& values) const;

    /// Categories, as `OXMIDicElementH`.
    HRESULT AddCategory(const OXMIDicCategory* category);
    HRESULT RemoveCategory(const OXMIDicCategory* category);
    HRESULT IsCategory(const ZELString* name, unsigned char* isCategory) const;
    HRESULT GetCategories(ZELListPtrIUnknown* categories) const;

    /// \param[out] count how many links of this object were set and have lost their object since.
    /// \returns S_OK; E_FAIL for null.
    HRESULT GetLostLinks(int* count) const;

    /// Hands out the interface that belongs to a type code; a code below 1 means the object's own.
    /// \param[out] out carries one reference. \returns the query's result; E_FAIL, after a warning line,
    /// for a code without interface.
    HRESULT bind_Interface(OXMDicTYPE type, void** out) const;

    /// The class kind of the implementing class.
    virtual _type get_type() const;

    /// Writes four lines that identify the object.
    virtual void Dump(const char* caller) const;

    /// The package that the object reports in messages: its name, or "?" when there is none.
    virtual ZELString get_PackageName() const;

    // What follows is for the library itself.

    /// The links that callers set. What the library derives from them (subclasses, answers that it keeps) is
    /// none.
    enum class LinkName {
        SuperClass,  ///< of a class or an interface
        Reference,   ///< of an instance
        Type,        ///< what types an attribute or a parameter: primitive, enumeration, target class
        Inverse,     ///< what an inverse inverts
        InvertedBy,  ///< the inverses of a relationship
        Scopes,
        Members,  ///< of a unique key, of an attribute block
        Categories,
        UsedPackages,
        ScopePackages,
        Commands,
        BlockClass,
        BlockFather,
        BlockRoot,
        RBOClass,    ///< what a mapping applies to
        BaseClass,   ///< of an RBO root or component
        PathTarget,  ///< last: `kLinkNameCount` counts up to it
    };
    static constexpr int kLinkNameCount = static_cast<int>(LinkName::PathTarget) + 1;
    /// \returns how many links of that name were set and have lost their object since; 0 for a kind of object
    /// without such a link. Each kind answers for its own links and asks its base for the others.
    virtual int lost_Links(LinkName link) const;

    /// Whether the object was taken out of the dictionary for good.
    bool is_Gone() const { return _Gone; }
    /// Makes links to this object read null, and drops its own links and package (`drop_Links`).
    void mark_Gone();
    bool is_Registered() const { return _Registered; }
    void set_Registered(bool registered) { _Registered = registered; }
    /// Whether another object has the owner's reference to this one, and gives it back.
    bool is_Owned() const { return _Owned; }
    void set_Owned() { _Owned = true; }
    /// Lets \p owned take the references that this object owns, those on private lists included; its own
    /// lists are empty after that. Writes nothing.
    virtual void take_Owned(ZanDicTaken& owned);

    /// Fetches what a lookup reads of an object into the cache, or, of one that is there, what a query and a
    /// new link touch.
    static void prefetch_Obj(const ZanDicObj* object) {
        __builtin_prefetch(object);
        __builtin_prefetch(&object->_Uuid);
    }
    void prefetch_Links() const;

    /// Makes room for \p count members more. A hint: they need not come.
    virtual void expect_Members(int count);

    /// How many objects there are in the process, for tests and diagnostics.
    static int live_Objects() { return liveObjects; }
    /// Whether a default object that is made and destroyed would show in the trace: the lookups that can
    /// do without one make it only then.
    static bool shows_Probe();
    /// Makes and destroys a default object where that shows.
    static void show_Probe();
    /// The default object that all searches by name share; made, and shown, at the first call.
    static void make_SharedProbe();
    /// Makes it where that shows.
    static void show_SharedProbe();

protected:
    /// Drops every link that this object holds to others; run when it goes.
    virtual void drop_Links();
    /// Makes the rare fields of this kind.
    virtual std::unique_ptr<ZanDicRareFields> new_RareFields() const;
    ZanDicRareFields* rare() const { return _Rare.get(); }
    /// The rare fields, made on first use.
    ZanDicRareFields& make_Rare();

private:
    friend class ZanDicLinkBase;

    static int liveObjects;
    static ZanDicObj* sharedProbe;  ///< kept for the life of the process; null until it is made

    /// Runs \p assign on the UUID and keeps the registry in step when it holds this object.
    template <class Assign>
    void rekey(const Assign& assign);

    OXMDicTYPE _Type = static_cast<OXMDicTYPE>(-1);
    ZELString _Name;
    std::unique_ptr<ZanDicRareFields> _Rare;
    std::uint32_t _LinkPlace = 0;  ///< where links find this object; 0 until it is first linked
    ZELDbBinary _Uuid;
    bool _Registered : 1;
    bool _Gone : 1;
    bool _Owned : 1;

protected:
    // Here because there is room for them: what derived objects hold is packed behind.
    bool _Unnamed : 1;  ///< an element built without a name: its texts are null at first
    bool _Noted : 1;    ///< an attribute among the injective ones that point at its target
};

/// Hash and compare functions of the collections that key objects by name or by UUID.
/// A null object hashes to 0; of two nulls the comparison is 0, of one it is -1 or 1.
ZANDICBASE_API std::uint32_t HashNameZanDicObj(ZanDicObj* object);
ZANDICBASE_API std::uint32_t HashUuidZanDicObj(ZanDicObj* object);
ZANDICBASE_API int CompareNameZanDicObj(ZanDicObj* first, ZanDicObj* second);
ZANDICBASE_API int CompareUuidZanDicObj(ZanDicObj* first, ZanDicObj* second);

#endif
