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
ZanDicUuidTable::Entry ZanDicUuidTable::with_Distance(Entry entry, std::uint32_t lines) noexcept {
    return (entry & ~(Entry{kFar} << kAddressBits)) | Entry{std::min(lines, kFar)} << kAddressBits;
}

/// How many lines the entry at \p place is from home.
std::uint32_t ZanDicUuidTable::distance_At(std::uint32_t place) const noexcept {
    const Entry entry = _ENTRIES[place];
    const std::uint32_t noted = static_cast<std::uint32_t>(entry >> kAddressBits) & kFar;
    return noted < kFar ? noted : lines_Between(home_Of(KeyOf(*object_In(entry))), place / kLine * kLine);
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

/// \returns the place of the object of that key for which \p is holds; kNone when there is none.
template <class Is>
std::uint32_t ZanDicUuidTable::find_Place(std::uint32_t key, const Is& is) const noexcept {
    // The places of a line are compared together, so that there is no branch which has to wait for the table:
    // the processor goes on to the object, and to the caller's next lookup.
    const Entry mark = mark_Of(key);
    for (std::uint32_t line = home_Of(key);; line = next_Line(line)) {
        for (std::uint32_t marked = marked_In(&_ENTRIES[line], mark); marked != 0; marked &= marked - 1) {
            const std::uint32_t place = line + static_cast<std::uint32_t>(std::countr_zero(marked));
            const ZanDicObj* const object = object_In(_ENTRIES[place]);
            if (object != nullptr && is(*object)) return place;
        }
        if (!is_Full(line)) return kNone;
    }
}

ZanDicObj* ZanDicUuidTable::find_Key(const ZELDbBinary& uuid, std::uint32_t key) const noexcept {
    const std::uint32_t place =
        find_Place(key, [&](const ZanDicObj& object) { return object.Uuid() == uuid; });
    return place != kNone ? object_In(_ENTRIES[place]) : nullptr;
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
    for (std::uint32_t line = home;; line = next_Line(line)) {
        for (std::uint32_t place = line; place < line + kLine; ++place) {
            if (_ENTRIES[place] != 0) continue;
            _ENTRIES[place] = with_Distance(new_Entry(object, key), lines_Between(home, line));
            return;
        }
    }
}

bool ZanDicUuidTable::Remove(const ZanDicObj& object) noexcept {
    if (_Size == 0) return false;
    const std::uint32_t place =
        find_Place(KeyOf(object), [&object](const ZanDicObj& other) { return &other == &object; });
    if (place == kNone) return false;
    close_Gap(place);
    --_Size;
    return true;
}

/// \returns the place of an entry behind \p line that is at home in it or before it; kNone when there is
/// none.
std::uint32_t ZanDicUuidTable::stray_Of(std::uint32_t line) const noexcept {
    std::uint32_t next = line;
    do {
        next = next_Line(next);
        for (std::uint32_t place = next; place < next + kLine; ++place) {
            if (_ENTRIES[place] != 0 && distance_At(place) >= lines_Between(line, next)) return place;
        }
    } while (is_Full(next));
    return kNone;
}

/// Empties the place \p gap. What only stands further on because its line was full is moved back, or else the
/// line's last place becomes the free one: lookups are told by it that they need not go on.
void ZanDicUuidTable::close_Gap(std::uint32_t gap) noexcept {
    while (true) {
        const std::uint32_t line = gap / kLine * kLine;
        const std::uint32_t stray = is_Full(line) ? stray_Of(line) : kNone;
        if (stray == kNone) {
            _ENTRIES[gap] = _ENTRIES[line + kLine - 1];
            _ENTRIES[line + kLine - 1] = 0;
            return;
        }
        const std::uint32_t back = lines_Between(line, stray / kLine * kLine);
        _ENTRIES[gap] = with_Distance(_ENTRIES[stray], distance_At(stray) - back);
        gap = stray;
    }
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
