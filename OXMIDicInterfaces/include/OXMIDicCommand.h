#ifndef OXMI_DIC_COMMAND_H
#define OXMI_DIC_COMMAND_H

#include "OXMIDicElement.h"

/// A retired kind. Every operation writes a notice and fails.
class OXMIDicCommand : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicCommand; }
    using OXMIDicElementH::GetType;

    virtual HRESULT CreateParameter(const ZELString* name, OXMIDicCommandParameter** parameter) = 0;
    virtual HRESULT CreateParameter(const ZELString* name, const ZELDbBinary* uuid,
                                    OXMIDicCommandParameter** parameter) = 0;
    virtual HRESULT GetCommandType(OXMDicCDETYPE* type) = 0;
    virtual HRESULT SetCommandType(OXMDicCDETYPE type) = 0;
    virtual HRESULT GetElements(ZELListPtrIUnknown* elements) = 0;
    virtual HRESULT GetTarget(OXMIDicClass** target) = 0;
    virtual HRESULT SetTarget(const OXMIDicClass* target) = 0;

protected:
    ~OXMIDicCommand() = default;
};

#endif
