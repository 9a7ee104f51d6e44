#ifndef ZELLISTVAL_H
#define ZELLISTVAL_H

#include <algorithm>
#include <utility>

#include "ZELArray.h"
#include "ZELExport.h"
#include "ZELString.h"
#include "ZELUnicodeString.h"

/// List of values. Positions run from 1 to Size(); one outside is a programming error and fatal.
///
/// One word, no memory when empty. Append is amortised constant, Locate linear. Adding may move the values.
/// What needs memory throws std::bad_alloc when it is short, and then leaves the list as it was.
/// One thread.
template <class T>
class ZELSYSTEM_API ZELListVal {
public:
    ZELListVal() noexcept = default;

    /// \param capacity values for which room is made at once.
    explicit ZELListVal(int capacity) { _VALUES.Reserve(capacity); }

    int Size() const noexcept { return _VALUES.Size(); }
    void Reserve(int capacity) { _VALUES.Reserve(capacity); }

    T& operator[](int position) noexcept { return _VALUES[ZELIndexOf(position, Size())]; }
    const T& operator[](int position) const noexcept { return _VALUES[ZELIndexOf(position, Size())]; }

    void Append(T value) { _VALUES.Append(std::move(value)); }

    /// Adds the values of \p other, which may be this list, in their order.
    void Append(const ZELListVal& other) { _VALUES.AppendAll(other._VALUES.begin(), other.Size()); }

    /// Puts \p value at \p position, from 1 to Size() + 1, before what stands there.
    void InsertAt(int position, T value) {
        _VALUES.InsertAt(ZELIndexOf(position, Size() + 1), std::move(value));
    }

    /// \returns the first position, from \p from on, of a value equal to \p value; 0 when there is none.
    int Locate(const T& value, int from = 1) const noexcept {
        for (int index = from > 1 ? from - 1 : 0; index < Size(); ++index) {
            if (_VALUES[index] == value) return index + 1;
        }
        return 0;
    }

    void RemovePosition(int position) noexcept { _VALUES.EraseAt(ZELIndexOf(position, Size())); }

    /// Removes the first value equal to \p value.
    /// \returns the position where it stood; 0 when there is none.
    int RemoveValue(const T& value) noexcept {
        const int position = Locate(value);
        if (position != 0) RemovePosition(position);
        return position;
    }

    /// Empties the list and gives its memory back.
    void RemoveAll() noexcept { _VALUES.Clear(); }

    T* begin() noexcept { return _VALUES.begin(); }
    T* end() noexcept { return _VALUES.end(); }
    const T* begin() const noexcept { return _VALUES.begin(); }
    const T* end() const noexcept { return _VALUES.end(); }

    friend bool operator==(const ZELListVal& a, const ZELListVal& b) noexcept {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

private:
    ZELArray<T> _VALUES;
};

using ZELListValZELString = ZELListVal<ZELString>;
using ZELListValZELUnicodeString = ZELListVal<ZELUnicodeString>;

#endif
