#include "ZELUnicodeString.h"

ZELUnicodeString ZELUnicodeString::Stripped() const {
    const std::string_view text = View();
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return IsNull() ? ZELUnicodeString() : ZELUnicodeString("");
    const std::size_t last = text.find_last_not_of(' ');
    if (first == 0 && last + 1 == text.size()) return *this;
    return ZELUnicodeString(text.substr(first, last + 1 - first));
}
