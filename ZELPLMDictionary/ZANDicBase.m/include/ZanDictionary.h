#ifndef ZAN_DICTIONARY_H
#define ZAN_DICTIONARY_H

#include <string>
#include <unordered_map>
#include <vector>

#include "OXMDicTypes.h"
#include "OXMIDicIdentifiers.h"
#include "ZELHash.h"
#include "ZanDicClassToRelationElem.h"
#include "ZanDicExport.h"
#include "ZanDicLink.h"
#include "ZanDicObj.h"
#include "ZanDicRegistry.h"
#include "ZanDicUuidTable.h"
#include "ZanHashList.h"

class ZanDicPackage;
class ZanDicTaken;
class ZanDicPrimitive;

/// The manager: registry of all objects by UUID, list of packages, built-in primitives, loading and saving.
///
/// One per process, made on demand by the holder (`ZanDicData`); callers reach it as `OXMIDicMgr`, whose
/// header says what the operations of the same names promise. Holds one reference to each package and
/// each primitive. The registry holds none: it knows the objects that entered it, for as long as they
/// live and were not taken out; a lookup costs one hash. One thread.
class ZANDICBASE_API ZanDictionary : public ZanDicObj, public ZanDicRegistry {
public:
    ZanDictionary();
    ZanDictionary(const ZanDictionary&) = delete;
    ZanDictionary& operator=(const ZanDictionary&) = delete;
    /// Runs End.
    ~ZanDictionary() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }

    HRESULT Init(int reserved);
    HRESULT Save();
    HRESULT SavePackageToDir(const char* directory, const ZELString* packageName, OXMDicPERSISTENT mode);
    HRESULT SavePackage(const ZELString* packageName, OXMDicPERSISTENT mode);
    HRESULT End();
    HRESULT Create();
    HRESULT LoadPackageFromDir(const char* directory, const ZELString* packageName, OXMDicPERSISTENT mode,
                               OXMDicCONTENT content);
    HRESULT LoadPackageFromDir(const char* directory, const ZELString* packageName, OXMDicPERSISTENT mode);
    HRESULT LoadPackage(const ZELString* packageName, OXMDicPERSISTENT mode, OXMDicCONTENT content);
    HRESULT LoadPackage(const ZELString* packageName, OXMDicPERSISTENT mode);
    HRESULT GetPackages(const ZELString* domain, ZELListPtrIUnknown* packages);
    HRESULT GetPackages(ZELListPtrIUnknown* packages);
    HRESULT GetPackage(const ZELString* name, OXMIDicPackage** package);
    HRESULT CreatePackage(const ZELString* name, const ZELDbBinary* uuid, const ZELString* domain,
                          OXMIDicPackage** package);
    HRESULT CreatePackage(const ZELString* name, OXMIDicPackage** package);
    HRESULT RemovePackage(const ZELString* name);
    HRESULT Reserved1();
    HRESULT Reserved2();
    HRESULT Reserved3();
    HRESULT Reserved4();
    HRESULT Reserved5();
    HRESULT Reserved6();
    HRESULT Reserved7();
    HRESULT Reserved8();
    HRESULT GetPrimitive(OXMDicPRIMITIVEType kind, OXMIDicPrimitive** primitive);
    HRESULT Reserved9();
    HRESULT Reserved10();
    HRESULT SetLoadingMode(OXMDicPERSISTENT mode);
    HRESULT GetLoadingMode(OXMDicPERSISTENT* mode);
    HRESULT SaveExpress(const char* directory, const ZELString* packageName);
    HRESULT SaveXml(const char* directory, const ZELString* packageName);
    HRESULT LoadXml(const char* directory, const ZELString* packageName, OXMDicCONTENT content);
    HRESULT Search(const ZELDbBinary* uuid, OXMIDicElementH** object);
    HRESULT SearchByName(const ZELString* name, ZELListPtrIUnknown* objects);

    /// The registry, as `ZanDicRegistry`.
    HRESULT Insert(ZanDicObj* object) override;
    HRESULT Delete(ZanDicObj* object) override;
    HRESULT search_Obj(const ZELDbBinary* uuid, ZanDicObj** object) override;
    HRESULT AddClassToRelation(const ZELDbBinary* classUuid, ZanDicAttribute* attribute) override;

    // What follows is for the library itself.

    void forget_Obj(ZanDicObj& object) noexcept override;
    bool keeps_Obj(const ZanDicObj& object) const override;
    void remove_Relation(const ZELDbBinary& classUuid, const ZanDicAttribute& attribute) override;
    void move_Relations(const ZELDbBinary& before, const ZELDbBinary& after) override;
    void forget_Relations(const ZELDbBinary& classUuid) noexcept override;
    bool owns_Uuid(const ZanDicObj& object) const override;
    bool has_Relations() const override { return _CLASSTORELATION.Size() > 0; }
    HRESULT get_Relations(const ZELDbBinary& classUuid, ZELListPtrIUnknown& relationships) override;
    void note_Load(const ZELString& askedName, ZanDicPackage& package) override;
    ZanDicPackage* find_Load(const ZELString& askedName) override;
    void expect_Objs(int count) override;
    void prefetch_Uuid(std::uint32_t key) const noexcept override { _OBJECTS.Prefetch(key); }
    const ZanDicObj* guess_Obj(std::uint32_t key) const noexcept override { return _OBJECTS.Guess(key); }

    /// \returns the number of registered objects.
    int count_Objs() const { return _OBJECTS.Size(); }

private:
    static constexpr int kPrimitiveCount = OXMDicPRIMITIVEType_AnyObject;

    ZanDicObj* find_Obj(const ZELDbBinary& uuid) const { return _OBJECTS.Find(uuid); }
    /// The same for a caller's request, which shows in the trace. \param uuid may be null.
    ZanDicObj* look_Up(const ZELDbBinary* uuid) const;
    ZanDicClassToRelationElem* find_Relations(const ZELDbBinary& classUuid) const;
    ZanDicPackage* find_Package(const ZELString& name) const;
    /// Empties every list: \p members takes what objects own, \p others what was registered and nobody owns.
    void take_All(ZanDicTaken& members, ZanDicUuidTable& others);
    HRESULT make_Package(const ZELString& name, const ZELDbBinary& uuid, const ZELString& domain,
                         OXMIDicPackage** package);

    OXMDicPERSISTENT _LoadingMode = OXMDicPERSISTENT_Xml;
    ZanHashList _PACKAGES;  ///< one reference to each, in the order of creation
    std::unordered_map<std::string, ZanDicLink<ZanDicPackage>, ZELTextHash>
        _LOADS;                ///< by a name asked for that is not theirs
    ZanDicUuidTable _OBJECTS;  ///< not owning
    ZanDicPrimitive* _PRIMITIVES[kPrimitiveCount] =
        {};  ///< one reference to each, by kind less 1; null before Create
    ZELHashTable<ZanDicClassToRelationElem> _CLASSTORELATION;  ///< owned, by the UUID of the class
};

#endif
