#ifndef ZAN_HASH_LIST_H
#define ZAN_HASH_LIST_H

#include "ZELHashTable.h"
#include "ZELListPtr.h"
#include "ZELResult.h"
#include "ZELString.h"
#include "ZanDicExport.h"

class ZanDicObj;

using ZELHashTabZanDicObj = ZELHashTable<ZanDicObj>;
using ZELListPtrZanDicObj = ZELListPtr<ZanDicObj>;

/// How a `ZanHashList` treats an object that is gone.
enum class ZanHashListKind : unsigned char {
    Links,    ///< the list does not own: an object that is gone counts as absent, and its name is free
    Owner,    ///< the field that holds the list keeps the objects alive: each counts until RemoveAll
    Unnamed,  ///< as Owner, for objects that nobody looks for by name: filled by `keep`
};

/// Ordered set of named objects: walked in insertion order, looked up by name.
///
/// Takes and drops no reference. Positions run from 1 to Size(). Names compare exactly, case included;
/// the key of an object is the name that it had when it was appended. Append and Search cost one hash
/// lookup; Remove is amortised constant as well; operator[] is constant while nothing is removed
/// and no object goes between calls. An empty list costs one word. One thread.
class ZANDICBASE_API ZanHashList {
public:
    /// \param size number of objects to expect: a hint, no limit; room is taken as objects come.
    explicit ZanHashList(int size, ZanHashListKind kind = ZanHashListKind::Links);
    ZanHashList(const ZanHashList& other);
    ZanHashList& operator=(const ZanHashList& other);
    ~ZanHashList();

    /// \param position 1 to Size(). \returns the object there; null outside.
    ZanDicObj* operator[](int position) const;

    int Size() const;

    /// Adds \p object at the end.
    /// \returns S_OK; E_FAIL when \p object is null or its name is taken, and nothing has changed.
    HRESULT Append(ZanDicObj* object);

    /// Adds every object of \p other, in its order, and goes on past one that is refused.
    /// \returns S_OK; E_FAIL when one was refused.
    HRESULT Append(const ZanHashList& other);

    /// Removes the object that was appended under \p name. \returns S_OK; E_FAIL when there is none.
    HRESULT Remove(const ZELString& name);

    /// Empties the list and touches no object; always writes one line. \returns S_OK.
    HRESULT RemoveAll();

    /// Finds the object that was appended under \p name.
    /// \param[out] found written on success only.
    /// \returns S_OK; E_FAIL when there is none.
    HRESULT Search(const ZELString& name, ZanDicObj** found) const;

    /// How many objects went while they were in a list that does not own. One whose name was appended again
    /// since does not count.
    int LostCount() const;

    // What follows is for the library itself. All but find and append_New write nothing.

    /// \returns the object that was appended under \p name; null when there is none.
    ZanDicObj* find(const ZELString& name) const;
    /// As Append, of an object whose name is known not to be taken.
    HRESULT append_New(ZanDicObj& object);
    /// Removes exactly \p object, whatever its name now is. \returns whether it was in the list.
    bool take_Object(const ZanDicObj* object);
    /// Adds an object to a list of the kind Unnamed. Names do not matter there.
    void keep(ZanDicObj& object);
    /// Empties the list.
    void clear() noexcept;
    /// Makes room for \p count objects.
    void reserve(int count);

private:
    friend class ZanDicTaken;

    struct Store;

    static Store* empty_Store(ZanHashListKind kind) noexcept;
    void make_Room(int capacity);
    HRESULT append_Object(ZanDicObj* object, bool isNew);

    Store* _STORE;  ///< owned; the shared empty one of the kind while nothing is in the list
};

#endif
