#include "ZanHashList.h"

#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <utility>

#include "ZELArray.h"
#include "ZELPool.h"
#include "ZanDicLink.h"
#include "ZanDicObj.h"
#include "ZanDicTrace.h"

namespace {

/// Up to so many objects are searched one by one.
constexpr int kSmall = 8;
constexpr int kNone = -1;

/// Where the entries of a list stand, by the hashes of their keys: a power of two of slots, at most three
/// quarters of them taken. A slot is one number, the entry's and above it as many bits of the hash as there
/// is room for, so that few entries are looked at in vain; two bytes in lists of a few hundred entries, else
/// four.
class SlotIndex {
public:
    constexpr SlotIndex() noexcept = default;
    SlotIndex(const SlotIndex& other) : SlotIndex() {
        if (other._SLOTS == nullptr) return;
        allocate(other._Bits);
        std::memcpy(_SLOTS, other._SLOTS, Bytes());
    }
    SlotIndex& operator=(const SlotIndex&) = delete;
    ~SlotIndex() { Clear(); }

    bool IsEmpty() const { return _SLOTS == nullptr; }

    /// How many entries there may be before the index must be made anew.
    int MostEntries() const { return IsEmpty() ? 0 : Slots() / 4 * 3; }

    void Clear() {
        if (_SLOTS != nullptr) ZELPoolFree(std::exchange(_SLOTS, nullptr), Bytes());
        _Bits = 0;
    }

    /// Empties the index and makes room for \p count entries.
    void Make(int count) {
        Clear();
        unsigned bits = 4;
        while ((1 << bits) / 4 * 3 < count) ++bits;
        allocate(bits);
        std::memset(_SLOTS, 0, Bytes());
    }

    void Enter(std::uint32_t hash, int entry) {
        int slot = Home(hash);
        while (At(slot) != 0) slot = Next(slot);
        Set(slot, Mark(hash) | static_cast<std::uint32_t>(entry + 1));
    }

    /// \returns the first entry of that hash, or one alike, for which \p matches(entry) holds; kNone for
    /// none.
    template <class Matches>
    int Find(std::uint32_t hash, const Matches& matches) const {
        const std::uint32_t mark = Mark(hash);
        for (int slot = Home(hash);; slot = Next(slot)) {
            const std::uint32_t found = At(slot);
            if (found == 0) return kNone;
            if ((found ^ mark) >> _Bits == 0 && matches(EntryIn(found))) return EntryIn(found);
        }
    }

    /// Takes an entry out and closes the gap, so that searches need no marks. \param hashOf gives the hash of
    /// an entry.
    template <class HashOf>
    void Leave(int entry, const HashOf& hashOf) {
        int gap = Home(hashOf(entry));
        while (EntryIn(At(gap)) != entry) gap = Next(gap);
        for (int slot = Next(gap); At(slot) != 0; slot = Next(slot)) {
            const int fromHome = (slot - Home(hashOf(EntryIn(At(slot))))) & (Slots() - 1);
            if (fromHome < ((slot - gap) & (Slots() - 1))) continue;
            Set(gap, At(slot));
            gap = slot;
        }
        Set(gap, 0);
    }

private:
    static constexpr unsigned kMostNarrowBits = 9;

    bool IsNarrow() const { return _Bits <= kMostNarrowBits; }
    int Slots() const { return 1 << _Bits; }
    std::size_t Bytes() const {
        return (std::size_t{1} << _Bits) * (IsNarrow() ? sizeof(std::uint16_t) : sizeof(std::uint32_t));
    }
    int Next(int slot) const { return (slot + 1) & (Slots() - 1); }
    int Home(std::uint32_t hash) const { return static_cast<int>(hash * 0x9E3779B1U >> (32 - _Bits)); }
    /// The low bits of the hash, above those of the entry.
    std::uint32_t Mark(std::uint32_t hash) const {
        return IsNarrow() ? (hash << _Bits) & 0xFFFFU : hash << _Bits;
    }
    int EntryIn(std::uint32_t slot) const { return static_cast<int>(slot & ((1U << _Bits) - 1)) - 1; }

    std::uint32_t At(int slot) const {
        return IsNarrow() ? static_cast<const std::uint16_t*>(_SLOTS)[slot]
                          : static_cast<const std::uint32_t*>(_SLOTS)[slot];
    }
    void Set(int slot, std::uint32_t value) {
        if (IsNarrow()) {
            static_cast<std::uint16_t*>(_SLOTS)[slot] = static_cast<std::uint16_t>(value);
        } else {
            static_cast<std::uint32_t*>(_SLOTS)[slot] = value;
        }
    }

    void allocate(unsigned bits) {
        const std::size_t width = bits <= kMostNarrowBits ? sizeof(std::uint16_t) : sizeof(std::uint32_t);
        _SLOTS = ZELPoolAllocate((std::size_t{1} << bits) * width);
        _Bits = bits;
    }

    void* _SLOTS = nullptr;  ///< owned; null while there is no index
    unsigned _Bits = 0;      ///< of the number of slots
};

}  // namespace

/// Entries in order of insertion. A removed one stays behind as a gap until the list is packed; gaps at both
/// ends are not walked over. In a list that does not own, each entry has a link beside it that tells
/// whether the object is still there: the pointer itself is then never followed.
struct ZanHashList::Store : ZELPooled {
    struct Entry {
        ZELString key;  ///< the object's name when it was appended
        ZanDicObj* object;
    };

    constexpr explicit Store(ZanHashListKind listKind) noexcept : kind(listKind) {}

    ZELArray<Entry> entries;
    ZELArray<ZanDicLink<ZanDicObj>> links;  ///< same index as the entries; empty in a list that owns
    SlotIndex index;                        ///< by key; empty while small
    int first = 0;                          ///< what is before it are gaps
    int gaps = 0;                           ///< the gaps behind it
    ZELArray<ZELString> lost;               ///< keys of objects that went
    std::uint64_t seenLostCount = 0;        ///< nothing has gone since the count of lost links was this
    ZanHashListKind kind;

    int End() const { return entries.Size(); }
    int Count() const { return End() - first - gaps; }
    bool IsGone(int at) const { return kind == ZanHashListKind::Links && !links[at]; }

    void Append(const ZELString& key, ZanDicObj* object) {
        for (int at = lost.Size() - 1; at >= 0; --at) {
            if (lost[at] == key) lost.EraseAt(at);
        }
        entries.Append({key, object});
        if (kind == ZanHashListKind::Links) links.Append(ZanDicLink<ZanDicObj>(object));
        if (index.IsEmpty() ? End() - first > kSmall : End() > index.MostEntries()) {
            Pack();
        } else if (!index.IsEmpty()) {
            index.Enter(HashOf(End() - 1), End() - 1);
        }
    }

    /// \returns the entry of that key; one whose object is gone is dropped, since its name is free.
    int Find(const ZELString& key) {
        const int at = FindEntry(key);
        if (at == kNone || !IsGone(at)) return at;
        lost.Append(key);
        RemoveAt(at);
        return kNone;
    }

    /// \returns the entry of that very object.
    int Find(const ZanDicObj& object) {
        const int named = Find(object.Name());
        if (named != kNone && entries[named].object == &object) return named;
        for (int at = first; at < End(); ++at) {  // renamed since
            if (entries[at].object == &object && !IsGone(at)) return at;
        }
        return kNone;
    }

    void RemoveAt(int at) {
        if (!index.IsEmpty()) index.Leave(at, [this](int entry) { return HashOf(entry); });
        entries[at] = {ZELString(), nullptr};
        if (kind == ZanHashListKind::Links) links[at].Reset();
        ++gaps;
        while (gaps != 0 && entries[End() - 1].object == nullptr) DropLast();
        for (; gaps != 0 && entries[first].object == nullptr; ++first) --gaps;
        if (gaps + first > kSmall && gaps + first > End() / 2) Pack();
    }

    /// Makes the entries from `first` on what callers see.
    void Settle() {
        if (gaps != 0) Pack();
    }

    /// Drops the entries of objects that are gone.
    void DropLost() {
        if (kind == ZanHashListKind::Links && seenLostCount != ZanDicLinkBase::LostCount()) Pack();
    }

    void Reserve(int count) {
        entries.Reserve(count);
        if (kind == ZanHashListKind::Links) links.Reserve(count);
        if (count > index.MostEntries()) MakeIndex(count);
    }

private:
    std::uint32_t HashOf(int at) const { return entries[at].key.ComputeHashKey(); }  // a name keeps it

    void DropLast() {
        entries.Truncate(End() - 1);
        if (kind == ZanHashListKind::Links) links.Truncate(End());
        --gaps;
    }

    void Pack() {
        const bool hasLinks = kind == ZanHashListKind::Links;
        int kept = 0;
        for (int at = first; at < End(); ++at) {
            if (entries[at].object == nullptr) continue;
            if (IsGone(at)) {
                lost.Append(std::move(entries[at].key));
                continue;
            }
            if (kept != at) {
                entries[kept] = std::move(entries[at]);
                if (hasLinks) links[kept] = std::move(links[at]);
            }
            ++kept;
        }
        entries.Truncate(kept);
        links.Truncate(hasLinks ? kept : 0);
        first = gaps = 0;
        seenLostCount = ZanDicLinkBase::LostCount();
        MakeIndex(kept);
    }

    /// Enters all entries anew, with room for \p count.
    void MakeIndex(int count) {
        if (count <= kSmall) return index.Clear();
        index.Make(count);
        for (int at = first; at < End(); ++at) {
            if (entries[at].object != nullptr) index.Enter(HashOf(at), at);
        }
    }

    int FindEntry(const ZELString& key) const {
        const std::uint32_t hash = key.ComputeHashKey();  // a name keeps it: cheaper than comparing texts
        if (!index.IsEmpty()) return index.Find(hash, [&](int at) { return entries[at].key == key; });
        for (int at = first; at < End(); ++at) {
            if (entries[at].object != nullptr && HashOf(at) == hash && entries[at].key == key) return at;
        }
        return kNone;
    }
};

ZanHashList::Store* ZanHashList::empty_Store(ZanHashListKind kind) noexcept {
    /// Never destroyed: lists may outlive whatever is destroyed at exit.
    union Immortal {
        constexpr explicit Immortal(ZanHashListKind listKind) noexcept : store(listKind) {}
        ~Immortal() {}
        Store store;
    };
    static constinit Immortal links(ZanHashListKind::Links);
    static constinit Immortal owner(ZanHashListKind::Owner);
    return kind == ZanHashListKind::Owner ? &owner.store : &links.store;
}

ZanHashList::Store& ZanHashList::make_Store() {
    if (_STORE == empty_Store(_STORE->kind)) _STORE = new Store(_STORE->kind);
    return *_STORE;
}

ZanHashList::ZanHashList(int /*size*/, ZanHashListKind kind) : _STORE(empty_Store(kind)) {}

ZanHashList::ZanHashList(const ZanHashList& other)
    : _STORE(other._STORE->End() != 0 ? new Store(*other._STORE) : empty_Store(other._STORE->kind)) {}

ZanHashList& ZanHashList::operator=(const ZanHashList& other) {
    ZanHashList copy(other);
    std::swap(_STORE, copy._STORE);
    return *this;
}

ZanHashList::~ZanHashList() { clear(); }

ZanDicObj* ZanHashList::operator[](int position) const {
    if (position < 1 || position > Size()) return nullptr;
    _STORE->Settle();
    return _STORE->entries[_STORE->first + position - 1].object;
}

int ZanHashList::Size() const {
    _STORE->DropLost();
    return _STORE->Count();
}

int ZanHashList::LostCount() const {
    _STORE->DropLost();
    return _STORE->lost.Size();
}

HRESULT ZanHashList::Append(ZanDicObj* object) { return append_Object(object, false); }

HRESULT ZanHashList::append_New(ZanDicObj& object) { return append_Object(&object, true); }

HRESULT ZanHashList::append_Object(ZanDicObj* object, bool isNew) {
    static constexpr ZanDicTraceScope trace("ZanHashList::Append");
    trace.Start();
    if (object == nullptr) {
        trace.Error("*** ERROR *** Input argument is NULL");
        return trace.Exit(E_FAIL);
    }
    if (auto line = trace.Line(TraceLevel::Call)) {
        line << "appending object:" << object->Name() << ", @=" << object;
    }
    if (!isNew && _STORE->Find(object->Name()) != kNone) {
        trace.Error("*** ERROR *** Could not insert in ZELHASH_ZanDicObj");
        return trace.Exit(E_FAIL);
    }
    make_Store().Append(object->Name(), object);
    return trace.Exit(S_OK);
}

HRESULT ZanHashList::Append(const ZanHashList& other) {
    static constexpr ZanDicTraceScope trace("ZanHashList::Append(ZanHashList)");
    trace.Start();
    HRESULT rc = S_OK;
    const int count = other.Size();  // a list may be appended to itself
    for (int position = 1; position <= count; ++position) rc |= Append(other[position]);
    return trace.Exit(rc);
}

HRESULT ZanHashList::Remove(const ZELString& name) {
    static constexpr ZanDicTraceScope trace("ZanHashList::Remove");
    trace.Start("=== start === ");
    std::optional<ZanDicObj> probe;  // lives until the exit line is written
    if (ZanDicTrace::MayWrite(TraceLevel::Call) && ZanDicObj::shows_Probe()) probe.emplace().SetName(&name);

    const int at = _STORE->Find(name);
    ZanDicObj* const object = at != kNone ? _STORE->entries[at].object : nullptr;
    if (auto line = trace.Line(TraceLevel::Call)) line << "removing object:" << name << ", @=" << object;
    if (object != nullptr) _STORE->RemoveAt(at);
    return trace.Exit(object != nullptr ? S_OK : E_FAIL);
}

HRESULT ZanHashList::RemoveAll() {
    static constexpr ZanDicTraceScope trace("ZanHashList::RemoveAll");
    const auto sizes = [this] {
        const std::string size = std::to_string(Size());
        return "_HASH.Size()=" + size + ", _LISTP.Size()=" + size;
    };
    trace.Start("=== start === ");
    if (auto line = trace.Line(TraceLevel::Call)) line << sizes();
    // Deliberate: written at every level, without separator and stop
    // (ZanHashListTest.RemoveAllAlwaysWritesItsLine).
    ZanDicWriteAlways("ZanHashList::RemoveAll " + sizes());
    clear();
    if (auto line = trace.Line(TraceLevel::Call)) line << sizes();
    return trace.Exit(S_OK);
}

HRESULT ZanHashList::Search(const ZELString& name, ZanDicObj** found) const {
    if (ZanDicTrace::MayWrite(TraceLevel::Call) && ZanDicObj::shows_Probe()) ZanDicObj::make_SharedProbe();
    const int at = _STORE->Find(name);
    if (at == kNone || found == nullptr) return E_FAIL;
    *found = _STORE->entries[at].object;
    return S_OK;
}

bool ZanHashList::take_Object(const ZanDicObj* object) {
    if (object == nullptr) return false;
    const int at = _STORE->Find(*object);
    if (at == kNone) return false;
    _STORE->RemoveAt(at);
    return true;
}

void ZanHashList::clear() {
    Store* const empty = empty_Store(_STORE->kind);
    if (_STORE != empty) delete std::exchange(_STORE, empty);
}

void ZanHashList::reserve(int count) {
    if (count > 0) make_Store().Reserve(count);
}
