/// Notices of operations that are obsolete, deprecated or not available: their texts, once.
#ifndef ZAN_DIC_NOTICES_H
#define ZAN_DIC_NOTICES_H

#include <string>
#include <string_view>

#include "ZELDbBinary.h"
#include "ZELResult.h"
#include "ZELUuid.h"
#include "ZanDicTrace.h"

namespace notice {

inline constexpr std::string_view kDeprecated =
    "*** ERROR *** Deprecated functionnality. Should not be used anymore";
inline constexpr std::string_view kNotImplemented = "*** WARNING *** Functionnality not implemented yet";
inline constexpr std::string_view kUuidAssigned =
    "*** WARNING *** This method is now obsolete. Uuid will be assigned dynamically.";
inline constexpr std::string_view kUuidNeeded =
    "*** ERROR *** This method is now obsolete. Please use now the new method providing the Uuid";
inline constexpr std::string_view kNullRBOClass = "997- *** ERROR *** Null input argument";
inline constexpr std::string_view kForeignRBOClass =
    "992- *** ERROR *** Unable to get ZanDicRBOClass from OXMIDicRBOClass";

}  // namespace notice

/// Writes \p operation, " - " and \p text, whatever the trace settings.
inline void WriteNotice(std::string_view operation, std::string_view text, ZELLineSeverity severity) {
    ZanDicWriteAlways(std::string(operation).append(" - ").append(text), severity);
}

/// The factories without UUID: warn, then go on with a random one.
/// \returns what \p create gives; E_FAIL, without a word, when \p name or \p out is null.
template <class Name, class Out, class Create>
HRESULT CreateWithFreshUuid(std::string_view operation, const Name* name, Out* out, const Create& create) {
    if (name == nullptr || out == nullptr) return E_FAIL;
    WriteNotice(operation, notice::kUuidAssigned, ZELLineSeverity::Warning);
    const ZELDbBinary uuid = getuuid();
    return create(&uuid);
}

#endif
