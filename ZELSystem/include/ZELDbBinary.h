#ifndef ZELDBBINARY_H
#define ZELDBBINARY_H

#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>

#include "ZELExport.h"
#include "ZELHash.h"

/// Up to 16 bytes, held inline: the bytes of a UUID, or none.
///
/// 17 bytes without alignment, so that it fits anywhere in an object. Copies like a number.
class ZELSYSTEM_API ZELDbBinary {
public:
    static constexpr int kCapacity = 16;

    /// No bytes.
    constexpr ZELDbBinary() noexcept = default;

    /// Copies the first \p length bytes, 16 at most. A null pointer or a length below 1 gives no bytes.
    ZELDbBinary(const unsigned char* bytes, int length) noexcept {
        if (bytes == nullptr || length <= 0) return;
        _Length = static_cast<unsigned char>(length < kCapacity ? length : kCapacity);
        std::memcpy(_Bytes, bytes, _Length);
    }

    const unsigned char* Data() const noexcept { return _Bytes; }
    int Length() const noexcept { return _Length; }
    bool IsEmpty() const noexcept { return _Length == 0; }

    /// \returns the hash key of all bytes.
    std::uint32_t ComputeHashKey() const noexcept { return ZELHashBytes16(_Bytes, _Length); }

    /// \returns the order by bytes, a shorter one before what it begins: negative, 0 when equal, or positive.
    int Compare(const ZELDbBinary& other) const noexcept {
        const int order = std::memcmp(_Bytes, other._Bytes, kCapacity);
        return order != 0 ? order : static_cast<int>(_Length) - static_cast<int>(other._Length);
    }

    friend bool operator==(const ZELDbBinary& a, const ZELDbBinary& b) noexcept {
        return std::memcmp(&a, &b, sizeof(ZELDbBinary)) == 0;
    }
    friend bool operator<(const ZELDbBinary& a, const ZELDbBinary& b) noexcept { return a.Compare(b) < 0; }

    /// \returns two upper-case hexadecimal digits per byte, without dashes; "" when empty.
    std::string HexText() const;

private:
    unsigned char _Bytes[kCapacity] = {};  ///< zero behind the length, so that whole blocks compare
    unsigned char _Length = 0;
};

static_assert(sizeof(ZELDbBinary) == 17 && alignof(ZELDbBinary) == 1);
static_assert(std::is_trivially_copyable_v<ZELDbBinary>);

#endif
