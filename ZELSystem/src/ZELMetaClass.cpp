#include "ZELMetaClass.h"

#include "ZELFatalError.h"

namespace {

constinit std::uint32_t nextTag = 1;  ///< 0 marks an adapter that no row has made yet

}  // namespace

constinit std::uint32_t ZELMetaClass::version = 1;

/// Looks through the rows of the class and of its bases. \returns whether \p found holds the row now.
bool ZELMetaClass::search_Tie(const ZELInterfaceId& id, Found& found) const noexcept {
    for (const ZELMetaClass* meta = this; meta != nullptr; meta = meta->_Base) {
        for (std::uint32_t index = 0; index < meta->_RowCount; ++index) {
            if (meta->_Rows[index].interfaceId != id) continue;
            found = {meta->_Rows + index, meta->_FirstTag + index, version};
            return true;
        }
    }
    return false;
}

bool ZELMetaClass::IsAKindOf(std::string_view name) const noexcept {
    for (const ZELMetaClass* meta = this; meta != nullptr; meta = meta->_Base) {
        if (name == meta->_Name) return true;
    }
    return false;
}

void ZELMetaClass::RegisterTies(std::span<const ZELTieRow> rows) {
    if (_Rows != nullptr) ZELFatalError("AssertionFailed:_Rows == nullptr", "ZELMetaClass", 24);
    _Rows = rows.data();
    _RowCount = static_cast<std::uint32_t>(rows.size());
    _FirstTag = nextTag;
    nextTag += _RowCount;
    ++version;
}
