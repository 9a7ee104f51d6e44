#ifndef ZELXMLBLOCK_H
#define ZELXMLBLOCK_H

#include <algorithm>
#include <cstddef>
#include <type_traits>

/// Memory of a ZELXMLBlock: grown in place or moved by the system, so that a big block is never copied.
/// Throws std::bad_alloc when there is none; \p memory is still there then.
void* ZELXMLGrow(void* memory, std::size_t bytes);
void ZELXMLFree(void* memory);
/// Makes \p bytes of it ready to be written, in one go instead of page by page.
void ZELXMLMakeReady(void* memory, std::size_t bytes) noexcept;

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
    T& operator[](std::size_t index) { return data_[index]; }

    /// Makes room for \p room values. Room that is never written takes no memory.
    void Reserve(std::size_t room) {
        if (room <= room_) return;
        data_ = static_cast<T*>(ZELXMLGrow(data_, room * sizeof(T)));
        room_ = room;
    }

    /// Says how many values there are; those that are new are the caller's to write.
    void SetSize(std::size_t size) {
        Reserve(size);
        size_ = size;
        ready_ = std::max(ready_, size);
    }

    void Append(const T& value) {
        if (size_ == ready_) make_Ready(size_ + 1);
        data_[size_++] = value;
    }

    void Append(const T* first, const T* last) {
        const std::size_t count = static_cast<std::size_t>(last - first);
        if (count > ready_ - size_) make_Ready(size_ + count);
        for (T* out = data_ + size_; first != last; ++first, ++out) *out = *first;
        size_ += count;
    }

private:
    /// So much is made ready at once: it is still in the cache when it is written.
    static constexpr std::size_t kStep = std::size_t{256} * 1024 / sizeof(T);

    void make_Ready(std::size_t size) {
        if (size > room_) Reserve(size * 2 + 16);
        const std::size_t ready = std::min(std::max(size, ready_ + kStep), room_);
        ZELXMLMakeReady(data_ + ready_, (ready - ready_) * sizeof(T));
        ready_ = ready;
    }

    T* data_ = nullptr;  ///< owned
    std::size_t size_ = 0;
    std::size_t ready_ = 0;  ///< so many can be written without asking
    std::size_t room_ = 0;
};

#endif
