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

/// \returns a number with a bit set for each place of \p line whose entry has \p mark, the first place's
/// lowest.
#if defined(__SSE2__)
std::uint32_t ZanDicUuidTable::marked_In(const Entry* line, Entry mark) noexcept {
    // Marks lie in the upper halves of the entries, of which four fill a register.
    constexpr int kMarkShift = static_cast<int>(kAddressBits + kDistanceBits) - 32;
    const __m128i wanted = _mm_set1_epi32(static_cast<int>(mark >> 32));
    const auto markedOfFour = [&](const Entry* four) {
        const auto two = [](const Entry* at) { return _mm_load_ps(reinterpret_cast<const float*>(at)); };
        const __m128 halves = _mm_shuffle_ps(two(four), two(four + 2), _MM_SHUFFLE(3, 1, 3, 1));
        const __m128i rest = _mm_srli_epi32(_mm_xor_si128(_mm_castps_si128(halves), wanted), kMarkShift);
        const __m128i same = _mm_cmpeq_epi32(rest, _mm_setzero_si128());
        return static_cast<std::uint32_t>(_mm_movemask_ps(_mm_castsi128_ps(same)));
    };
    static_assert(kLine == 8);
    return markedOfFour(line) | markedOfFour(line + 4) << 4;
}
#else
std::uint32_t ZanDicUuidTable::marked_In(const Entry* line, Entry mark) noexcept {
    std::uint32_t marked = 0;
    for (std::uint32_t at = 0; at < kLine; ++at) marked |= std::uint32_t{has_Mark(line[at], mark)} << at;
    return marked;
}
#endif

ZanDicObj* ZanDicUuidTable::find_Key(const ZELDbBinary& uuid, std::uint32_t key) const noexcept {
    // The places of a line are compared together, so that there is no branch which has to wait for the table:
    // the processor goes on to the object, and to the caller's next lookup.
    const Entry mark = mark_Of(key);
    for (std::uint32_t place = home_Of(key);; place = next_To(place + kLine - 1)) {
        const Entry* const line = &_ENTRIES[place];
        for (std::uint32_t marked = marked_In(line, mark); marked != 0; marked &= marked - 1) {
            ZanDicObj* const object = object_In(line[std::countr_zero(marked)]);
            if (object != nullptr && object->Uuid() == uuid) return object;
        }
        if (line[kLine - 1] == 0) return nullptr;  // what is not here found room, and is not further on
    }
}

const ZanDicObj* ZanDicUuidTable::Guess(std::uint32_t key) const noexcept {
    if (_Size == 0) return nullptr;
    const Entry* const line = &_ENTRIES[home_Of(key)];
    const std::uint32_t marked = marked_In(line, mark_Of(key));
    return marked != 0 ? object_In(line[std::countr_zero(marked)]) : nullptr;
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
    places = (places + kLine - 1) / kLine * kLine;
    if (places > kMostPlaces) throw std::bad_alloc();
    ZanDicUuidTable larger;
    larger._ENTRIES = ZELMakeZeroed<Entry>(static_cast<std::size_t>(places));
    larger._Places = static_cast<std::uint32_t>(places);
    ForEach([&larger](ZanDicObj* object) { larger.place_Object(*object, KeyOf(*object)); });
    std::swap(_ENTRIES, larger._ENTRIES);
    std::swap(_Places, larger._Places);
}
