#ifndef ZAN_DIC_LINK_LIST_H
#define ZAN_DIC_LINK_LIST_H

#include <memory>

#include "ZanDicExport.h"

class ZanDicObj;

/// The untyped half of `ZanDicLinkList`.
class ZANDICBASE_API ZanDicLinkListBase {
public:
    ZanDicLinkListBase() noexcept;
    ZanDicLinkListBase(const ZanDicLinkListBase& other);
    ZanDicLinkListBase(ZanDicLinkListBase&& other) noexcept;
    ZanDicLinkListBase& operator=(const ZanDicLinkListBase& other);
    ZanDicLinkListBase& operator=(ZanDicLinkListBase&& other) noexcept;
    ~ZanDicLinkListBase();

    /// How many objects are in the list; one that is gone does not count.
    int Size() const;

    /// Takes every object out.
    void RemoveAll() noexcept;

    /// How many objects that were in the list are gone since.
    int LostCount() const;

    /// Makes room for \p count more: as many appends of objects that are linked already take no memory.
    /// Throws std::bad_alloc when memory is short, and changes nothing.
    void expect(int count);

protected:
    bool append_Obj(ZanDicObj& object);
    bool remove_Obj(const ZanDicObj& object);
    bool holds_Obj(const ZanDicObj& object) const;
    ZanDicObj* at(int position) const;

private:
    struct Store;

    std::unique_ptr<Store> _STORE;  ///< null while nothing was ever appended
};

/// Ordered set of links to objects that it does not keep alive, told apart by identity, not by name.
///
/// An object that is gone counts as absent. Positions run from 1 to Size(), in the order of the appends.
/// Append, Holds and Remove cost amortised constant time, whatever the size; so does a step of a walk.
/// An empty list is one word. One thread.
template <class T>
class ZanDicLinkList : public ZanDicLinkListBase {
public:
    /// Adds \p object at the end. \returns false when it is in the list already, or gone.
    bool Append(T& object) { return append_Obj(object); }

    /// Takes \p object out. \returns whether it was in the list.
    bool Remove(const T& object) { return remove_Obj(object); }

    /// Whether \p object is in the list.
    bool Holds(const T& object) const { return holds_Obj(object); }

    /// \param position 1 to Size(). \returns the object there; null outside.
    T* operator[](int position) const { return static_cast<T*>(at(position)); }
};

#endif
