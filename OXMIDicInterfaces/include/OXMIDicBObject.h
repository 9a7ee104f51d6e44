#ifndef OXMI_DIC_BOBJECT_H
#define OXMI_DIC_BOBJECT_H

#include "OXMIDicElement.h"

/// A retired kind without operations of its own; nothing creates it.
class OXMIDicBObject : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicBObject; }

protected:
    ~OXMIDicBObject() = default;
};

#endif
