#include "ZELTie.h"

void ZELGiveBackFrom(ZELListPtrIUnknown* list, int size) noexcept {
    while (list != nullptr && list->Size() > size) {
        IUnknown* const entry = (*list)[list->Size()];
        list->RemovePosition(list->Size());
        if (entry != nullptr) entry->Release();
    }
}
