#ifndef OXMI_DIC_COMMAND_PARAMETER_H
#define OXMI_DIC_COMMAND_PARAMETER_H

#include "OXMIDicElement.h"

/// A retired kind. Every operation writes a notice and fails.
class OXMIDicCommandParameter : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicCommandParameter; }

    virtual HRESULT GetOrigin(OXMIDicElement** origin) = 0;
    virtual HRESULT GetTarget(OXMIDicElement** target) = 0;
    virtual HRESULT SetTarget(const OXMIDicElement* target) = 0;

protected:
    ~OXMIDicCommandParameter() = default;
};

#endif
