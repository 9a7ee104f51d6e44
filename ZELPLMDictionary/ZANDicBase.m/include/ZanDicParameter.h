#ifndef ZAN_DIC_PARAMETER_H
#define ZAN_DIC_PARAMETER_H

#include "ZanDicElement.h"

/// A parameter of a method: type, direction and default value.
///
/// The type is a link: it reads as unset once its object is gone. A null pointer as an argument gives E_FAIL
/// and changes nothing. One thread.
class ZANDICBASE_API ZanDicParameter : public ZanDicElement {
public:
    /// No type, kind 0, an empty default.
    ZanDicParameter(const ZELString& name, const ZELDbBinary& uuid);
    ZanDicParameter(const ZanDicParameter&) = default;
    ZanDicParameter& operator=(const ZanDicParameter&) = default;
    ~ZanDicParameter() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    _type get_type() const override { return _type_Parameter; }
    using ZanDicObj::GetType;

    /// \param[out] type carries one reference. \returns S_OK; S_FALSE, with \p type untouched, when unset.
    HRESULT GetType(OXMIDicElement** type) const;

    /// Stores an element of any kind; null and what is not in the dictionary change nothing.
    /// \returns E_FAIL in every case.
    HRESULT SetType(const OXMIDicElement* type);

    /// Plain values. \returns S_OK.
    HRESULT GetKind(OXMDicKIND* kind) const;
    HRESULT SetKind(OXMDicKIND kind);
    HRESULT GetDefault(ZELUnicodeString* value) const;
    HRESULT SetDefault(const ZELUnicodeString* value);

protected:
    void drop_Links() override;
    int lost_Links(LinkName link) const override;

private:
    ZanDicLink<ZanDicElement> _TypeElement;  ///< not owning
    OXMDicKIND _Kind = OXMDicKIND_None;
    ZELUnicodeString _Default{""};
};

#endif
