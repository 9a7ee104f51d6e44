/// What few classes have: kept apart from the others.
#ifndef ZAN_DIC_CLASS_FIELDS_H
#define ZAN_DIC_CLASS_FIELDS_H

#include <memory>

#include "ZanDicClass.h"
#include "ZanDicClassBlocks.h"

struct ZanDicClassFields : ZanDicRareFields {
    ZELUnicodeString lateType{""};
    ZELUnicodeString applicationName{""};
    ZanHashList uniques{29, ZanHashListKind::Owner};    ///< the class owns one reference to each
    ZanHashList methods{29, ZanHashListKind::Owner};    ///< and to each of these
    ZanHashList removed{29, ZanHashListKind::Unnamed};  ///< and to each member that was removed from its list
    std::unique_ptr<ZanDicClassBlocks> blocks;          ///< null as long as nobody asked for blocks
};

#endif
