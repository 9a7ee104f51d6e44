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

    /// Makes a link that is set one that has lost its object.
    void Lose() noexcept;

    /// A number that two links share while both are set exactly when they name the same object, gone or
    /// not; 0 for a link never set. Links set to an object that was gone already share one number.
    std::uint32_t Identity() const { return _Place; }

    /// Grows whenever a linked object goes: while it stands still, no link has become lost.
    static std::uint64_t LostCount() { return lostCount; }

    /// Fetches what a new link to an object of that identity touches into the cache.
    static void Prefetch(std::uint32_t identity) { __builtin_prefetch(&places[identity]); }

    /// \returns the identity that links to \p object have; 0 when nothing links to it.
    static std::uint32_t IdentityOf(const ZanDicObj& object);

    /// Lets the processor fetch what Object reads.
    [[gnu::always_inline]] void PrefetchPlace() const { __builtin_prefetch(&places[_Place]); }

    /// Lets it fetch what is \p offset bytes behind the begin of the object, which may be null.
    [[gnu::always_inline]] void PrefetchObject(std::uintptr_t offset) const {
        const auto begin = reinterpret_cast<std::uintptr_t>(places[_Place].object);
        __builtin_prefetch(reinterpret_cast<const void*>(begin + offset));
    }

protected:
    /// \param object null resets the link. An object that is gone cannot be linked: lost at once.
    void Set(ZanDicObj* object);
    ZanDicObj* Object() const { return places[_Place].object; }

private:
    friend class ZanDicObj;

    struct Place {
        ZanDicObj* object;
        std::uint32_t links;  ///< how many links name this place
        std::uint32_t next;   ///< the next free place, of a free one
    };

    void Drop() noexcept;
    static std::uint32_t PlaceOf(ZanDicObj& object);
    static std::uint32_t NewPlace();
    static void Forget(std::uint32_t place) noexcept;  ///< its object is gone

    /// Place 0 never holds an object: what a link never set names. Place 1 neither: what a link names that
    /// was set to an object already gone. The table grows, and is there until the process ends.
    static Place firstPlaces[2];
    static Place* places;
    static std::uint64_t lostCount;

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

    /// \returns the object; null when the link is unset or lost.
    T* Get() const { return static_cast<T*>(Object()); }
    T* operator->() const { return Get(); }
    T& operator*() const { return *Get(); }
    explicit operator bool() const { return Object() != nullptr; }
};

#endif
