#include "ZELBaseUnknown.h"

#include <new>
#include <string_view>

#include "ZELFatalError.h"
#include "ZELMemory.h"
#include "ZELMetaClass.h"
#include "ZELTie.h"

namespace {

constexpr std::string_view kClassName = "ZELBaseUnknown";
constinit ZELMetaClass metaClass(kClassName.data());

/// Count of an object that is being destroyed: references taken and given back meanwhile must not end it
/// again.
constexpr std::uint32_t kDying = 0x40000000U;

}  // namespace

ZELBaseUnknown::~ZELBaseUnknown() {
    if (_Ties != nullptr) ZELFatalError("AssertionFailed:_Ties == nullptr", "ZELBaseUnknown", 24);
}

void ZELBaseUnknown::destroy_Itself() noexcept {
    _Count = kDying;
    delete this;
}

HRESULT ZELBaseUnknown::QueryInterface(const ZELInterfaceId& id, void** out) noexcept {
    try {
        return hand_Out(id, out);
    } catch (const std::bad_alloc&) {
        return ZELNoteShortage();
    }
}

HRESULT ZELBaseUnknown::hand_Out(const ZELInterfaceId& id, void** out) {
    if (out == nullptr) return E_INVALIDARG;
    std::uint32_t tag = 0;
    const ZELTieRow* const row = MetaObject().FindTie(id, &tag);
    if (row == nullptr) return E_NOINTERFACE;

    for (ZELTieLink* tie = _Ties; tie != nullptr; tie = tie->_Next) {
        if (tie->_Tag != tag) continue;
        tie->add_Caller();
        *out = tie->Face();
        return S_OK;
    }

    ZELTieLink* const made = row->make(*this);
    if (made == nullptr) return E_FAIL;
    made->_Tag = tag;
    made->_Next = _Ties;
    _Ties = made;
    *out = made->Face();
    return S_OK;
}

ZELMetaClass& ZELBaseUnknown::MetaObject() const { return metaClass; }

const char* ZELBaseUnknown::IsA() const { return MetaObject().Name(); }

int ZELBaseUnknown::IsAKindOf(const char* className) const {
    return className != nullptr && (className == kClassName || MetaObject().IsAKindOf(className)) ? 1 : 0;
}
