#ifndef OXMI_DIC_PRIMITIVE_H
#define OXMI_DIC_PRIMITIVE_H

#include "OXMIDicElement.h"

/// A built-in value type.
class OXMIDicPrimitive : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicPrimitive; }

    /// \returns the kind of the primitive.
    virtual OXMDicPRIMITIVEType Primitive() = 0;

protected:
    ~OXMIDicPrimitive() = default;
};

#endif
