#ifndef OXMI_DIC_RBO_CLASS_H
#define OXMI_DIC_RBO_CLASS_H

#include "OXMIDicElement.h"

/// A class of the relational side. Its free attributes are its properties.
class OXMIDicRBOClass : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicRBOClass; }

protected:
    ~OXMIDicRBOClass() = default;
};

#endif
