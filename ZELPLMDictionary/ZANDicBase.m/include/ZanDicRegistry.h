#ifndef ZAN_DIC_REGISTRY_H
#define ZAN_DIC_REGISTRY_H

#include <cstdint>

#include "ZELDbBinary.h"
#include "ZELListPtr.h"
#include "ZELResult.h"
#include "ZanDicExport.h"

class ZanDicAttribute;
class ZanDicObj;
class ZanDicPackage;
class ZELString;

/// What objects know of the manager: the registry that they enter and leave, and the index of the
/// injective relationships that point at a class. The manager implements it. One thread.
class ZANDICBASE_API ZanDicRegistry {
public:
    /// Registers \p object by its UUID; takes no reference. \returns S_OK; E_FAIL when \p object is
    /// null or its UUID is registered already, the latter after two error lines.
    virtual HRESULT Insert(ZanDicObj* object) = 0;

    /// Takes \p object out when the registered object is that very one. \returns S_OK; E_FAIL.
    virtual HRESULT Delete(ZanDicObj* object) = 0;

    /// \param[out] object the registered one, or null. \returns S_OK; E_FAIL when there is none.
    virtual HRESULT search_Obj(const ZELDbBinary* uuid, ZanDicObj** object) = 0;

    /// Takes a dying object out without a word.
    virtual void forget_Obj(ZanDicObj& object) noexcept = 0;

    /// Whether a change of the object's UUID concerns the registry: not for the manager itself and for
    /// primitives, which are never in it.
    virtual bool keeps_Obj(const ZanDicObj& object) const = 0;

    /// Notes an injective attribute among those that point at the class of that UUID. \returns S_OK.
    virtual HRESULT AddClassToRelation(const ZELDbBinary* classUuid, ZanDicAttribute* attribute) = 0;

    /// Takes an attribute out of those noted for a class.
    virtual void remove_Relation(const ZELDbBinary& classUuid, const ZanDicAttribute& attribute) = 0;

    /// What was noted for a class under one UUID is its own under another from now on.
    virtual void move_Relations(const ZELDbBinary& before, const ZELDbBinary& after) = 0;

    /// Forgets what was noted for a class.
    virtual void forget_Relations(const ZELDbBinary& classUuid) noexcept = 0;

    /// Whether no other object is registered under the object's UUID: only then is what is noted under that
    /// UUID meant for this object.
    virtual bool owns_Uuid(const ZanDicObj& object) const = 0;

    /// Whether an attribute is noted for any class.
    virtual bool has_Relations() const = 0;

    /// Appends the interfaces of the attributes noted for a class. \returns S_OK; the first failure.
    virtual HRESULT get_Relations(const ZELDbBinary& classUuid, ZELListPtrIUnknown& relationships) = 0;

    /// Notes the name under which a package was asked for. Forgotten with the package.
    virtual void note_Load(const ZELString& askedName, ZanDicPackage& package) = 0;

    /// \returns the package that was asked for under that name; null when there is none.
    virtual ZanDicPackage* find_Load(const ZELString& askedName) = 0;

    /// Makes room for \p count objects more than there are. Throws std::bad_alloc when memory is short.
    virtual void expect_Objs(int count) = 0;

    /// Says that an object is looked for, or registered, soon. \param key that of its UUID.
    virtual void prefetch_Uuid(std::uint32_t key) const noexcept = 0;

    /// \returns the object that a lookup of a UUID of that key would find first, or null: it may be another,
    /// and is to be touched, not asked.
    virtual const ZanDicObj* guess_Obj(std::uint32_t key) const noexcept = 0;

protected:
    ~ZanDicRegistry() = default;
};

// What follows is for the library itself.

/// The registry, made with the manager on the first request; null only when the manager cannot be made
/// or is gone already (the end of the process).
ZanDicRegistry* ZanDicGetRegistry();

/// As above, but makes no manager.
ZanDicRegistry* ZanDicFindRegistry() noexcept;

#endif
