#ifndef OXMI_DIC_RELATIONSHIP_H
#define OXMI_DIC_RELATIONSHIP_H

#include "OXMIDicAttribute.h"

/// An attribute that refers to objects of a target class.
class OXMIDicRelationship : public OXMIDicAttribute {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicRelationship; }

    /// Whether two objects may not share a target. Set it before the target: only SetTarget notes the
    /// attribute among those that point at the class. \returns S_OK.
    virtual HRESULT SetInjective(unsigned char injective) = 0;
    virtual HRESULT GetInjective(unsigned char* injective) = 0;

    /// Enumerated properties; Shared and None at first. \returns S_OK.
    virtual HRESULT SetAggregationMode(OXMDicAGGREGATION aggregation) = 0;
    virtual HRESULT GetAggregationMode(OXMDicAGGREGATION* aggregation) = 0;
    virtual HRESULT SetScope(OXMDicSCOPE scope) = 0;
    virtual HRESULT GetScope(OXMDicSCOPE* scope) = 0;

    /// Types the attribute by a class. \returns S_OK; E_FAIL for null or an object of another library.
    virtual HRESULT SetTarget(const OXMIDicClass* target) = 0;

    /// \param[out] target the class that the attribute refers to.
    /// \returns S_OK; S_FALSE without a type; E_FAIL when the type is no class.
    virtual HRESULT GetTarget(OXMIDicClass** target) = 0;

    /// Notes \p inverse as one that inverts this relationship; the inverse's side is set apart
    /// (`OXMIDicInverse::SetInverse`). Twice the same is listed twice.
    /// \returns S_OK; E_FAIL for null, on an attribute that is no relationship, or for an object of
    /// another library.
    virtual HRESULT SetInvertedAttribute(const OXMIDicInverse* inverse) = 0;

    /// Appends the inverses (`OXMIDicInverse`), in the order in which they were noted.
    /// \returns S_OK; E_FAIL for a null list.
    virtual HRESULT GetInvertedAttributes(ZELListPtrIUnknown* inverses) = 0;

    /// Obsolete: writes a notice. \returns E_FAIL.
    virtual HRESULT GetInvertedAttribute(OXMIDicInverse** inverse) = 0;

    /// The classes to which the attribute applies, with all below them: told apart by identity, not by name.
    /// \returns S_OK; S_FALSE when the class is among them already; E_FAIL for null, an object of another
    /// library or, after an error line, one that is no class.
    virtual HRESULT AddScope(const OXMIDicElement* scope) = 0;

    /// \returns S_OK, also where none was ever added; E_FAIL for null or a class that is not among them.
    virtual HRESULT RemoveScope(const OXMIDicElement* scope) = 0;

    /// Appends the classes that were added, in order. \returns S_OK; S_FALSE when none ever was; E_FAIL for a
    /// null list.
    virtual HRESULT GetScopes(ZELListPtrIUnknown* scopes) = 0;

    /// Without a scope, or with one that was emptied by hand, every class is in it; with one whose classes
    /// are all gone none is. The first question after a change walks all subclasses and writes two lines for
    /// each to standard error. \param[out] inScope 1 or 0. \returns S_OK for 1, S_FALSE for 0; E_FAIL for
    /// null.
    virtual HRESULT IsClassInScope(const ZELDbBinary* classUuid, unsigned char* inScope) = 0;

protected:
    ~OXMIDicRelationship() = default;
};

#endif
