/// What few classes have: kept apart from the others.
#ifndef ZAN_DIC_CLASS_FIELDS_H
#define ZAN_DIC_CLASS_FIELDS_H

#include "ZanDicClass.h"

struct ZanDicClassFields : ZanDicRareFields {
    ZELUnicodeString lateType{""};
    ZELUnicodeString applicationName{""};
    ZanHashList uniques{29, ZanHashListKind::Owner};  ///< the class owns one reference to each
    ZELListPtrZanDicObj removed;                      ///< and to each member that was removed from its list
};

#endif
