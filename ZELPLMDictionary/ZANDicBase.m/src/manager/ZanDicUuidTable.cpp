#include "ZanDicUuidTable.h"

#include <algorithm>
#include <bit>
#include <new>

#include "ZELFatalError.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace {

constexpr std::uint64_t kFirstPlaces = 64;
constexpr std::uint64_t kMostPlaces = 0x80000000;

std::uint32_t KeyOf(const ZanDicObj& object) noexcept { return object.Uuid().ComputeHashKey(); }

}  // namespace

ZanDicUuidTable::Entry ZanDicUuidTable::new_Entry(ZanDicObj& object, std::uint32_t key) noexcept {
    const auto address = static_cast<Entry>(reinterpret_cast<std::uintptr_t>(&object));
    // Programs get addresses of 48 bits unless they ask for more.
    if (address >> kAddressBits != 0) ZELFatalError("AssertionFailed:address", "ZanDicUuidTable", 24);
    return mark_Of(key) | address;
}

/// The same entry at another distance from home.
ZanDicUuidTable::Entry ZanDicUuidTable::with_Distance(Entry entry, std::uint32_t distance) noexcept {
    return (entry & ~(Entry{kFar} << kAddressBits)) | Entry{std::min(distance, kFar)} << kAddressBits;
}

/// How far the entry at \p place is from home.
std::uint32_t ZanDicUuidTable::distance_At(std::uint32_t place) const noexcept {
    const Entry entry = _ENTRIES[place];
    const std::uint32_t noted = static_cast<std::uint32_t>(entry >> kAddressBits) & kFar;
    return noted < kFar ? noted : way_Between(home_Of(KeyOf(*object_In(entry))), place);
}

/// \returns a number with a bit set for each of the kAtOnce \p entries that has \p mark, the first's lowest.
#if defined(__SSE2__)
std::uint32_t ZanDicUuidTable::marked_Among(const Entry* entries, Entry mark) noexcept {
    // Marks lie in the upper halves of the entries, of which four fill a register.
    constexpr int kMarkShift = static_cast<int>(kAddressBits + kDistanceBits) - 32;
    const __m128i wanted = _mm_set1_epi32(static_cast<int>(mark >> 32));
    const auto markedOfFour = [&](const Entry* four) {
        const auto two = [](const Entry* at) { return _mm_loadu_ps(reinterpret_cast<const float*>(at)); };
        const __m128 halves = _mm_shuffle_ps(two(four), two(four + 2), _MM_SHUFFLE(3, 1, 3, 1));
        const __m128i rest = _mm_srli_epi32(_mm_xor_si128(_mm_castps_si128(halves), wanted), kMarkShift);
        const __m128i same = _mm_cmpeq_epi32(rest, _mm_setzero_si128());
        return static_cast<std::uint32_t>(_mm_movemask_ps(_mm_castsi128_ps(same)));
    };
    static_assert(kAtOnce == 8);
    return markedOfFour(entries) | markedOfFour(entries + 4) << 4;
}
#else
std::uint32_t ZanDicUuidTable::marked_Among(const Entry* entries, Entry mark) noexcept {
    std::uint32_t marked = 0;
    for (std::uint32_t at = 0; at < kAtOnce; ++at) marked |= std::uint32_t{has_Mark(entries[at], mark)} << at;
    return marked;
}
#endif

ZanDicObj* ZanDicUuidTable::find_Key(const ZELDbBinary& uuid, std::uint32_t key) const noexcept {
    const Entry mark = mark_Of(key);
    // Nearly always it is among the first few. They are compared together, so that there is no branch which
    // has to wait for the table: the processor goes on to the object, and to the caller's next lookup.
    if (const std::uint32_t home = home_Of(key); home + kAtOnce <= _Places) {
        const Entry* const entries = &_ENTRIES[home];
        if (const std::uint32_t marked = marked_Among(entries, mark); marked != 0) {
            ZanDicObj* const object = object_In(entries[std::countr_zero(marked)]);
            if (object != nullptr && object->Uuid() == uuid) return object;
        }
    }
    for (std::uint32_t place = home_Of(key);; place = next_To(place)) {
        const Entry entry = _ENTRIES[place];
        if (entry == 0) return nullptr;
        if (has_Mark(entry, mark) && object_In(entry)->Uuid() == uuid) return object_In(entry);
    }
}

const ZanDicObj* ZanDicUuidTable::Guess(std::uint32_t key) const noexcept {
    if (_Size == 0) return nullptr;
    std::uint32_t place = home_Of(key);
    while (_ENTRIES[place] != 0 && !has_Mark(_ENTRIES[place], mark_Of(key))) place = next_To(place);
    return object_In(_ENTRIES[place]);
}

bool ZanDicUuidTable::Insert(ZanDicObj& object) {
    const std::uint32_t key = KeyOf(object);
    if (_Size != 0 && find_Key(object.Uuid(), key) != nullptr) return false;
    if ((std::uint64_t{_Size} + 1) * 4 > std::uint64_t{_Places} * 3) {
        rehash_To(std::max(kFirstPlaces, std::uint64_t{_Places} * 2));
    }
    place_Object(object, key);
    ++_Size;
    return true;
}

void ZanDicUuidTable::place_Object(ZanDicObj& object, std::uint32_t key) noexcept {
    const std::uint32_t home = home_Of(key);
    std::uint32_t place = home;
    while (_ENTRIES[place] != 0) place = next_To(place);
    _ENTRIES[place] = with_Distance(new_Entry(object, key), way_Between(home, place));
}

bool ZanDicUuidTable::Remove(const ZanDicObj& object) noexcept {
    if (_Size == 0) return false;
    std::uint32_t gap = home_Of(KeyOf(object));
    while (object_In(_ENTRIES[gap]) != &object) {
        if (_ENTRIES[gap] == 0) return false;
        gap = next_To(gap);
    }
    // Closes the gap by moving back what could not stand nearer to its home, so that no mark remains.
    for (std::uint32_t place = next_To(gap); _ENTRIES[place] != 0; place = next_To(place)) {
        const std::uint32_t distance = distance_At(place);
        const std::uint32_t way = way_Between(gap, place);
        if (distance < way) continue;
        _ENTRIES[gap] = with_Distance(_ENTRIES[place], distance - way);
        gap = place;
    }
    _ENTRIES[gap] = 0;
    --_Size;
    return true;
}

void ZanDicUuidTable::RemoveAll() noexcept {
    _ENTRIES.reset();
    _Places = 0;
    _Size = 0;
}

void ZanDicUuidTable::Reserve(int count) {
    const std::uint64_t needed = static_cast<std::uint64_t>(std::max(count, 0)) * 4 / 3 + 1;
    // Many small calls must not make as many small steps.
    if (needed > _Places) rehash_To(std::max(needed, std::uint64_t{_Places} * 3 / 2));
}

void ZanDicUuidTable::rehash_To(std::uint64_t places) {
    if (places > kMostPlaces) throw std::bad_alloc();
    ZanDicUuidTable larger;
    larger._ENTRIES = ZELMakeZeroed<Entry>(static_cast<std::size_t>(places));
    larger._Places = static_cast<std::uint32_t>(places);
    ForEach([&larger](ZanDicObj* object) { larger.place_Object(*object, KeyOf(*object)); });
    std::swap(_ENTRIES, larger._ENTRIES);
    std::swap(_Places, larger._Places);
}
