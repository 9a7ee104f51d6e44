#ifndef OXMI_DIC_CATEGORY_H
#define OXMI_DIC_CATEGORY_H

#include "OXMIDicElement.h"

/// A named tag that other objects carry, with the name of the group that it belongs to.
class OXMIDicCategory : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicCategory; }

    /// Copies the group out. \returns S_OK.
    virtual HRESULT GetGroup(ZELString* group) = 0;

    /// Replaces the group. \returns S_OK.
    virtual HRESULT SetGroup(const ZELString* group) = 0;

protected:
    ~OXMIDicCategory() = default;
};

#endif
