#include "ZanDicScope.h"

#include <string>
#include <vector>

#include "HexToBinary.h"
#include "ZELMetaClass.h"
#include "ZanDicClass.h"
#include "ZanDicTrace.h"

ZELMetaClass& ZanDicScope::ClassMeta() {
    static ZELMetaClass meta("ZanDicScope");
    return meta;
}

const char* ZanDicScope::ClassName() { return ClassMeta().Name(); }

ZanDicScope::ZanDicScope() = default;

ZanDicScope::~ZanDicScope() = default;

HRESULT ZanDicScope::AddClass(ZanDicClass& scope) {
    if (scope.is_Gone()) return E_FAIL;
    if (!_CLASSES.Append(scope)) return S_FALSE;
    _EXPANDED.clear();
    return S_OK;
}

HRESULT ZanDicScope::RemoveClass(const ZanDicClass& scope) {
    _EXPANDED.clear();
    return _CLASSES.Remove(scope) ? S_OK : E_FAIL;
}

bool ZanDicScope::Restricts() const { return _CLASSES.Size() != 0 || _CLASSES.LostCount() != 0; }

bool ZanDicScope::Holds(const ZELDbBinary& classUuid) {
    if (_LostAtExpansion != _CLASSES.LostCount()) _EXPANDED.clear();
    if (_EXPANDED.empty()) {
        const int size = _CLASSES.Size();
        try {
            for (int position = 1; position <= size; ++position) Expand(*_CLASSES[position]);
        } catch (...) {
            _EXPANDED.clear();  // or it would pass for the whole
            throw;
        }
    }
    return _EXPANDED.count(classUuid) != 0;
}

void ZanDicScope::Expand(ZanDicClass& root) {
    _LostAtExpansion = _CLASSES.LostCount();
    std::vector<const ZanDicClass*> found{&root};
    for (std::size_t next = 0; next < found.size(); ++next) {
        _EXPANDED.insert(found[next]->Uuid());
        const ZanDicLinkList<ZanDicClass>& below = found[next]->get_SubClasses();
        const int size = below.Size();
        for (int position = 1; position <= size; ++position) {
            const ZanDicClass* const subClass = below[position];
            if (subClass->get_SuperClass() == found[next]) found.push_back(subClass);
        }
    }
    for (std::size_t next = 1; next < found.size(); ++next) {
        ZanDicWriteError(std::string("name").append(found[next]->Name().View()), ZELLineSeverity::None);
        ZanDicWriteError(std::string("Uuid du sous-type:").append(UuidText(found[next]->Uuid())),
                         ZELLineSeverity::None);
    }
}
