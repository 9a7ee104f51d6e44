#ifndef ZAN_DIC_LINK_LIST_H
#define ZAN_DIC_LINK_LIST_H

#include <cstdint>
#include <memory>

#include "ZanDicExport.h"

class ZanDicObj;

/// The untyped half of `ZanDicLinkList`.
class ZANDICBASE_API ZanDicLinkListBase {
public:
    ZanDicLinkListBase() noexcept;
    ~ZanDicLinkListBase();
    ZanDicLinkListBase(const ZanDicLinkListBase&) = delete;
    ZanDicLinkListBase& operator=(const ZanDicLinkListBase&) = delete;

    /// How many objects are in the list; those that are gone do not count. Walks the list.
    int Size() const;

    /// Whether no object is in the list. Stops at the first that is.
    bool IsEmpty() const { return First(0) == kEnd; }

    /// Takes every object out.
    void RemoveAll();

protected:
    static constexpr std::uint32_t kEnd = UINT32_MAX;

    void append_Obj(ZanDicObj& object);
    bool remove_Obj(const ZanDicObj* object);
    bool has_Obj(const ZanDicObj* object) const;
    /// \returns the index of the first object at or behind \p index that is in the dictionary, or kEnd.
    std::uint32_t First(std::uint32_t index) const;
    ZanDicObj* At(std::uint32_t index) const;

private:
    struct Store;

    std::unique_ptr<Store> _STORE;  ///< null while nothing was ever appended
};

/// Ordered list of links to objects that it does not keep alive, told apart by identity, not by name.
///
/// An object that is gone counts as absent. Append, Has and Remove cost amortised constant time, whatever
/// the size; an empty list is one word. Walked in the order of the appends:
///
///     for (ZanDicClass& subclass : _invSuperClass) ...
///
/// The list must not change during a walk; that objects go is no change. One thread.
template <class T>
class ZanDicLinkList : public ZanDicLinkListBase {
public:
    /// Adds \p object at the end, also when it is in the list already. One that is gone is not added.
    void Append(T& object) { append_Obj(object); }

    /// Takes one entry of \p object out. \returns whether there was one.
    bool Remove(const T* object) { return remove_Obj(object); }

    /// Whether \p object is in the list.
    bool Has(const T* object) const { return has_Obj(object); }

    class Iterator {
    public:
        Iterator(const ZanDicLinkList& list, std::uint32_t index) : _List(&list), _Index(index) {}
        T& operator*() const { return static_cast<T&>(*_List->At(_Index)); }
        Iterator& operator++() {
            _Index = _List->First(_Index + 1);
            return *this;
        }
        bool operator!=(const Iterator& other) const { return _Index != other._Index; }

    private:
        const ZanDicLinkList* _List;
        std::uint32_t _Index;
    };

    Iterator begin() const { return {*this, First(0)}; }
    Iterator end() const { return {*this, kEnd}; }
};

#endif
