#ifndef ZAN_DIC_RBO_PATH_EXPRESSION_H
#define ZAN_DIC_RBO_PATH_EXPRESSION_H

#include "ZanDicElement.h"

/// The way from a component to a target element.
///
/// The target is a link; its UUID and name are stored apart, and setting one changes none of the others.
/// A null pointer as an argument gives E_FAIL and changes nothing. One thread.
class ZANDICBASE_API ZanDicRBOPathExpression : public ZanDicElement {
public:
    ZanDicRBOPathExpression(const ZELString& name, const ZELDbBinary& uuid);
    ZanDicRBOPathExpression(const ZanDicRBOPathExpression&) = delete;
    ZanDicRBOPathExpression& operator=(const ZanDicRBOPathExpression&) = delete;
    ~ZanDicRBOPathExpression() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }

    /// \returns S_OK; the setter E_FAIL for what is no element in the dictionary, the getter when unset.
    HRESULT SetTarget(const OXMIDicElement* target);
    HRESULT GetTarget(OXMIDicElement** target) const;

    /// Plain value. \returns S_OK.
    HRESULT SetTargetRef(const ZELDbBinary* uuid);
    HRESULT GetTargetRef(ZELDbBinary* uuid) const;

    /// Texts, empty at first. \returns S_OK; the setters E_FAIL for an empty text, the getters of the two
    /// types E_FAIL while theirs is empty.
    HRESULT SetTargetName(const ZELUnicodeString* name);
    HRESULT GetTargetName(ZELUnicodeString* name) const;
    HRESULT SetPathExprType(const ZELUnicodeString* type);
    HRESULT GetPathExprType(ZELUnicodeString* type) const;
    HRESULT SetPathExprSubType(const ZELUnicodeString* subType);
    HRESULT GetPathExprSubType(ZELUnicodeString* subType) const;

    /// Writes a line, the element's dump and one line per property.
    void Dump(const char* caller) const override;

protected:
    void drop_Links() override;
    int lost_Links(LinkName link) const override;

private:
    ZELUnicodeString _PathExprType{""};
    ZELUnicodeString _PathExprSubType{""};
    ZanDicLink<ZanDicElement> _Target;  ///< not owning
    ZELUnicodeString _TargetName{""};
    ZELDbBinary _TargetRef;
};

#endif
