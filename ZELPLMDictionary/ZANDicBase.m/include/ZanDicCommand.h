#ifndef ZAN_DIC_COMMAND_H
#define ZAN_DIC_COMMAND_H

#include "ZanDicClass.h"

/// A retired kind, kept for callers built against it: nothing creates commands, and every operation of their
/// own only writes a notice and gives E_FAIL. What a class has works. One thread.
class ZANDICBASE_API ZanDicCommand : public ZanDicClass {
public:
    ZanDicCommand(const ZELString& name, const ZELDbBinary& uuid);
    ~ZanDicCommand() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    /// Writes the notice as well.
    _type get_type() const override;

    /// \returns E_FAIL.
    HRESULT CreateParameter(const ZELString* name, OXMIDicCommandParameter** parameter);
    HRESULT CreateParameter(const ZELString* name, const ZELDbBinary* uuid,
                            OXMIDicCommandParameter** parameter);
    HRESULT GetCommandType(OXMDicCDETYPE* type) const;
    HRESULT SetCommandType(OXMDicCDETYPE type);
    HRESULT GetElements(ZELListPtrIUnknown* elements) const;
    HRESULT GetTarget(OXMIDicClass** target) const;
    HRESULT SetTarget(const OXMIDicClass* target);
};

#endif
