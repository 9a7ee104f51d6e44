#ifndef ZELARRAY_H
#define ZELARRAY_H

#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

#include "ZELExport.h"
#include "ZELPool.h"

/// Growable array of one word, null when it never had an element: what the lists keep their values in.
///
/// Indexes are 0-based. Adding at the end is amortised constant; inserting and erasing elsewhere moves what
/// follows. Adding may move all elements, so no pointer into the array outlives it. Every operation that
/// needs memory throws std::bad_alloc when it is short, and then leaves the array as it was. One thread.
template <class T>
class ZELSYSTEM_API ZELArray {
public:
    ZELArray() noexcept = default;
    ZELArray(const ZELArray& other) : ZELArray() { AppendAll(other.begin(), other.Size()); }
    ZELArray(ZELArray&& other) noexcept : _Head(std::exchange(other._Head, nullptr)) {}
    ZELArray& operator=(const ZELArray& other) {
        ZELArray(other).Swap(*this);
        return *this;
    }
    ZELArray& operator=(ZELArray&& other) noexcept {
        ZELArray(std::move(other)).Swap(*this);
        return *this;
    }
    ~ZELArray() { Clear(); }

    void Swap(ZELArray& other) noexcept { std::swap(_Head, other._Head); }

    int Size() const noexcept { return _Head != nullptr ? _Head->size : 0; }
    int Capacity() const noexcept { return _Head != nullptr ? _Head->capacity : 0; }

    T* begin() noexcept { return _Head != nullptr ? Elements(_Head) : nullptr; }
    T* end() noexcept { return begin() + Size(); }
    const T* begin() const noexcept { return _Head != nullptr ? Elements(_Head) : nullptr; }
    const T* end() const noexcept { return begin() + Size(); }

    /// \param index from 0 to Size() - 1; not tested.
    T& operator[](int index) noexcept { return Elements(_Head)[index]; }
    const T& operator[](int index) const noexcept { return Elements(_Head)[index]; }

    /// Makes room for \p capacity elements in all.
    void Reserve(int capacity) {
        if (capacity > Capacity()) move_To(capacity);
    }

    void Append(T value) {
        if (_Head == nullptr || _Head->size == _Head->capacity) grow(1);
        std::construct_at(Elements(_Head) + _Head->size, std::move(value));
        ++_Head->size;
    }

    /// Adds copies of \p count values; they may be this array's own.
    void AppendAll(const T* values, int count) {
        if (count <= 0) return;
        if (Size() + count > Capacity()) {
            const std::less<const T*> before;
            const bool own = _Head != nullptr && !before(values, begin()) && before(values, end());
            const std::ptrdiff_t index = own ? values - begin() : 0;
            grow(count);
            if (own) values = begin() + index;
        }
        std::uninitialized_copy_n(values, count, Elements(_Head) + _Head->size);
        _Head->size += count;
    }

    /// \param index from 0 to Size(); not tested.
    void InsertAt(int index, T value) {
        Append(std::move(value));
        T* const elements = Elements(_Head);
        for (int at = _Head->size - 1; at > index; --at) std::swap(elements[at], elements[at - 1]);
    }

    /// \param index from 0 to Size() - 1; not tested.
    void EraseAt(int index) noexcept {
        T* const elements = Elements(_Head);
        if constexpr (std::is_trivially_copyable_v<T>) {
            const auto behind = static_cast<std::size_t>(_Head->size - index - 1);
            std::memmove(elements + index, elements + index + 1, behind * sizeof(T));
        } else {
            for (int at = index; at + 1 < _Head->size; ++at) elements[at] = std::move(elements[at + 1]);
        }
        Truncate(_Head->size - 1);
    }

    /// Drops the elements from \p size on; keeps the room. \param size from 0 to Size(); not tested.
    void Truncate(int size) noexcept {
        if (_Head == nullptr) return;
        std::destroy(Elements(_Head) + size, Elements(_Head) + _Head->size);
        _Head->size = size;
    }

    /// Drops all elements and the room.
    void Clear() noexcept {
        if (_Head == nullptr) return;
        Head* const head = std::exchange(_Head, nullptr);
        std::destroy_n(Elements(head), head->size);
        ZELPoolFree(head, BytesFor(head->capacity));
    }

private:
    struct Head {
        int size;
        int capacity;
    };

    static constexpr int kFirstCapacity = 4;

    static constexpr std::size_t ElementsOffset() noexcept {
        static_assert(alignof(T) <= 16 && std::is_nothrow_move_constructible_v<T>);
        return sizeof(Head) > alignof(T) ? sizeof(Head) : alignof(T);
    }
    static constexpr std::size_t BytesFor(int capacity) noexcept {
        const std::size_t bytes = ElementsOffset() + static_cast<std::size_t>(capacity) * sizeof(T);
        return (bytes + 15) / 16 * 16;
    }
    static T* Elements(Head* head) noexcept {
        return reinterpret_cast<T*>(reinterpret_cast<unsigned char*>(head) + ElementsOffset());
    }
    static const T* Elements(const Head* head) noexcept {
        return reinterpret_cast<const T*>(reinterpret_cast<const unsigned char*>(head) + ElementsOffset());
    }

    void grow(int count) {
        const int doubled = Capacity() == 0 ? kFirstCapacity : Capacity() * 2;
        const int needed = Size() + count;
        move_To(doubled > needed ? doubled : needed);
    }

    void move_To(int capacity) {
        Head* const head = ::new (ZELPoolAllocate(BytesFor(capacity))) Head{Size(), capacity};
        if (_Head != nullptr) {
            std::uninitialized_move_n(Elements(_Head), _Head->size, Elements(head));
            Clear();
        }
        _Head = head;
    }

    Head* _Head = nullptr;  ///< owned; the elements follow it
};

/// Ends the process: a list was asked for a position that it does not have.
[[noreturn]] ZELSYSTEM_API void ZELPositionError(int position, int size) noexcept;

/// \returns the 0-based index of 1-based \p position; a position outside 1 to \p size is fatal.
inline int ZELIndexOf(int position, int size) noexcept {
    if (position < 1 || position > size) ZELPositionError(position, size);
    return position - 1;
}

#endif
