#include "ZanHashList.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "ZELArray.h"
#include "ZELPool.h"
#include "ZanDicLink.h"
#include "ZanDicObj.h"
#include "ZanDicTaken.h"
#include "ZanDicTrace.h"

namespace {

constexpr int kNone = -1;
constexpr int kFirstRoom = 4;  ///< of a list of which nobody said how long it gets

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
    ~SlotIndex() {
        if (_SLOTS != nullptr) ZELPoolFree(_SLOTS, Bytes());
    }

    /// An empty index with room for \p count entries.
    explicit SlotIndex(int count) : SlotIndex() {
        unsigned bits = 4;
        while ((1 << bits) / 4 * 3 < count) ++bits;
        allocate(bits);
        Empty();
    }

    void Swap(SlotIndex& other) noexcept {
        std::swap(_SLOTS, other._SLOTS);
        std::swap(_Bits, other._Bits);
    }

    void Empty() { std::memset(_SLOTS, 0, Bytes()); }

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

/// Which of many tags are the wanted one.
class TagSet {
public:
    static constexpr int kGroup = 16;

    /// \returns the tag of a key of that hash: a byte that is never 0, which is what free places have.
    static std::uint8_t TagOf(std::uint32_t hash) {
        const auto high = static_cast<std::uint8_t>(hash >> 24);
        return high != 0 ? high : std::uint8_t{1};
    }

    /// \returns a number with a bit set for each of the \p count tags, a multiple of the group and 64 at the
    /// most, that is \p tag.
    static std::uint64_t Find(const std::uint8_t* tags, int count, std::uint8_t tag) {
        std::uint64_t found = FindInGroup(tags, tag);
        for (int at = kGroup; at < count; at += kGroup) found |= FindInGroup(tags + at, tag) << at;
        return found;
    }

private:
#if defined(__SSE2__)
    static std::uint64_t FindInGroup(const std::uint8_t* tags, std::uint8_t tag) {
        const __m128i all = _mm_loadu_si128(reinterpret_cast<const __m128i*>(tags));
        const __m128i same = _mm_cmpeq_epi8(all, _mm_set1_epi8(static_cast<char>(tag)));
        return static_cast<std::uint32_t>(_mm_movemask_epi8(same));
    }
#else
    static std::uint64_t FindInGroup(const std::uint8_t* tags, std::uint8_t tag) {
        std::uint64_t found = 0;
        for (int at = 0; at < kGroup; ++at) found |= std::uint64_t{tags[at] == tag} << at;
        return found;
    }
#endif
};

}  // namespace

/// The one block that a list with objects has: this head, the tags of the keys, and the entries in order of
/// insertion. So a search reads three lines of the cache, and then the key's text and the object at once. The
/// tags are looked through all together, without a branch that could be guessed wrong; lists too long for
/// that have an index instead.
///
/// A removed entry stays behind as a gap until the list is packed; gaps at both ends are not walked over. In
/// a list that does not own, each entry has a link beside it that tells whether the object is still there:
/// the pointer itself is then never followed.
struct ZanHashList::Store {
    struct Entry {
        ZELString key;  ///< the object's name when it was appended
        ZanDicObj* object;
    };

    /// What few lists need.
    struct Extra : ZELPooled {
        ZELArray<ZanDicLink<ZanDicObj>> links;  ///< same index as the entries; empty in a list that owns
        SlotIndex index;                        ///< by key; none while there are tags
        ZELArray<ZELString> lost;               ///< keys of objects that went
        std::uint64_t seenLostCount = 0;        ///< nothing has gone since the count of lost links was this
    };

    static constexpr int kMostTags = 64;

    constexpr Store(ZanHashListKind listKind, int room) noexcept
        : kind(listKind), tagGroups(GroupsFor(listKind, room)), capacity(room) {}

    union {
        Extra* extra = nullptr;  ///< owned; there in each list that does not own
        Store* nextTaken;        ///< once it was taken from its list: the one taken next
    };
    ZanHashListKind kind;
    std::uint8_t tagGroups;  ///< of 16 tags; 0 where the index is
    int capacity;            ///< how many entries there is room for
    int end = 0;             ///< index behind the last entry
    int first = 0;           ///< what is before it are gaps
    int gaps = 0;            ///< the gaps behind it

    /// \returns an empty store with room for \p capacity entries, the caller's to give to Destroy.
    static Store* Create(ZanHashListKind kind, int capacity) {
        std::unique_ptr<Extra> extra;
        const bool hasIndex = NeedsIndex(kind, capacity);
        if (kind == ZanHashListKind::Links || hasIndex) extra = std::make_unique<Extra>();
        if (hasIndex) SlotIndex(capacity).Swap(extra->index);
        Store* const made = ::new (ZELPoolAllocate(BytesFor(kind, capacity))) Store(kind, capacity);
        made->extra = extra.release();
        std::memset(made->Tags(), 0, static_cast<std::size_t>(made->TagCount()));
        return made;
    }

    static void Destroy(Store* store) noexcept {
        delete store->extra;
        DestroyTaken(store);
    }

    /// Destroys a store that has no extra any more.
    static void DestroyTaken(Store* store) noexcept {
        std::destroy_n(store->Entries(), store->end);
        ZELPoolFree(store, BytesFor(store->kind, store->capacity));
    }

    /// \returns a store with more room that has taken over all that \p store has, which is no more. When
    /// memory is short, \p store is as it was.
    static Store* MoveTo(int capacity, Store* store) {
        SlotIndex index;
        std::unique_ptr<Extra> extra;
        const bool hasIndex = NeedsIndex(store->kind, capacity);
        if (hasIndex) {
            if (store->extra == nullptr) extra = std::make_unique<Extra>();
            SlotIndex(capacity).Swap(index);
        }
        Store* const moved =
            ::new (ZELPoolAllocate(BytesFor(store->kind, capacity))) Store(store->kind, capacity);
        moved->extra = extra != nullptr ? extra.release() : std::exchange(store->extra, nullptr);
        if (hasIndex) moved->extra->index.Swap(index);
        std::uninitialized_move_n(store->Entries(), store->end, moved->Entries());
        moved->end = store->end;
        moved->first = store->first;
        moved->gaps = store->gaps;
        Destroy(store);
        moved->EnterAll();
        return moved;
    }

    Store* Copy() const {
        std::unique_ptr<Extra> copied(extra != nullptr ? new Extra(*extra) : nullptr);
        Store* const made = ::new (ZELPoolAllocate(BytesFor(kind, capacity))) Store(kind, capacity);
        std::uninitialized_copy_n(Entries(), end, made->Entries());
        std::memcpy(made->Tags(), Tags(), static_cast<std::size_t>(TagCount()));
        made->extra = copied.release();
        made->end = end;
        made->first = first;
        made->gaps = gaps;
        return made;
    }

    Entry* Entries() { return reinterpret_cast<Entry*>(Tags() + TagCount()); }
    const Entry* Entries() const { return const_cast<Store*>(this)->Entries(); }
    Entry& At(int at) { return Entries()[at]; }

    int Count() const { return end - first - gaps; }
    bool IsGone(int at) const { return kind == ZanHashListKind::Links && !extra->links[at]; }

    /// There must be room for one more.
    void Append(const ZELString& key, ZanDicObj* object) {
        if (extra != nullptr) {
            ZELArray<ZELString>& lost = extra->lost;
            for (int at = lost.Size() - 1; at >= 0; --at) {
                if (lost[at] == key) lost.EraseAt(at);
            }
            if (kind == ZanHashListKind::Links) extra->links.Append(ZanDicLink<ZanDicObj>(object));
        }
        std::construct_at(Entries() + end, Entry{key, object});
        ++end;
        Enter(end - 1);
    }

    /// \returns the entry of that key; one whose object is gone is dropped, since its name is free.
    int Find(const ZELString& key) {
        const Entry* const entry = FindEntry(key);
        if (entry == nullptr) return kNone;
        const int at = IndexOf(entry);
        return IsGone(at) ? DropGone(at, key) : at;
    }

    /// \returns the object that is in the list under that key; null for none.
    [[gnu::always_inline]] inline ZanDicObj* FindObject(const ZELString& key) {
        const Entry* const entry = FindEntry(key);
        if (entry == nullptr) return nullptr;
        return kind != ZanHashListKind::Links ? entry->object : LiveObject(entry, key);
    }

    /// \returns the entry of that very object.
    int Find(const ZanDicObj& object) {
        const int named = kind != ZanHashListKind::Unnamed ? Find(object.Name()) : kNone;
        if (named != kNone && At(named).object == &object) return named;
        for (int at = first; at < end; ++at) {  // renamed since
            if (At(at).object == &object && !IsGone(at)) return at;
        }
        return kNone;
    }

    void RemoveAt(int at) {
        if (HasTags()) {
            Tags()[at] = 0;
        } else if (HasIndex()) {
            extra->index.Leave(at, [this](int entry) { return HashOf(entry); });
        }
        At(at) = {ZELString(), nullptr};
        if (kind == ZanHashListKind::Links) extra->links[at].Reset();
        ++gaps;
        while (gaps != 0 && At(end - 1).object == nullptr) DropLast();
        for (; gaps != 0 && At(first).object == nullptr; ++first) --gaps;
        if (gaps + first > kFewGaps && gaps + first > end / 2) Pack();
    }

    /// Makes the entries from `first` on what callers see.
    void Settle() {
        if (gaps != 0) Pack();
    }

    /// Drops the entries of objects that are gone.
    void DropLost() {
        if (extra == nullptr || kind != ZanHashListKind::Links) return;
        if (extra->seenLostCount != ZanDicLinkBase::LostCount()) Pack();
    }

private:
    static constexpr int kFewGaps = 8;
    static constexpr std::size_t kLinesAhead = 5;  ///< what the entries of 20 attributes take

    static constexpr std::uint8_t GroupsFor(ZanHashListKind kind, int capacity) {
        if (capacity > kMostTags || kind == ZanHashListKind::Unnamed) return 0;
        return static_cast<std::uint8_t>((capacity + TagSet::kGroup - 1) / TagSet::kGroup);
    }
    static constexpr std::size_t BytesFor(ZanHashListKind kind, int capacity) {
        return sizeof(Store) + static_cast<std::size_t>(GroupsFor(kind, capacity)) * TagSet::kGroup +
               static_cast<std::size_t>(capacity) * sizeof(Entry);
    }
    static constexpr bool NeedsIndex(ZanHashListKind kind, int capacity) {
        return capacity > kMostTags && kind != ZanHashListKind::Unnamed;
    }

    bool HasTags() const { return tagGroups != 0; }
    bool HasIndex() const { return NeedsIndex(kind, capacity); }
    int TagCount() const { return tagGroups * TagSet::kGroup; }
    std::uint8_t* Tags() { return reinterpret_cast<std::uint8_t*>(this + 1); }
    const std::uint8_t* Tags() const { return reinterpret_cast<const std::uint8_t*>(this + 1); }

    std::uint32_t HashOf(int at) const { return Entries()[at].key.ComputeHashKey(); }  // a name keeps it

    void DropLast() {
        std::destroy_at(Entries() + --end);
        if (kind == ZanHashListKind::Links) extra->links.Truncate(end);
        --gaps;
    }

    /// When memory is short, the list is as it was.
    void Pack() {
        const bool hasLinks = kind == ZanHashListKind::Links;
        if (hasLinks) MakeRoomForLost();
        int kept = 0;
        for (int at = first; at < end; ++at) {
            if (At(at).object == nullptr) continue;
            if (IsGone(at)) {
                extra->lost.Append(std::move(At(at).key));
                continue;
            }
            if (kept != at) {
                At(kept) = std::move(At(at));
                if (hasLinks) extra->links[kept] = std::move(extra->links[at]);
            }
            ++kept;
        }
        std::destroy(Entries() + kept, Entries() + end);
        if (hasLinks) {
            extra->links.Truncate(kept);
            extra->seenLostCount = ZanDicLinkBase::LostCount();
        }
        end = kept;
        first = gaps = 0;
        EnterAll();
    }

    void MakeRoomForLost() {
        int lost = 0;
        for (int at = first; at < end; ++at) lost += static_cast<int>(At(at).object != nullptr && IsGone(at));
        if (lost == 0) return;
        const int wanted = extra->lost.Size() + lost;
        if (wanted > extra->lost.Capacity())
            extra->lost.Reserve(std::max(wanted, 2 * extra->lost.Capacity()));
    }

    [[gnu::always_inline]] void Enter(int at) {
        if (HasTags()) {
            Tags()[at] = TagSet::TagOf(HashOf(at));
        } else if (HasIndex()) {
            // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): what has the index is there with it.
            extra->index.Enter(HashOf(at), at);
        }
    }

    void EnterAll() {
        if (HasTags()) {
            std::memset(Tags(), 0, static_cast<std::size_t>(TagCount()));
        } else if (HasIndex()) {
            extra->index.Empty();
        } else {
            return;
        }
        for (int at = first; at < end; ++at) {
            if (At(at).object != nullptr) Enter(at);
        }
    }

    int IndexOf(const Entry* entry) const { return static_cast<int>(entry - Entries()); }

    int DropGone(int at, const ZELString& key) {
        extra->lost.Append(key);
        RemoveAt(at);
        return kNone;
    }

    [[gnu::noinline]] ZanDicObj* LiveObject(const Entry* entry, const ZELString& key) {
        const int at = IndexOf(entry);
        if (!IsGone(at)) return entry->object;
        DropGone(at, key);
        return nullptr;
    }

    /// \returns the entry of that key, be its object gone or not; null for none. Where there are tags it
    /// calls nothing once the key's hash is known, so it has little to put aside.
    [[gnu::always_inline]] inline const Entry* FindEntry(const ZELString& key) const {
        // Searches in random order wait for memory, and this takes one wait out of three: where in the block
        // the entry is, its tags tell.
        const auto* const block = reinterpret_cast<const unsigned char*>(this);
        for (std::size_t line = 1; line <= kLinesAhead; ++line) {
            __builtin_prefetch(block + line * ZELPoolLists::kLine);
        }
        const std::uint32_t hash = key.ComputeHashKey();  // a name keeps it: cheaper than comparing texts
        if (!HasTags()) [[unlikely]]
            return FindIndexed(hash, key);
        const Entry* const entries = Entries();
        for (std::uint64_t found = TagSet::Find(Tags(), TagCount(), TagSet::TagOf(hash)); found != 0;
             found &= found - 1) {
            const Entry* const entry = entries + std::countr_zero(found);
            __builtin_prefetch(entry->object);  // together with the text, not after it
            if (entry->key == key) return entry;
        }
        return nullptr;
    }

    [[gnu::noinline]] const Entry* FindIndexed(std::uint32_t hash, const ZELString& key) const {
        if (!HasIndex()) return nullptr;
        const Entry* const entries = Entries();
        const int at = extra->index.Find(hash, [&](int each) { return entries[each].key == key; });
        return at != kNone ? entries + at : nullptr;
    }
};

ZanHashList::Store* ZanHashList::empty_Store(ZanHashListKind kind) noexcept {
    /// Never destroyed: lists may outlive whatever is destroyed at exit.
    static constinit Store links(ZanHashListKind::Links, 0);
    static constinit Store owner(ZanHashListKind::Owner, 0);
    static constinit Store unnamed(ZanHashListKind::Unnamed, 0);
    if (kind == ZanHashListKind::Unnamed) return &unnamed;
    return kind == ZanHashListKind::Owner ? &owner : &links;
}

/// Makes room for \p capacity entries in all.
void ZanHashList::make_Room(int capacity) {
    if (_STORE == empty_Store(_STORE->kind)) {
        _STORE = Store::Create(_STORE->kind, capacity);
    } else if (capacity > _STORE->capacity) {
        _STORE = Store::MoveTo(capacity, _STORE);
    }
}

ZanHashList::ZanHashList(int /*size*/, ZanHashListKind kind) : _STORE(empty_Store(kind)) {}

ZanHashList::ZanHashList(const ZanHashList& other)
    : _STORE(other._STORE->end != 0 ? other._STORE->Copy() : empty_Store(other._STORE->kind)) {}

ZanHashList& ZanHashList::operator=(const ZanHashList& other) {
    ZanHashList copy(other);
    std::swap(_STORE, copy._STORE);
    return *this;
}

ZanHashList::~ZanHashList() { clear(); }

ZanDicObj* ZanHashList::operator[](int position) const {
    if (position < 1 || position > Size()) return nullptr;
    _STORE->Settle();
    return _STORE->At(_STORE->first + position - 1).object;
}

int ZanHashList::Size() const {
    _STORE->DropLost();
    return _STORE->Count();
}

int ZanHashList::LostCount() const {
    _STORE->DropLost();
    return _STORE->extra != nullptr ? _STORE->extra->lost.Size() : 0;
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
    if (_STORE->end == _STORE->capacity) make_Room(std::max(kFirstRoom, _STORE->end * 2));
    _STORE->Append(object->Name(), object);
    if (_STORE->kind == ZanHashListKind::Owner) object->set_Owned();
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
    ZanDicObj* const object = at != kNone ? _STORE->At(at).object : nullptr;
    if (auto line = trace.Line(TraceLevel::Call)) line << "removing object:" << name << ", @=" << object;
    if (object != nullptr) _STORE->RemoveAt(at);
    return trace.Exit(object != nullptr ? S_OK : E_FAIL);
}

HRESULT ZanHashList::RemoveAll() {
    static constexpr ZanDicTraceScope trace("ZanHashList::RemoveAll");
    // Lists are emptied while their owners are taken down, which takes no memory.
    char text[96];
    const auto line = [&] {
        char digits[12];
        const std::string_view size(digits, std::to_chars(digits, std::end(digits), Size()).ptr);
        char* end = text;
        for (const std::string_view part : {std::string_view("ZanHashList::RemoveAll _HASH.Size()="), size,
                                            std::string_view(", _LISTP.Size()="), size}) {
            end += part.copy(end, part.size());
        }
        return std::string_view(text, end);
    };
    const auto sizes = [&] { return line().substr(std::string_view("ZanHashList::RemoveAll ").size()); };
    trace.Start("=== start === ");
    trace.Say(TraceLevel::Call, sizes());
    // Deliberate: written at every level, without separator and stop
    // (ZanHashListTest.RemoveAllAlwaysWritesItsLine).
    ZanDicWriteAlways(line());
    clear();
    trace.Say(TraceLevel::Call, sizes());
    return trace.Exit(S_OK);
}

ZanDicObj* ZanHashList::find(const ZELString& name) const {
    if (ZanDicTrace::MayWrite(TraceLevel::Call)) [[unlikely]]
        ZanDicObj::show_SharedProbe();
    return _STORE->FindObject(name);
}

HRESULT ZanHashList::Search(const ZELString& name, ZanDicObj** found) const {
    ZanDicObj* const object = find(name);
    if (object == nullptr || found == nullptr) return E_FAIL;
    *found = object;
    return S_OK;
}

bool ZanHashList::take_Object(const ZanDicObj* object) {
    if (object == nullptr) return false;
    const int at = _STORE->Find(*object);
    if (at == kNone) return false;
    _STORE->RemoveAt(at);
    return true;
}

void ZanHashList::clear() noexcept {
    Store* const empty = empty_Store(_STORE->kind);
    if (_STORE != empty) Store::Destroy(std::exchange(_STORE, empty));
}

void ZanHashList::keep(ZanDicObj& object) {
    if (_STORE->end == _STORE->capacity) make_Room(std::max(1, _STORE->end * 2));
    _STORE->Append(ZELString(), &object);
    object.set_Owned();
}

void ZanDicTaken::Take(ZanHashList& owned) noexcept {
    if (owned._STORE->end == 0) return;
    ZanHashList::Store* const store =
        std::exchange(owned._STORE, ZanHashList::empty_Store(owned._STORE->kind));
    delete store->extra;
    store->nextTaken = nullptr;
    (_Last != nullptr ? _Last->nextTaken : _First) = store;
    _Last = store;
    if (_Current == nullptr) Enter(store);
}

ZanDicObj* ZanDicTaken::Next() noexcept {
    while (_Current != nullptr) {
        while (_Index < _Current->end) {
            if (ZanDicObj* const object = _Current->At(_Index++).object) return object;
        }
        if (_Current == _Last) return nullptr;
        Enter(_Current->nextTaken);
    }
    return nullptr;
}

void ZanDicTaken::Rewind() noexcept { Enter(_First); }

void ZanDicTaken::Enter(ZanHashList::Store* store) noexcept {
    _Current = store;
    _Index = store != nullptr ? store->first : 0;
}

ZanDicTaken::~ZanDicTaken() {
    while (_First != nullptr) {
        ZanHashList::Store* const store = _First;
        _First = store->nextTaken;
        ZanHashList::Store::DestroyTaken(store);
    }
}

void ZanHashList::reserve(int count) {
    if (count > 0) make_Room(count);
}
