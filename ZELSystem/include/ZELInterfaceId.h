#ifndef ZELINTERFACEID_H
#define ZELINTERFACEID_H

#include <cstdint>

#include "ZELExport.h"

/// Identifier of an interface: 128 bits, fixed for ever once a program was built with it.
struct ZELSYSTEM_API ZELInterfaceId {
    std::uint64_t high;  ///< first eight bytes
    std::uint64_t low;   ///< last eight bytes

    friend constexpr bool operator==(const ZELInterfaceId&, const ZELInterfaceId&) noexcept = default;
};

#endif
