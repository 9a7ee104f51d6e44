#include "ZELUuid.h"

#include <uuid/uuid.h>

ZELDbBinary getuuid() noexcept {
    uuid_t bytes;
    uuid_generate(bytes);
    return {bytes, sizeof bytes};
}
