#ifndef ZELUUID_H
#define ZELUUID_H

#include "ZELDbBinary.h"
#include "ZELExport.h"

/// \returns a new universally unique identifier of 16 bytes.
ZELSYSTEM_API ZELDbBinary getuuid() noexcept;

#endif
