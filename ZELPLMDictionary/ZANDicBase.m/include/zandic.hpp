/// A thin layer for C++ programs over the interfaces of the dictionary: handles that give their reference
/// back, lists for range-for, results with a text, getters as values, casts by query.
///
/// Nothing here costs more than the calls that it wraps: no allocation of its own, no virtual operation,
/// everything inline. It can be mixed with direct calls at any point. Include the header of each interface
/// whose operations you name (`OXMIDicClass.h` and so on). One thread, as the dictionary itself.
#ifndef ZANDIC_HPP
#define ZANDIC_HPP

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

#include "GetOXMIDicMgr.h"
#include "HexToBinary.h"
#include "OXMIDicAttribute.h"
#include "OXMIDicElement.h"
#include "OXMIDicPackage.h"

namespace zandic {

/// Result of an operation: its code, and what that means in a few words.
class Result {
public:
    constexpr Result(HRESULT code) noexcept : _Code(code) {}

    constexpr HRESULT Code() const noexcept { return _Code; }

    /// \returns whether it is a success; "nothing found" is one.
    constexpr explicit operator bool() const noexcept { return Succeeded(_Code); }

    /// \returns static text, never empty.
    constexpr std::string_view Text() const noexcept {
        switch (_Code) {
            case S_OK:
                return "done";
            case S_FALSE:
                return "nothing found";
            case E_FAIL:
                return "refused";
            case E_INVALIDARG:
                return "an argument is missing";
            case E_NOINTERFACE:
                return "the object lacks the interface";
            default:
                return Succeeded(_Code) ? "done in a way of its own" : "failed for an unknown reason";
        }
    }

    friend constexpr bool operator==(Result a, Result b) noexcept = default;

private:
    HRESULT _Code;
};

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
    Result AppendBy(Fill&& fill) {
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

/// Identity of an object. A name and a UUID may be empty.
inline ZELString Name(OXMIDicElementH& object) {
    ZELString name;
    object.GetName(&name);
    return name;
}
inline ZELDbBinary Uuid(OXMIDicElementH& object) {
    ZELDbBinary uuid;
    object.GetUuid(&uuid);
    return uuid;
}
inline OXMDicTYPE Kind(OXMIDicElementH& object) {
    OXMDicTYPE kind = OXMDicTYPE_UNDEFINED;
    object.GetType(&kind);
    return kind;
}

/// \returns what types the attribute: a primitive, an enumeration or a class; null without a type.
inline Handle<OXMIDicElement> TypeOf(OXMIDicAttribute& attribute) {
    Handle<OXMIDicElement> type;
    attribute.GetType(type.Out());
    return type;
}

/// The free attributes of an object, in order, for range-for: pairs of name and value.
class FreeAttributes {
public:
    struct Pair {
        std::string_view name;
        std::string_view value;
    };

    class Iterator {
    public:
        Iterator(const FreeAttributes& all, int position) noexcept : _All(&all), _Position(position) {}

        Pair operator*() const noexcept {
            return {_All->_NAMES[_Position].View(), _All->_VALUES[_Position].View()};
        }
        Iterator& operator++() noexcept {
            ++_Position;
            return *this;
        }
        friend bool operator==(const Iterator& a, const Iterator& b) noexcept {
            return a._Position == b._Position;
        }

    private:
        const FreeAttributes* _All;
        int _Position;
    };

    explicit FreeAttributes(OXMIDicElementH& object) { object.GetAllOtherAttributes(_NAMES, _VALUES); }

    int Size() const noexcept { return _NAMES.Size(); }
    Iterator begin() const noexcept { return {*this, 1}; }
    Iterator end() const noexcept { return {*this, Size() + 1}; }

private:
    ZELListValZELUnicodeString _NAMES;
    ZELListValZELUnicodeString _VALUES;
};

/// The text of a UUID: 35 characters, or "UNDEFINED" when it is empty.
class UuidText {
public:
    static constexpr int kLength = 35;

    explicit UuidText(const ZELDbBinary& uuid) noexcept : _Empty(uuid.Length() < ZELDbBinary::kCapacity) {
        if (_Empty) return;
        unsigned char bytes[ZELDbBinary::kCapacity];
        std::copy_n(uuid.Data(), ZELDbBinary::kCapacity, bytes);
        UuidBinToHexa(bytes, ZELDbBinary::kCapacity, _Text, kLength + 1);
    }

    /// \returns the text; valid while this object lives.
    std::string_view View() const noexcept {
        return _Empty ? std::string_view("UNDEFINED")
                      : std::string_view(reinterpret_cast<const char*>(_Text), kLength);
    }

private:
    unsigned char _Text[kLength + 1] = {};
    bool _Empty;
};

/// Reads a UUID: 32 hexadecimal digits of either case; single dashes may stand between bytes.
/// \returns none for anything else.
inline std::optional<ZELDbBinary> ParseUuid(std::string_view text) {
    int digits = 0;
    bool dash = true;  // none may stand first
    for (const char c : text) {
        const bool isDigit = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
        if (isDigit ? digits == 2 * ZELDbBinary::kCapacity : c != '-' || dash || digits % 2 != 0) {
            return std::nullopt;
        }
        digits += isDigit ? 1 : 0;
        dash = !isDigit;
    }
    if (digits != 2 * ZELDbBinary::kCapacity || dash) return std::nullopt;
    ZELString digitText(text);
    ZELDbBinary uuid;
    UuidHexToBinary(&digitText, &uuid);
    return uuid;
}

/// The dictionary of the process, ready for use. Null when no dictionary library is loaded.
class Dictionary {
public:
    /// Makes the dictionary ready; calling it again changes nothing.
    static Dictionary Open() {
        Dictionary dictionary;
        if (Failed(GetOXMIDicMgr(dictionary._Manager.Out())) || Failed(dictionary._Manager->Init(0))) {
            dictionary._Manager.Reset();
        }
        return dictionary;
    }

    explicit operator bool() const noexcept { return static_cast<bool>(_Manager); }

    /// \returns the manager, for whatever is not wrapped here.
    OXMIDicMgr& Manager() const noexcept { return *_Manager; }

    /// Loads a package, and before it every package that it uses, from their documents.
    /// \param directories separated by ":"; null means the environment variable `ZELDictionaryPath`.
    Result Load(std::string_view package, const char* directories = nullptr) const {
        const ZELString name(package);
        return _Manager->LoadPackageFromDir(directories, &name, OXMDicPERSISTENT_Xml);
    }

    /// \returns the loaded package of that name, a content word behind it aside; null when there is none.
    Handle<OXMIDicPackage> Package(std::string_view name) const {
        return Find(*_Manager, &OXMIDicMgr::GetPackage, name);
    }

    /// \returns the loaded packages of a domain, in the order of creation.
    List<OXMIDicPackage> Packages(std::string_view domain) const {
        const ZELString name(domain);
        List<OXMIDicPackage> packages;
        packages.AppendBy(
            [&](ZELListPtrIUnknown& entries) { return _Manager->GetPackages(&name, &entries); });
        return packages;
    }

    /// \returns the registered object of that UUID, whatever its kind; null when there is none.
    Handle<OXMIDicElementH> Search(const ZELDbBinary& uuid) const {
        Handle<OXMIDicElementH> object;
        _Manager->Search(&uuid, object.Out());
        return object;
    }

private:
    Handle<OXMIDicMgr> _Manager;
};

}  // namespace zandic

#endif
