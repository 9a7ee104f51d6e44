#ifndef ZELXMLBLOCK_H
#define ZELXMLBLOCK_H

#include <cstddef>
#include <type_traits>

/// Memory of a ZELXMLBlock: grown in place or moved by the system, so that a big block is never copied.
/// Throws std::bad_alloc when there is none; \p memory is still there then.
void* ZELXMLGrow(void* memory, std::size_t bytes);
void ZELXMLFree(void* memory);

/// A growing row of plain values, with none of them initialised before it is written.
template <class T>
class ZELXMLBlock {
    static_assert(std::is_trivially_copyable_v<T>);

public:
    ZELXMLBlock() = default;
    ~ZELXMLBlock() { ZELXMLFree(data_); }
    ZELXMLBlock(const ZELXMLBlock&) = delete;
    ZELXMLBlock& operator=(const ZELXMLBlock&) = delete;

    T* Data() { return data_; }
    const T* Data() const { return data_; }
    std::size_t Size() const { return size_; }
    std::size_t Capacity() const { return capacity_; }
    T& operator[](std::size_t index) { return data_[index]; }

    /// Makes room for \p capacity values. Room that is never written takes no memory.
    void Reserve(std::size_t capacity) {
        if (capacity <= capacity_) return;
        data_ = static_cast<T*>(ZELXMLGrow(data_, capacity * sizeof(T)));
        capacity_ = capacity;
    }

    /// Says how many values there are; those that are new are the caller's to write.
    void SetSize(std::size_t size) {
        Reserve(size);
        size_ = size;
    }

    void Append(const T& value) {
        if (size_ == capacity_) Reserve(capacity_ * 2 + 16);
        data_[size_++] = value;
    }

    void Append(const T* first, const T* last) {
        const std::size_t count = static_cast<std::size_t>(last - first);
        if (count > capacity_ - size_) Reserve((size_ + count) * 2);
        for (T* out = data_ + size_; first != last; ++first, ++out) *out = *first;
        size_ += count;
    }

private:
    T* data_ = nullptr;  ///< owned
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

#endif
