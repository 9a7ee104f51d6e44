#ifndef ZELLISTPTR_H
#define ZELLISTPTR_H

#include <algorithm>

#include "ZELArray.h"
#include "ZELExport.h"

class IUnknown;

/// List of pointers that it does not own: it takes and drops no reference.
///
/// Positions run from 1 to Size(); one outside is a programming error and fatal. Null pointers are entries
/// like others. One word, no memory when empty. Append is amortised constant; what searches is linear,
/// Intersection and RemoveDuplicates quadratic. What needs memory throws std::bad_alloc when it is short, and
/// then leaves the list as it was. One thread.
template <class T>
class ZELSYSTEM_API ZELListPtr {
public:
    /// Order of two entries: negative, 0 when equal, or positive.
    using CompareFunction = int (*)(T*, T*);

    ZELListPtr() noexcept = default;

    /// \param capacity entries for which room is made at once.
    explicit ZELListPtr(int capacity) { _POINTERS.Reserve(capacity); }

    /// Copies the \p count pointers of \p array.
    ZELListPtr(T* const* array, int count) { _POINTERS.AppendAll(array, count); }

    int Size() const noexcept { return _POINTERS.Size(); }
    void Reserve(int capacity) { _POINTERS.Reserve(capacity); }

    T*& operator[](int position) noexcept { return _POINTERS[ZELIndexOf(position, Size())]; }
    T* operator[](int position) const noexcept { return _POINTERS[ZELIndexOf(position, Size())]; }

    void Append(T* pointer) { _POINTERS.Append(pointer); }

    /// Adds the entries of \p other, which may be this list, in their order.
    void Append(const ZELListPtr& other) { _POINTERS.AppendAll(other._POINTERS.begin(), other.Size()); }

    /// Puts \p pointer at \p position, from 1 to Size() + 1, before what stands there.
    void InsertAt(int position, T* pointer) { _POINTERS.InsertAt(ZELIndexOf(position, Size() + 1), pointer); }

    /// \returns the first position of \p pointer from \p from on; 0 when it is not there.
    int Locate(const T* pointer, int from = 1) const noexcept {
        for (int index = from > 1 ? from - 1 : 0; index < Size(); ++index) {
            if (_POINTERS[index] == pointer) return index + 1;
        }
        return 0;
    }

    /// \returns how often \p pointer is in the list.
    int NbOccur(const T* pointer) const noexcept {
        return static_cast<int>(std::count(_POINTERS.begin(), _POINTERS.end(), pointer));
    }

    /// Removes the first entry that is \p pointer.
    /// \returns the position where it stood; 0 when it was not there.
    int RemoveValue(const T* pointer) noexcept {
        const int position = Locate(pointer);
        if (position != 0) RemovePosition(position);
        return position;
    }

    void RemovePosition(int position) noexcept { _POINTERS.EraseAt(ZELIndexOf(position, Size())); }

    /// Empties the list and gives its memory back.
    void RemoveAll() noexcept { _POINTERS.Clear(); }

    /// Keeps the first of equal entries, in their order. \returns how many went.
    int RemoveDuplicates() noexcept {
        int kept = 0;
        for (int index = 0; index < Size(); ++index) {
            T* const pointer = _POINTERS[index];
            const auto* const keptEnd = _POINTERS.begin() + kept;
            if (std::find(static_cast<T* const*>(_POINTERS.begin()), keptEnd, pointer) == keptEnd) {
                _POINTERS[kept++] = pointer;
            }
        }
        return truncate_To(kept);
    }

    /// Removes the null entries. \returns how many went.
    int RemoveNulls() noexcept {
        return truncate_To(static_cast<int>(
            std::remove(_POINTERS.begin(), _POINTERS.end(), static_cast<T*>(nullptr)) - _POINTERS.begin()));
    }

    /// Exchanges the entries at two positions.
    void Swap(int position, int otherPosition) noexcept {
        std::swap((*this)[position], (*this)[otherPosition]);
    }

    /// Sorts by \p compare; entries that it calls equal keep their order.
    void QuickSort(CompareFunction compare) {
        std::stable_sort(_POINTERS.begin(), _POINTERS.end(),
                         [compare](T* a, T* b) { return compare(a, b) < 0; });
    }

    /// Copies all entries to \p array, which has room for Size() of them.
    void FillArray(T** array) const noexcept { std::copy(_POINTERS.begin(), _POINTERS.end(), array); }

    /// Adds to \p result the entries of this list that are in \p other as well, in this list's order, each
    /// once for every time that it stands here. \p result is neither of the two.
    void Intersection(const ZELListPtr& other, ZELListPtr& result) const {
        for (T* const pointer : *this) {
            if (other.Locate(pointer) != 0) result.Append(pointer);
        }
    }

    /// Compares entry by entry with \p compare; a list comes before one that it begins.
    /// \returns negative, 0 when equal, or positive.
    int Compare(const ZELListPtr& other, CompareFunction compare) const {
        const int common = std::min(Size(), other.Size());
        for (int index = 0; index < common; ++index) {
            if (const int order = compare(_POINTERS[index], other._POINTERS[index]); order != 0) return order;
        }
        return Size() - other.Size();
    }

    T** begin() noexcept { return _POINTERS.begin(); }
    T** end() noexcept { return _POINTERS.end(); }
    T* const* begin() const noexcept { return _POINTERS.begin(); }
    T* const* end() const noexcept { return _POINTERS.end(); }

    /// Equal lists have the same pointers in the same order.
    friend bool operator==(const ZELListPtr& a, const ZELListPtr& b) noexcept {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

private:
    int truncate_To(int size) noexcept {
        const int removed = Size() - size;
        _POINTERS.Truncate(size);
        return removed;
    }

    ZELArray<T*> _POINTERS;
};

/// Interfaces that an operation hands out; each entry carries one reference, the caller's to release.
using ZELListPtrIUnknown = ZELListPtr<IUnknown>;

#endif
