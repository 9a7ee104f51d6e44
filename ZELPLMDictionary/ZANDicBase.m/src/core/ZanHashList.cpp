#include "ZanHashList.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "ZELArray.h"
#include "ZanDicLink.h"
#include "ZanDicObj.h"
#include "ZanDicTrace.h"

namespace {

/// Up to so many objects are searched one by one.
constexpr int kSmall = 8;
constexpr int kNone = -1;

}  // namespace

/// Entries in order of insertion. A removed one stays behind as a gap until the list is packed; gaps at both
/// ends are not walked over. In a list that does not own, each entry has a link beside it that tells
/// whether the object is still there: the pointer itself is then never followed.
struct ZanHashList::Store {
    struct Entry {
        ZELString key;  ///< the object's name when it was appended
        ZanDicObj* object;
    };
    struct Slot {
        std::uint32_t hash;
        int entry;  ///< kNone for a free slot
    };

    constexpr explicit Store(ZanHashListKind listKind) noexcept : kind(listKind) {}

    ZELArray<Entry> entries;
    ZELArray<ZanDicLink<ZanDicObj>> links;  ///< same index as the entries; empty in a list that owns
    ZELArray<Slot> index;                   ///< by key, a power of two of slots; empty while small
    int first = 0;                          ///< what is before it are gaps
    int gaps = 0;                           ///< the gaps behind it
    int lost = 0;                           ///< entries that were dropped since their object is gone
    std::uint64_t seenLostCount = 0;        ///< nothing has gone since the count of lost links was this
    ZanHashListKind kind;

    int End() const { return entries.Size(); }
    int Count() const { return End() - first - gaps; }
    bool IsGone(int at) const { return kind == ZanHashListKind::Links && !links[at]; }

    void Append(const ZELString& key, ZanDicObj* object) {
        entries.Append({key, object});
        if (kind == ZanHashListKind::Links) links.Append(ZanDicLink<ZanDicObj>(object));
        if (index.Size() == 0 ? End() - first > kSmall : End() > MostEntries(index.Size())) {
            Pack();
        } else if (index.Size() != 0) {
            Enter(End() - 1);
        }
    }

    /// \returns the entry of that key; one whose object is gone is dropped, since its name is free.
    int Find(const ZELString& key) {
        const int at = FindEntry(key);
        if (at == kNone || !IsGone(at)) return at;
        ++lost;
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
        if (index.Size() != 0) Leave(at);
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
        if (count > index.Size()) MakeIndex(count);
    }

private:
    /// How many entries an index of so many slots takes before it grows.
    static int MostEntries(int slots) { return slots / 4 * 3; }

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
                ++lost;
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
        index.Clear();
        if (count <= kSmall) return;
        int slots = 2 * kSmall;
        while (MostEntries(slots) < count) slots *= 2;
        index.Reserve(slots);
        while (index.Size() < slots) index.Append({0, kNone});
        for (int at = first; at < End(); ++at) {
            if (entries[at].object != nullptr) Enter(at);
        }
    }

    int FindEntry(const ZELString& key) const {
        const std::uint32_t hash = key.ComputeHashKey();  // a name keeps it: cheaper than comparing texts
        if (index.Size() == 0) {
            for (int at = first; at < End(); ++at) {
                if (Is(at, hash, key)) return at;
            }
            return kNone;
        }
        for (int slot = Home(hash); index[slot].entry != kNone; slot = Next(slot)) {
            if (index[slot].hash == hash && entries[index[slot].entry].key == key) return index[slot].entry;
        }
        return kNone;
    }

    bool Is(int at, std::uint32_t hash, const ZELString& key) const {
        const Entry& entry = entries[at];
        return entry.object != nullptr && entry.key.ComputeHashKey() == hash && entry.key == key;
    }

    int Mask() const { return index.Size() - 1; }
    int Next(int slot) const { return (slot + 1) & Mask(); }
    int Home(std::uint32_t hash) const { return static_cast<int>(hash * 0x9E3779B1U >> 1) & Mask(); }

    void Enter(int at) {
        const std::uint32_t hash = entries[at].key.ComputeHashKey();
        int slot = Home(hash);
        while (index[slot].entry != kNone) slot = Next(slot);
        index[slot] = {hash, at};
    }

    /// Takes an entry out of the index and closes the gap, so that searches need no marks.
    void Leave(int at) {
        int gap = Home(entries[at].key.ComputeHashKey());
        while (index[gap].entry != at) gap = Next(gap);
        for (int slot = Next(gap); index[slot].entry != kNone; slot = Next(slot)) {
            const int fromHome = (slot - Home(index[slot].hash)) & Mask();
            if (fromHome < ((slot - gap) & Mask())) continue;
            index[gap] = index[slot];
            gap = slot;
        }
        index[gap].entry = kNone;
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

HRESULT ZanHashList::Append(ZanDicObj* object) {
    static constexpr ZanDicTraceScope trace("ZanHashList::Append");
    trace.Start();
    if (object == nullptr) {
        trace.Error("*** ERROR *** Input argument is NULL");
        return trace.Exit(E_FAIL);
    }
    if (auto line = trace.Line(TraceLevel::Call)) {
        line << "appending object:" << object->Name() << ", @=" << object;
    }
    if (_STORE->Find(object->Name()) != kNone) {
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

int ZanHashList::lost_Count() const {
    _STORE->DropLost();
    return _STORE->lost;
}

void ZanHashList::reserve(int count) {
    if (count > 0) make_Store().Reserve(count);
}
