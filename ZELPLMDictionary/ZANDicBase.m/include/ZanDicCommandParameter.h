#ifndef ZAN_DIC_COMMAND_PARAMETER_H
#define ZAN_DIC_COMMAND_PARAMETER_H

#include "ZanDicAttribute.h"

/// A retired kind, as `ZanDicCommand`: an attribute whose own operations only write a notice and give E_FAIL.
/// One thread.
class ZANDICBASE_API ZanDicCommandParameter : public ZanDicAttribute {
public:
    ZanDicCommandParameter(const ZELString& name, const ZELDbBinary& uuid);
    /// Copies the attribute part.
    ZanDicCommandParameter(const ZanDicCommandParameter&) = default;
    ZanDicCommandParameter& operator=(const ZanDicCommandParameter&) = default;
    ~ZanDicCommandParameter() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    /// Writes the notice as well.
    _type get_type() const override;

    /// \returns E_FAIL.
    HRESULT GetOrigin(OXMIDicElement** origin) const;
    HRESULT GetTarget(OXMIDicElement** target) const;
    HRESULT SetTarget(const OXMIDicElement* target);
};

#endif
