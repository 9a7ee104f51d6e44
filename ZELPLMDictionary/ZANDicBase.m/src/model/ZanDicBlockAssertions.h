/// Promises of callers, and of this library to itself, about attribute blocks; a broken one ends the process.
#ifndef ZAN_DIC_BLOCK_ASSERTIONS_H
#define ZAN_DIC_BLOCK_ASSERTIONS_H

#include "ZELFatalError.h"

/// What a fatal message names; the numbers are fixed text.
struct BlockAssertion {
    const char* message;
    const char* source;
    int line;

    void Require(bool holds) const {
        if (!holds) ZELFatalError(message, source, line);
    }
};

namespace assertion {

inline constexpr BlockAssertion kCreatedBlocks{"AssertionFailed:iCreatedBlocks", "ZanDicPackage", 1182};

/// An object behind each entry of the list, by pass: name and register, root, father, attributes. The first
/// pass meets every entry, so the others cannot fail.
inline constexpr BlockAssertion kBlockOfPass[] = {
    {"AssertionFailed:Block", "ZanDicPackage", 1199},
    {"AssertionFailed:Block", "ZanDicPackage", 1230},
    {"AssertionFailed:Block", "ZanDicPackage", 1241},
    {"AssertionFailed:Block", "ZanDicPackage", 1252},
};

inline constexpr BlockAssertion kVisibleBlock{"AssertionFailed:block", "ZanDicPackage", 1301};
inline constexpr BlockAssertion kNothingVisibleYet{"AssertionFailed:!_AllAttributeBlocks.Size()",
                                                   "ZanDicClass", 1233};

}  // namespace assertion

#endif
