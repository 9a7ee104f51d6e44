#include "ZELMetaClass.h"

#include "ZELFatalError.h"

namespace {

constinit std::uint32_t nextTag = 1;  ///< 0 marks an adapter that no row has made yet

}  // namespace

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
}
