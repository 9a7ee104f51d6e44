#ifndef ZELHASHTABLE_H
#define ZELHASHTABLE_H

#include <cstdint>
#include <cstring>
#include <utility>

#include "ZELExport.h"
#include "ZELHash.h"
#include "ZELPool.h"

/// Where an iteration over a ZELHashTable stands: at an object, or past the last.
struct ZELSYSTEM_API ZELHashIterator {
    int bucket;    ///< from 1; 0 past the last
    int position;  ///< in the bucket, from 1; 0 past the last
};

/// Set of objects found by a caller's 32-bit key and comparison. It does not own them.
///
/// The key of an object is asked for once, when it is inserted, and kept beside the pointer: what changes in
/// the object later does not move it, and no comparison is made between objects whose keys differ. Open
/// addressing: a bucket holds one object, at position 1. Keys are mixed with the process's seed, so the order
/// of iteration is the table's own business, differs between processes and says nothing of insertion. Insert,
/// Locate and Remove are constant on average, growth amortised; an empty table has no memory. Inserting moves
/// objects between buckets; removing may do so. Insert, Reserve and copying throw std::bad_alloc when memory
/// is short, and then change nothing. One thread.
template <class T>
class ZELSYSTEM_API ZELHashTable {
public:
    using HashFunction = std::uint32_t (*)(T*);
    using CompareFunction = int (*)(T*, T*);

    /// \param hash key of an object; objects that compare equal have equal keys.
    /// \param compare 0 for equal objects.
    /// \param size first number of buckets, at least 1; taken up with the first object.
    ZELHashTable(HashFunction hash, CompareFunction compare, int size) noexcept
        : _Hash(hash), _Compare(compare), _FirstSize(size > 1 ? static_cast<std::uint32_t>(size) : 1) {}

    ZELHashTable(const ZELHashTable& other)
        : _Hash(other._Hash), _Compare(other._Compare), _FirstSize(other._FirstSize) {
        if (other._Size == 0) return;
        allocate(other._Buckets);
        std::memcpy(static_cast<void*>(_OBJECTS), other._OBJECTS, BytesFor(_Buckets));
        _Size = other._Size;
    }
    ZELHashTable(ZELHashTable&& other) noexcept
        : _Hash(other._Hash), _Compare(other._Compare), _FirstSize(other._FirstSize) {
        swap_Content(other);
    }
    ZELHashTable& operator=(const ZELHashTable& other) {
        ZELHashTable copy(other);
        return *this = std::move(copy);
    }
    ZELHashTable& operator=(ZELHashTable&& other) noexcept {
        _Hash = other._Hash;
        _Compare = other._Compare;
        _FirstSize = other._FirstSize;
        swap_Content(other);
        return *this;
    }
    ~ZELHashTable() { RemoveAll(); }

    int Size() const noexcept { return static_cast<int>(_Size); }

    /// Makes room for \p count objects in all, so that no insertion grows the table before.
    void Reserve(int count) {
        const std::uint64_t needed = static_cast<std::uint64_t>(count > 0 ? count : 0) * 5 / 4 + 1;
        if (count > 0 && needed > _Buckets) rehash_To(PowerOfTwo(needed));
    }

    /// Adds \p object.
    /// \returns 1; 0 when it is null or an equal object is present, and nothing has changed.
    int Insert(T* object) {
        if (object == nullptr) return 0;
        const std::uint32_t key = _Hash(object);
        if (find_Probe(key, object) != kNone) return 0;
        InsertNew(key, object);
        return 1;
    }

    /// \returns the object equal to \p probe; null when there is none.
    T* Locate(T* probe) const { return object_At(find_Probe(_Hash(probe), probe)); }

    /// Same, and says where it is.
    /// \param[out] bucket, position its place, or 0 and 0.
    T* LocatePosition(T* probe, int& bucket, int& position) const {
        const std::uint32_t index = find_Probe(_Hash(probe), probe);
        bucket = index != kNone ? static_cast<int>(index) + 1 : 0;
        position = index != kNone ? 1 : 0;
        return object_At(index);
    }

    /// Removes the object equal to \p probe. \returns it; null when there is none.
    T* Remove(T* probe) { return remove_Index(find_Probe(_Hash(probe), probe)); }

    /// Removes the object at a place. \returns it; null when there is none.
    T* RemovePosition(int bucket, int position) noexcept { return remove_Index(index_Of(bucket, position)); }

    /// Removes all objects and gives the memory back.
    void RemoveAll() noexcept {
        if (_OBJECTS != nullptr) ZELPoolFree(_OBJECTS, BytesFor(_Buckets));
        _OBJECTS = nullptr;
        _KEYS = nullptr;
        _Buckets = 0;
        _Size = 0;
    }

    /// Steps to the next object; from 0 and 0 to the first. No object may be inserted or removed meanwhile.
    /// \param[in,out] bucket, position where the iteration stands; 0 and 0 after the last.
    /// \returns the object; null after the last.
    T* Next(int& bucket, int& position) const noexcept {
        for (auto index = static_cast<std::uint32_t>(bucket > 0 ? bucket : 0); index < _Buckets; ++index) {
            if (_KEYS[index] == 0) continue;
            bucket = static_cast<int>(index) + 1;
            position = 1;
            return _OBJECTS[index];
        }
        bucket = 0;
        position = 0;
        return nullptr;
    }

    /// \returns an iterator at the first object, past the last when there is none.
    ZELHashIterator CreateIterator() const noexcept {
        ZELHashIterator iterator{0, 0};
        Next(iterator);
        return iterator;
    }

    /// Steps \p iterator to the next object. \returns it; null after the last.
    T* Next(ZELHashIterator& iterator) const noexcept { return Next(iterator.bucket, iterator.position); }

    /// \returns the object at which \p iterator stands; null past the last.
    T* operator[](const ZELHashIterator& iterator) const noexcept {
        return object_At(index_Of(iterator.bucket, iterator.position));
    }

    // For owners that know the key and need neither a probe nor a comparison of objects.

    /// \returns the object inserted under \p key for which \p matches(object) holds; null when there is none.
    template <class Matches>
    T* LocateKey(std::uint32_t key, Matches&& matches) const {
        return object_At(find(Mixed(key), std::forward<Matches>(matches)));
    }

    /// Adds \p object, not null, under \p key. The caller knows that no equal object is present.
    void InsertNew(std::uint32_t key, T* object) {
        if ((static_cast<std::uint64_t>(_Size) + 1) * 5 > static_cast<std::uint64_t>(_Buckets) * 4) grow();
        place(Mixed(key), object);
        ++_Size;
    }

    /// Removes \p object, that very one, inserted under \p key. \returns whether it was there.
    bool RemoveKey(std::uint32_t key, const T* object) noexcept {
        return remove_Index(find(Mixed(key), [object](const T* other) { return other == object; })) !=
               nullptr;
    }

    /// Fetches the place of \p key into the cache, for a lookup some 100 ns later.
    void Prefetch(std::uint32_t key) const noexcept {
        if (_Buckets == 0) return;
        const std::uint32_t home = Mixed(key) & (_Buckets - 1);
        __builtin_prefetch(_KEYS + home);
        __builtin_prefetch(_OBJECTS + home);
    }

private:
    static constexpr std::uint32_t kNone = 0xFFFFFFFFU;

    static constexpr std::uint32_t PowerOfTwo(std::uint64_t atLeast) noexcept {
        std::uint32_t buckets = 4;
        while (buckets < atLeast) buckets *= 2;
        return buckets;
    }

    static constexpr std::size_t BytesFor(std::uint32_t buckets) noexcept {
        return buckets * (sizeof(T*) + sizeof(std::uint32_t));
    }

    /// One to one but for 0, which marks a free bucket.
    static std::uint32_t Mixed(std::uint32_t key) noexcept {
        key = (key ^ ZELHashSeed()) * 0x9E3779B1U;
        key ^= key >> 15;
        return key != 0 ? key : 1;
    }

    template <class Matches>
    std::uint32_t find(std::uint32_t mixed, Matches&& matches) const {
        if (_Size == 0) return kNone;
        const std::uint32_t mask = _Buckets - 1;
        for (std::uint32_t index = mixed & mask;; index = (index + 1) & mask) {
            const std::uint32_t key = _KEYS[index];
            if (key == mixed && matches(_OBJECTS[index])) return index;
            if (key == 0) return kNone;
        }
    }

    std::uint32_t find_Probe(std::uint32_t key, T* probe) const {
        return find(Mixed(key), [this, probe](T* object) { return _Compare(object, probe) == 0; });
    }

    T* object_At(std::uint32_t index) const noexcept { return index != kNone ? _OBJECTS[index] : nullptr; }

    std::uint32_t index_Of(int bucket, int position) const noexcept {
        if (bucket < 1 || static_cast<std::uint32_t>(bucket) > _Buckets || position != 1) return kNone;
        const std::uint32_t index = static_cast<std::uint32_t>(bucket) - 1;
        return _KEYS[index] != 0 ? index : kNone;
    }

    void place(std::uint32_t mixed, T* object) noexcept {
        const std::uint32_t mask = _Buckets - 1;
        std::uint32_t index = mixed & mask;
        while (_KEYS[index] != 0) index = (index + 1) & mask;
        _KEYS[index] = mixed;
        _OBJECTS[index] = object;
    }

    /// Closes the gap by moving back what could not stand nearer to its home, so that no mark remains.
    T* remove_Index(std::uint32_t gap) noexcept {
        if (gap == kNone) return nullptr;
        T* const removed = _OBJECTS[gap];
        const std::uint32_t mask = _Buckets - 1;
        for (std::uint32_t index = (gap + 1) & mask; _KEYS[index] != 0; index = (index + 1) & mask) {
            const std::uint32_t fromHome = (index - _KEYS[index]) & mask;
            if (fromHome < ((index - gap) & mask)) continue;
            _KEYS[gap] = _KEYS[index];
            _OBJECTS[gap] = _OBJECTS[index];
            gap = index;
        }
        _KEYS[gap] = 0;
        --_Size;
        return removed;
    }

    void grow() { rehash_To(_Buckets != 0 ? _Buckets * 2 : PowerOfTwo(_FirstSize)); }

    void rehash_To(std::uint32_t buckets) {
        ZELHashTable larger(_Hash, _Compare, static_cast<int>(_FirstSize));
        larger.allocate(buckets);
        for (std::uint32_t index = 0; index < _Buckets; ++index) {
            if (_KEYS[index] != 0) larger.place(_KEYS[index], _OBJECTS[index]);
        }
        larger._Size = _Size;
        swap_Content(larger);
    }

    void allocate(std::uint32_t buckets) {
        _OBJECTS = static_cast<T**>(ZELPoolAllocate(BytesFor(buckets)));
        _KEYS = reinterpret_cast<std::uint32_t*>(_OBJECTS + buckets);
        _Buckets = buckets;
        std::memset(static_cast<void*>(_OBJECTS), 0, BytesFor(buckets));
    }

    void swap_Content(ZELHashTable& other) noexcept {
        std::swap(_OBJECTS, other._OBJECTS);
        std::swap(_KEYS, other._KEYS);
        std::swap(_Buckets, other._Buckets);
        std::swap(_Size, other._Size);
    }

    HashFunction _Hash;
    CompareFunction _Compare;
    T** _OBJECTS = nullptr;          ///< owned memory; the keys follow in it
    std::uint32_t* _KEYS = nullptr;  ///< mixed keys, 0 for a free bucket
    std::uint32_t _Buckets = 0;      ///< 0 or a power of two; at most 4/5 are taken
    std::uint32_t _Size = 0;
    std::uint32_t _FirstSize;
};

#endif
