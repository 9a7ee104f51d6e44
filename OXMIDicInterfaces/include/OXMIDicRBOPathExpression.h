#ifndef OXMI_DIC_RBO_PATH_EXPRESSION_H
#define OXMI_DIC_RBO_PATH_EXPRESSION_H

#include "OXMIDicElement.h"

/// The way from a component to a target element.
class OXMIDicRBOPathExpression : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicRBOPathExpression; }

    /// The element that the path leads to; stored apart from its UUID and name.
    /// \returns S_OK; setter E_FAIL for null, getter E_FAIL when unset.
    virtual HRESULT SetTarget(const OXMIDicElement* target) = 0;
    virtual HRESULT GetTarget(OXMIDicElement** target) = 0;

    /// \returns S_OK.
    virtual HRESULT SetTargetRef(const ZELDbBinary* uuid) = 0;
    virtual HRESULT GetTargetRef(ZELDbBinary* uuid) = 0;

    /// Texts. \returns S_OK; setters E_FAIL for an empty text, getters of the types E_FAIL when empty.
    virtual HRESULT SetTargetName(const ZELUnicodeString* name) = 0;
    virtual HRESULT GetTargetName(ZELUnicodeString* name) = 0;
    virtual HRESULT SetPathExprType(const ZELUnicodeString* type) = 0;
    virtual HRESULT GetPathExprType(ZELUnicodeString* type) = 0;
    virtual HRESULT SetPathExprSubType(const ZELUnicodeString* subType) = 0;
    virtual HRESULT GetPathExprSubType(ZELUnicodeString* subType) = 0;

protected:
    ~OXMIDicRBOPathExpression() = default;
};

#endif
