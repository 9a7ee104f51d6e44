#ifndef OXMI_DIC_INVERSE_H
#define OXMI_DIC_INVERSE_H

#include "OXMIDicAttribute.h"

/// The reverse side of a relationship.
class OXMIDicInverse : public OXMIDicAttribute {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicInverse; }

    /// The class that the inverse refers to; as `OXMIDicRelationship::SetTarget` and `GetTarget`.
    virtual HRESULT SetTarget(const OXMIDicClass* target) = 0;
    virtual HRESULT GetTarget(OXMIDicClass** target) = 0;

    /// Sets the relationship that this attribute inverts; an earlier one is replaced, with a warning.
    /// The relationship's side is set apart (`OXMIDicRelationship::SetInvertedAttribute`).
    /// \returns S_OK; E_FAIL for null, on an attribute that is no inverse, or for an object of another
    /// library.
    virtual HRESULT SetInverse(const OXMIDicRelationship* relationship) = 0;

    /// \param[out] relationship the one that this attribute inverts. \returns S_OK; S_FALSE when unset.
    virtual HRESULT GetInverse(OXMIDicRelationship** relationship) = 0;

protected:
    ~OXMIDicInverse() = default;
};

#endif
