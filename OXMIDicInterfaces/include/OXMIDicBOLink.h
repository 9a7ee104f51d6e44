#ifndef OXMI_DIC_BOLINK_H
#define OXMI_DIC_BOLINK_H

#include "OXMIDicElement.h"

/// A retired kind without operations of its own; nothing creates it.
class OXMIDicBOLink : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicBOLink; }

protected:
    ~OXMIDicBOLink() = default;
};

#endif
