/// Which class answers which interface.
#ifndef ZAN_DIC_TIE_TABLE_H
#define ZAN_DIC_TIE_TABLE_H

#include <span>

#include "ZELMetaClass.h"

/// The interfaces that one class answers itself; what its bases answer, it answers as well.
struct ZanDicTieTableEntry {
    ZELMetaClass& meta;
    std::span<const ZELTieRow> rows;
};

/// \returns the table, in the order of the kinds. The manager adds its own row.
std::span<const ZanDicTieTableEntry> ZanDicTieTable();

#endif
