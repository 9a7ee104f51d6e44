#ifndef CALLER_H
#define CALLER_H

#include <string>
#include <string_view>
#include <vector>

#include "FuzzBytes.h"
#include "OXMIDicMgr.h"
#include "ZELDbBinary.h"
#include "ZELListPtr.h"
#include "ZELListVal.h"
#include "ZELString.h"
#include "ZELUnicodeString.h"

/// A program that uses the dictionary as an input says: what it holds of it, and what it passes to a call.
///
/// It keeps the rules that callers have to keep, and no others: what it passes is null or valid, a reference
/// is given back once, and what it holds may be removed or unloaded meanwhile.
class Caller {
public:
    /// What calls give, and what later calls may be given again; two of each, so that the arguments of one
    /// call can be the same.
    static constexpr int kPlaces = 2;

    /// \param readable a directory of documents; their package names are \p packages.
    /// \param writable a directory for what is saved; read as well.
    Caller(std::string_view input, OXMIDicMgr& manager, const std::string& readable,
           const std::vector<std::string>& packages, const std::string& writable);
    ~Caller();
    Caller(const Caller&) = delete;
    Caller& operator=(const Caller&) = delete;

    FuzzBytes& Bytes() { return _Bytes; }
    OXMIDicMgr& Manager() { return _Manager; }

    /// Takes over one reference: holds it, or gives it back at once.
    void Take(IUnknown* face);
    /// The same for every entry of both lists, which are empty after that.
    void TakeLists();

    /// \returns a held object's interface of the identifier \p id, with a reference for the caller; null when
    /// none has it.
    IUnknown* Pick(const ZELInterfaceId& id);

    void LetGoOfOne();
    void LetGoOfAll();
    /// Asks a held object for any interface, and takes it.
    void Ask();
    /// Makes an object of a kind that no factory makes, and leaves it to the registry or not.
    void Construct();

    /// \returns null, a place, or \p own after it was given a value.
    const ZELString* Text(ZELString& own);
    const ZELUnicodeString* Unicode(ZELUnicodeString& own);
    const ZELDbBinary* Uuid(ZELDbBinary& own);
    const char* Directory(std::string& own);
    /// \returns a place; null at times.
    ZELString* TextPlace() { return Place(_TEXTS); }
    ZELUnicodeString* UnicodePlace() { return Place(_UNICODES); }
    ZELDbBinary* UuidPlace() { return Place(_UUIDS); }
    ZELListPtrIUnknown* ListPlace() { return Place(_LISTS); }
    ZELListValZELString* TextListPlace() { return Place(_TEXTLISTS); }
    ZELListValZELUnicodeString* UnicodeListPlace() { return Place(_UNICODELISTS); }
    /// As those, never null.
    ZELUnicodeString& UnicodeReference() { return _UNICODES[_Bytes.Below(kPlaces)]; }
    ZELListPtrIUnknown& ListReference() { return _LISTS[_Bytes.Below(kPlaces)]; }
    ZELListValZELUnicodeString& UnicodeListReference() { return _UNICODELISTS[_Bytes.Below(kPlaces)]; }

    /// Whether an argument is null.
    bool DrawsNull() { return _Bytes.Below(kOneIn) == kOneIn - 1; }
    int DrawNumber();

private:
    static constexpr std::size_t kOneIn = 16;
    static constexpr std::size_t kMostHeld = 48;

    template <class T>
    T* Place(T (&places)[kPlaces]) {
        const std::size_t drawn = _Bytes.Below(kOneIn);
        return drawn == kOneIn - 1 ? nullptr : &places[drawn % kPlaces];
    }
    std::string DrawText();
    ZELDbBinary DrawUuid();
    template <class Object>
    void Construct(const ZELString& name);

    FuzzBytes _Bytes;
    OXMIDicMgr& _Manager;
    const std::string& _Readable;
    const std::vector<std::string>& _PACKAGES;
    const std::string& _Writable;
    std::vector<IUnknown*> _HELD;  ///< a reference to each

    ZELString _TEXTS[kPlaces];
    ZELUnicodeString _UNICODES[kPlaces];
    ZELDbBinary _UUIDS[kPlaces];
    ZELListPtrIUnknown _LISTS[kPlaces];
    ZELListValZELString _TEXTLISTS[kPlaces];
    ZELListValZELUnicodeString _UNICODELISTS[kPlaces];
};

#endif
