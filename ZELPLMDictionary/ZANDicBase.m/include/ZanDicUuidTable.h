#ifndef ZAN_DIC_UUID_TABLE_H
#define ZAN_DIC_UUID_TABLE_H

#include <cstdint>

#include "ZELDbBinary.h"
#include "ZELZeroed.h"
#include "ZanDicExport.h"
#include "ZanDicObj.h"

/// Set of objects found by UUID: what the registry keeps them in. It does not own them.
///
/// One word of 8 bytes a place: the object's address with some bits of its key and the distance from home. A
/// key is at home in a line of the cache, eight places, and stands in the first free place from there on. A
/// line whose last place is free has let none of its own go further. So a lookup reads, mostly, one line of
/// the table and one object, a removal one line. The key is that of the object's UUID, which
/// must not change while the object is in the table. The number of lines is free, so that a table of known
/// size is no larger than it need be; three quarters of the places are taken at the most. Insert and Reserve
/// throw std::bad_alloc when memory is short, and then change nothing. Growth is amortised. One thread.
class ZANDICBASE_API ZanDicUuidTable {
public:
    int Size() const noexcept { return static_cast<int>(_Size); }

    /// \returns the object of that UUID; null when there is none.
    ZanDicObj* Find(const ZELDbBinary& uuid) const noexcept {
        return _Size != 0 ? find_Key(uuid, uuid.ComputeHashKey()) : nullptr;
    }

    /// Adds \p object. \returns false when its UUID is there already, and nothing has changed.
    bool Insert(ZanDicObj& object);

    /// Removes that very object. \returns whether it was there.
    bool Remove(const ZanDicObj& object) noexcept;

    /// Removes all objects and gives the memory back.
    void RemoveAll() noexcept;

    /// Makes room for \p count objects in all.
    void Reserve(int count);

    /// Fetches the line where a UUID of that key is at home into the cache, for a search some 100 ns later.
    /// (A function that only fetches is dropped unless it is inlined.)
    [[gnu::always_inline]] void Prefetch(std::uint32_t key) const noexcept {
        if (_Places != 0) __builtin_prefetch(&_ENTRIES[home_Of(key)]);
    }

    /// \returns the object that a lookup of a UUID of that key would look at first; null when there is none
    /// in the line where it is at home.
    const ZanDicObj* Guess(std::uint32_t key) const noexcept;

    /// Calls \p visit with each object, in no particular order.
    template <class Visit>
    void ForEach(const Visit& visit) const {
        for (std::uint32_t place = 0; place < _Places; ++place) {
            if (_ENTRIES[place] != 0) visit(object_In(_ENTRIES[place]));
        }
    }

private:
    /// Address; from bit 48 the lines from home; above them bits of the key; 0: free.
    using Entry = std::uint64_t;

    static constexpr std::uint32_t kLine = 8;  ///< places in a line of the cache
    static constexpr unsigned kAddressBits = 48;
    static constexpr unsigned kDistanceBits = 4;
    static constexpr std::uint32_t kFar = (1U << kDistanceBits) - 1;  ///< that distance or more
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    static ZanDicObj* object_In(Entry entry) noexcept {
        return reinterpret_cast<ZanDicObj*>(entry & ((Entry{1} << kAddressBits) - 1));
    }
    /// The low bits of the key: the high ones say where an entry is at home.
    static Entry mark_Of(std::uint32_t key) noexcept { return Entry{key} << (kAddressBits + kDistanceBits); }
    static bool has_Mark(Entry entry, Entry mark) noexcept {
        return (entry ^ mark) >> (kAddressBits + kDistanceBits) == 0;
    }
    static Entry new_Entry(ZanDicObj& object, std::uint32_t key) noexcept;
    static Entry with_Distance(Entry entry, std::uint32_t lines) noexcept;

    /// \returns the first place of the line.
    std::uint32_t home_Of(std::uint32_t key) const noexcept {
        return static_cast<std::uint32_t>(std::uint64_t{key} * (_Places / kLine) >> 32) * kLine;
    }
    /// Lines are named by their first places; behind the last comes the first.
    std::uint32_t next_Line(std::uint32_t line) const noexcept {
        return line + kLine != _Places ? line + kLine : 0;
    }
    std::uint32_t lines_Between(std::uint32_t from, std::uint32_t to) const noexcept {
        return (to >= from ? to - from : to + _Places - from) / kLine;
    }
    bool is_Full(std::uint32_t line) const noexcept { return _ENTRIES[line + kLine - 1] != 0; }
    static std::uint32_t marked_In(const Entry* line, Entry mark) noexcept;
    template <class Is>
    std::uint32_t find_Place(std::uint32_t key, const Is& is) const noexcept;
    ZanDicObj* find_Key(const ZELDbBinary& uuid, std::uint32_t key) const noexcept;
    void place_Object(ZanDicObj& object, std::uint32_t key) noexcept;
    std::uint32_t distance_At(std::uint32_t place) const noexcept;
    std::uint32_t stray_Of(std::uint32_t line) const noexcept;
    void close_Gap(std::uint32_t gap) noexcept;
    void rehash_To(std::uint64_t places);

    ZELZeroed<Entry> _ENTRIES;
    std::uint32_t _Places = 0;  ///< whole lines
    std::uint32_t _Size = 0;
};

#endif
