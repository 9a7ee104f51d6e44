#include "ZELString.h"

#include "ZELHash.h"

std::uint32_t ZELString::empty_Key() noexcept { return ZELHashText({}); }
