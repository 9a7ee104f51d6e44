/// The texts about attribute blocks, once. Spelling and blanks are part of the behaviour.
#ifndef ZAN_DIC_BLOCK_TEXTS_H
#define ZAN_DIC_BLOCK_TEXTS_H

#include <string_view>

namespace blocktext {

inline constexpr std::string_view kUndefined = "UNDEFINED";  ///< the name of a block without one
inline constexpr std::string_view kDefaultBlock = "_OXMIDic_CBlock_";

// lines on standard error
inline constexpr std::string_view kNoName = "ERROR : no Name for Attribute Block ";
inline constexpr std::string_view kNoFather = "ERROR : no father found for Attribute Block ";
inline constexpr std::string_view kCyclicExtents = "ERROR : cyclic Extents for AttributeBlock ";
inline constexpr std::string_view kTuningError = "Tuning Error on Class ";
inline constexpr std::string_view kScope = "::";
inline constexpr std::string_view kDuplicatedAttributes = " : duplicated attributes :";
inline constexpr std::string_view kBlockTwice = " : block name defined twice : ";

}  // namespace blocktext

#endif
