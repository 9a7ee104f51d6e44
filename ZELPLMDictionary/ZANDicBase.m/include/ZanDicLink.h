#ifndef ZAN_DIC_LINK_H
#define ZAN_DIC_LINK_H

#include <cstdint>

#include "ZanDicExport.h"

class ZanDicObj;

/// The untyped half of `ZanDicLink`: an index into the process-wide table of linked objects.
///
/// An object gets a place in the table when it is first linked; the place forgets the object when that
/// is gone and is used again once no link names it. One word of 32 bits a link, constant time.
class ZANDICBASE_API ZanDicLinkBase {
public:
    ZanDicLinkBase() noexcept = default;
    ZanDicLinkBase(const ZanDicLinkBase& other) noexcept;
    ZanDicLinkBase(ZanDicLinkBase&& other) noexcept : _Place(other._Place) { other._Place = 0; }
    ZanDicLinkBase& operator=(const ZanDicLinkBase& other) noexcept;
    ZanDicLinkBase& operator=(ZanDicLinkBase&& other) noexcept;
    ~ZanDicLinkBase() {
        if (_Place != 0) Drop();
    }

    /// Whether the link was set and its object is gone since.
    bool IsLost() const { return _Place != 0 && Object() == nullptr; }
    bool WasSet() const { return _Place != 0; }

    /// Makes the link one that was never set.
    void Reset() noexcept {
        if (_Place != 0) Drop();
    }

protected:
    /// \param object null resets the link. An object that is gone cannot be linked: lost at once.
    void Set(ZanDicObj* object);
    ZanDicObj* Object() const { return places[_Place].object; }

private:
    friend class ZanDicObj;

    struct Place {
        ZanDicObj* object;
        std::uint32_t links;     ///< how many links name this place; the next free place when unused
        std::uint32_t reserved;
    };

    void Drop() noexcept;
    static std::uint32_t PlaceOf(ZanDicObj& object);
    static void Forget(std::uint32_t place) noexcept;  ///< its object is gone

    static Place* places;  ///< place 0 holds no object: what a link never set names

    std::uint32_t _Place = 0;
};

/// A link to an object that it does not keep alive: reads null once the object is gone (taken out by
/// its owner for good, or destroyed), and still tells that from a link never set.
template <class T>
class ZanDicLink : public ZanDicLinkBase {
public:
    ZanDicLink() noexcept = default;
    explicit ZanDicLink(T* object) { Set(object); }
    ZanDicLink& operator=(T* object) {
        Set(object);
        return *this;
    }

    T* Get() const { return static_cast<T*>(Object()); }
    T* operator->() const { return Get(); }
    T& operator*() const { return *Get(); }
    explicit operator bool() const { return Object() != nullptr; }
};

#endif
