/// What plain getters and setters do.
#ifndef ZAN_DIC_VALUES_H
#define ZAN_DIC_VALUES_H

#include "ZELResult.h"

/// Copies a field out. \returns S_OK; E_FAIL for null.
template <class Value>
HRESULT GiveValue(const Value& field, Value* out) {
    if (out == nullptr) return E_FAIL;
    *out = field;
    return S_OK;
}

/// Replaces a field. \returns S_OK; E_FAIL for null, and the field is as it was.
template <class Value>
HRESULT TakeValue(Value& field, const Value* value) {
    if (value == nullptr) return E_FAIL;
    field = *value;
    return S_OK;
}

#endif
