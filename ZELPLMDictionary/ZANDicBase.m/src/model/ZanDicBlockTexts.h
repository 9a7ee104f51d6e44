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

// the same for people
inline constexpr std::string_view kNoNameReason = "neither the block nor one that it extends has a name";
inline constexpr std::string_view kNoFatherReason = "no class above has a block of the same root to extend";
inline constexpr std::string_view kCyclicReason = "the block extends itself";
inline constexpr std::string_view kDuplicatesReason = "in more than one block: ";
inline constexpr std::string_view kBlockTwiceReason = "there is more than one block named ";

}  // namespace blocktext

#endif
