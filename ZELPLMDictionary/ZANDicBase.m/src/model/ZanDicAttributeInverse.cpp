// The two directions of an inversion.
#include <algorithm>

#include "OXMIDicInverse.h"
#include "OXMIDicRelationship.h"
#include "ZanDicAttribute.h"
#include "ZanDicAttributeFields.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicTrace.h"
#include "ZanDicTypeNames.h"

namespace {

void TraceObject(const ZanDicTraceScope& trace, std::string_view label, std::string_view name,
                 OXMDicTYPE type) {
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << label << name << ", type=" << type << " (" << ZanDicTypeName(type) << ")";
    }
}

/// The other side is asked through its interface: it may be an object of another library.
void TraceArgument(const ZanDicTraceScope& trace, std::string_view label, OXMIDicAttribute& argument) {
    if (!trace.On(TraceLevel::Detail)) return;
    ZELString name;
    OXMDicTYPE type = OXMDicTYPE_UNDEFINED;
    argument.GetName(&name);
    argument.GetType(&type);
    TraceObject(trace, label, name.View(), type);
}

}  // namespace

HRESULT ZanDicAttribute::SetInverse(const OXMIDicRelationship* relationship) {
    const ZanDicTraceScope trace("ZanDicAttribute::SetInverse");
    TraceObject(trace, "current object=", Name().View(), Type());
    if (relationship == nullptr) {
        trace.Error("*** ERROR *** Input argument is NULL.");
        return E_FAIL;
    }
    TraceArgument(trace, "iRelationship object=", *const_cast<OXMIDicRelationship*>(relationship));
    if (Type() != OXMDicTYPE_Inverse) {
        trace.Error("*** ERROR *** Method can be used only for Inverse element");
        return E_FAIL;
    }
    auto* const inverted = LiveImplementationOf<ZanDicAttribute>(relationship);
    if (inverted == nullptr) {
        trace.Error("*** ERROR *** Could not get implementation from OXMIDicRelationship");
        return E_FAIL;
    }
    if (is_Gone()) return E_FAIL;
    ZanDicAttributeFields& links = make_Fields();
    if (links.inverseOf) {
        trace.Warning("*** WARNING *** _InverseOf was already assigned... Overriding assignement...");
    }
    links.inverseOf = inverted;
    return S_OK;
}

HRESULT ZanDicAttribute::SetInvertedAttribute(const OXMIDicInverse* inverse) {
    const ZanDicTraceScope trace("ZanDicAttribute::SetInvertedAttribute");
    TraceObject(trace, "current object=", Name().View(), Type());
    if (inverse == nullptr) {
        trace.Error("*** ERROR *** Input argument is NULL.");
        return E_FAIL;
    }
    TraceArgument(trace, "iInverse object=", *const_cast<OXMIDicInverse*>(inverse));
    if (Type() != OXMDicTYPE_Relationship) {
        trace.Error("*** ERROR *** Method can be used only for Relationship element");
        return E_FAIL;
    }
    auto* const inverting = LiveImplementationOf<ZanDicAttribute>(inverse);
    if (inverting == nullptr) {
        trace.Error("*** ERROR *** Could not get implementation from OXMIDicInverse");
        return E_FAIL;
    }
    if (is_Gone()) return E_FAIL;
    auto& inverses = make_Fields().inversedBy;
    inverses.emplace_back(inverting);
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << "_InversedBy.Size()="
             << std::count_if(inverses.begin(), inverses.end(), [](const auto& link) { return bool(link); });
    }
    return S_OK;
}

HRESULT ZanDicAttribute::GetInvertedAttributes(ZELListPtrIUnknown* inverses) const {
    const ZanDicTraceScope trace("ZanDicAttribute::GetInvertedAttributes");
    if (inverses == nullptr) {
        trace.Error("*** ERROR *** Input argument is NULL");
        return E_FAIL;
    }
    HRESULT rc = S_OK;
    if (const ZanDicAttributeFields* links = fields(); links != nullptr) {
        for (const ZanDicLink<ZanDicAttribute>& link : links->inversedBy) {
            const ZanDicAttribute* const inverse = link.Get();
            if (inverse == nullptr) continue;
            if (auto line = trace.Line(TraceLevel::Detail)) {
                line << "Proceeding with object, Name=" << inverse->Name() << ", Type=" << inverse->Type()
                     << " (" << ZanDicTypeName(inverse->Type()) << ")";
            }
            rc = AppendInterface(*inverse, inverses);
            if (Failed(rc)) {
                if (auto line = trace.Error()) {
                    line << "*** ERROR *** Could not bind Interface for object, Name=" << inverse->Name()
                         << ", Type=" << inverse->Type() << " (" << ZanDicTypeName(inverse->Type()) << ")";
                }
            }
        }
    }
    if (auto line = trace.Line(TraceLevel::Detail)) line << "ioAttributes->Size()=" << inverses->Size();
    return rc;
}

HRESULT ZanDicAttribute::GetInvertedAttribute(OXMIDicInverse**) const {
    const ZanDicTraceScope trace("ZanDicAttribute::GetInvertedAttribute");
    trace.Error("*** ERROR *** This method is now obsolete.");
    trace.Error(
        "Please use ZanDicAttribute::GetInvertedAttributes to get a list of objects rather than a single "
        "object.");
    return E_FAIL;
}
