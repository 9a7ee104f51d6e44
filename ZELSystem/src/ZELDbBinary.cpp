#include "ZELDbBinary.h"

std::string ZELDbBinary::HexText() const {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text;
    text.reserve(static_cast<std::size_t>(_Length) * 2);
    for (int index = 0; index < _Length; ++index) {
        text += kDigits[_Bytes[index] >> 4];
        text += kDigits[_Bytes[index] & 0x0F];
    }
    return text;
}
