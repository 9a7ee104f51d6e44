#include "ZanDicRBOObject.h"

#include <string>

#include "ZanDicTrace.h"

HRESULT AppendRBOMembers(const ZanHashList& members, ZELListPtrIUnknown* list, std::string_view operation) {
    const ZanDicTraceScope trace(operation);
    if (list == nullptr) {
        trace.Error("- *** ERROR *** NULL input argument");
        return E_FAIL;
    }
    HRESULT rc = S_OK;
    for (int position = 1; position <= members.Size(); ++position) {
        const ZanDicObj* const member = members[position];
        if (member == nullptr) {
            trace.Error("- *** ERROR *** NULL element in _ATTRIBUTES list");
            return E_FAIL;
        }
        rc = AppendInterface(*member, list);
    }
    return rc;
}

void DumpRBOObject(const ZanDicElement& element, const char* caller) {
    const std::string prefix = std::string(element.IsA()) + "::Dump - ";
    ZanDicWriteAlways(prefix + " called by " + (caller != nullptr ? caller : "") + " ------");
    element.ZanDicElement::Dump(caller);
    ZELListValZELUnicodeString names;
    ZELListValZELUnicodeString values;
    element.GetAllOtherAttributes(names, values);
    for (int position = 1; position <= names.Size(); ++position) {
        ZanDicWriteAlways(
            std::string(prefix).append(names[position].View()).append("=").append(values[position].View()));
    }
}
