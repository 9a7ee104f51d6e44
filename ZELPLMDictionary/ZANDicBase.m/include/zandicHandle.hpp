/// Handles that give their reference back, casts by query, lists for range-for, getters as values.
/// Part of `zandic.hpp`.
#ifndef ZANDIC_HANDLE_HPP
#define ZANDIC_HANDLE_HPP

#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

#include "IUnknown.h"
#include "ZELDbBinary.h"
#include "ZELListPtr.h"
#include "ZELString.h"
#include "ZELUnicodeString.h"

namespace zandic {

/// Owns one reference to an interface, or is null. Copying takes one more.
template <class T>
class Handle {
public:
    constexpr Handle() noexcept = default;

    /// Takes over a reference that the caller has.
    static Handle Adopt(T* counted) noexcept { return Handle(counted); }

    /// Takes a reference of its own.
    static Handle Share(T* pointer) noexcept {
        if (pointer != nullptr) pointer->AddRef();
        return Handle(pointer);
    }

    Handle(const Handle& other) noexcept : Handle(Share(other._Pointer)) {}
    Handle(Handle&& other) noexcept : _Pointer(std::exchange(other._Pointer, nullptr)) {}
    Handle& operator=(Handle other) noexcept {
        std::swap(_Pointer, other._Pointer);
        return *this;
    }
    ~Handle() { Reset(); }

    T* Get() const noexcept { return _Pointer; }
    // NOLINTNEXTLINE(clang-analyzer-core.uninitialized.UndefReturn): a null handle leads nowhere.
    T& operator*() const noexcept { return *_Pointer; }
    T* operator->() const noexcept { return _Pointer; }
    explicit operator bool() const noexcept { return _Pointer != nullptr; }

    /// Gives the reference back.
    void Reset() noexcept {
        if (T* const pointer = std::exchange(_Pointer, nullptr); pointer != nullptr) pointer->Release();
    }

    /// Hands the reference over to the caller.
    [[nodiscard]] T* Detach() noexcept { return std::exchange(_Pointer, nullptr); }

    /// For out arguments of another object's operations: gives the reference back at once, then takes over
    /// what the call writes.
    T** Out() noexcept {
        Reset();
        return &_Pointer;
    }

    /// The same interface, which says nothing of the same object: compare UUIDs for that.
    friend bool operator==(const Handle& a, const Handle& b) noexcept { return a._Pointer == b._Pointer; }

private:
    explicit Handle(T* counted) noexcept : _Pointer(counted) {}

    T* _Pointer = nullptr;  ///< one reference held
};

/// \returns the interface \p T of the object behind \p object; null when it has none.
template <class T>
Handle<T> As(IUnknown& object) noexcept {
    void* found = nullptr;
    return Handle<T>::Adopt(Succeeded(object.QueryInterface(T::ClassId(), &found)) ? static_cast<T*>(found)
                                                                                   : nullptr);
}
template <class T, class From>
Handle<T> As(const Handle<From>& object) noexcept {
    return object ? As<T>(*object) : Handle<T>();
}

/// What an operation put into a list: references of the interface \p T, released with the list. Not null,
/// in order. \p T is the interface that the operation is documented to hand out, or one that it derives from.
template <class T>
class List {
public:
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = T;
        using difference_type = std::ptrdiff_t;
        using pointer = T*;
        using reference = T&;

        constexpr Iterator() noexcept = default;
        explicit Iterator(IUnknown* const* entry) noexcept : _Entry(entry) {}

        T& operator*() const noexcept { return static_cast<T&>(**_Entry); }
        T* operator->() const noexcept { return static_cast<T*>(*_Entry); }
        Iterator& operator++() noexcept {
            ++_Entry;
            return *this;
        }
        Iterator operator++(int) noexcept { return Iterator(_Entry++); }
        friend bool operator==(Iterator a, Iterator b) noexcept { return a._Entry == b._Entry; }

    private:
        IUnknown* const* _Entry = nullptr;
    };

    List() noexcept = default;
    List(List&& other) noexcept : _ENTRIES(std::move(other._ENTRIES)) { other._ENTRIES.RemoveAll(); }
    List& operator=(List&& other) noexcept {
        if (this != &other) {
            Clear();
            _ENTRIES = std::move(other._ENTRIES);
            other._ENTRIES.RemoveAll();
        }
        return *this;
    }
    ~List() { Clear(); }

    int Size() const noexcept { return _ENTRIES.Size(); }
    bool IsEmpty() const noexcept { return _ENTRIES.Size() == 0; }

    Iterator begin() const noexcept { return Iterator(_ENTRIES.begin()); }
    Iterator end() const noexcept { return Iterator(_ENTRIES.end()); }

    /// Gives the references back.
    void Clear() noexcept {
        for (IUnknown* const entry : _ENTRIES) entry->Release();
        _ENTRIES.RemoveAll();
    }

    /// Lets \p fill, called with the list to append to, add entries; null ones are dropped.
    /// \returns its result.
    template <class Fill>
    HRESULT AppendBy(Fill&& fill) {
        const HRESULT rc = std::forward<Fill>(fill)(_ENTRIES);
        _ENTRIES.RemoveNulls();
        return rc;
    }

private:
    ZELListPtrIUnknown _ENTRIES;  ///< one reference to each held
};

/// \returns what a getter with an out argument gives; none unless its result is S_OK.
///
///     zandic::Get(attribute, &OXMIDicAttribute::GetLower)
template <class Object, class Interface, class Value>
std::optional<Value> Get(Object& object, HRESULT (Interface::*getter)(Value*)) {
    Value value{};
    if ((object.*getter)(&value) != S_OK) return std::nullopt;
    return value;
}

/// \returns the text that a getter gives; none also when the text is null.
template <class Object, class Interface>
std::optional<ZELUnicodeString> Get(Object& object, HRESULT (Interface::*getter)(ZELUnicodeString*)) {
    ZELUnicodeString value;
    if ((object.*getter)(&value) != S_OK || value.IsNull()) return std::nullopt;
    return value;
}

/// \returns the flag that a getter gives; only 1 means yes. No when the getter refuses.
template <class Object, class Interface>
bool Flag(Object& object, HRESULT (Interface::*getter)(unsigned char*)) {
    unsigned char value = 0;
    return Succeeded((object.*getter)(&value)) && value == 1;
}

/// \returns the object that a getter hands out; null when it hands out none.
///
///     zandic::Link(classElement, &OXMIDicClass::GetSuperClass)
template <class Object, class Interface, class Target>
Handle<Target> Link(Object& object, HRESULT (Interface::*getter)(Target**)) {
    Handle<Target> target;
    (object.*getter)(target.Out());
    return target;
}

/// \returns the object that \p finder finds by name; null when there is none.
///
///     zandic::Find(package, &OXMIDicPackage::GetElement, "Part")
template <class Object, class Interface, class Target>
Handle<Target> Find(Object& object, HRESULT (Interface::*finder)(const ZELString*, Target**),
                    std::string_view name) {
    const ZELString key(name);
    Handle<Target> target;
    (object.*finder)(&key, target.Out());
    return target;
}

/// \returns the objects that a getter lists, as interfaces \p T; empty when it refuses.
///
///     for (OXMIDicClass& each : zandic::All<OXMIDicClass>(package, &OXMIDicPackage::GetClasses))
template <class T, class Object, class Interface>
List<T> All(Object& object, HRESULT (Interface::*getter)(ZELListPtrIUnknown*)) {
    List<T> list;
    list.AppendBy([&](ZELListPtrIUnknown& entries) { return (object.*getter)(&entries); });
    return list;
}
template <class T, class Object, class Interface>
List<T> All(Object& object, HRESULT (Interface::*getter)(ZELListPtrIUnknown&)) {
    List<T> list;
    list.AppendBy([&](ZELListPtrIUnknown& entries) { return (object.*getter)(entries); });
    return list;
}

/// Makes what \p creator makes, under that name and UUID. Null when it refuses; where only the UUID is taken,
/// packages and classes keep what they made, which is then registered nowhere.
///
///     zandic::Create(package, &OXMIDicPackage::CreateClass, "Part", zandic::NewUuid())
template <class Object, class Interface, class Made>
Handle<Made> Create(Object& object,
                    HRESULT (Interface::*creator)(const ZELString*, const ZELDbBinary*, Made**),
                    std::string_view name, const ZELDbBinary& uuid) {
    const ZELString key(name);
    Handle<Made> made;
    if (Failed((object.*creator)(&key, &uuid, made.Out()))) made.Reset();
    return made;
}

/// Gives \p text to a setter of texts. \returns its result.
template <class Object, class Interface>
HRESULT Set(Object& object, HRESULT (Interface::*setter)(const ZELUnicodeString*), std::string_view text) {
    const ZELUnicodeString value(text);
    return (object.*setter)(&value);
}
template <class Object, class Interface>
HRESULT Set(Object& object, HRESULT (Interface::*setter)(const ZELString*), std::string_view text) {
    const ZELString value(text);
    return (object.*setter)(&value);
}

}  // namespace zandic

#endif
