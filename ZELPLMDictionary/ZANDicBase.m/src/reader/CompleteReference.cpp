#include "CompleteReference.h"

namespace complete {

namespace {

/// Package, name and domain of an element, as far as it has them.
struct Whereabouts {
    explicit Whereabouts(OXMIDicElement& element) {
        element.GetName(&name);
        if (element.GetPackage(package.Out()) != S_OK || !package) return;
        package->GetName(&packageName);
        package->GetDomain(&domain);
    }

    std::string Text() const {
        std::string text = Joined({name.View(), text::kInPackage, packageName.View()});
        if (!domain.IsEmpty()) text += Joined({text::kForDomain, domain.View()});
        return text;
    }

    ZELString name;
    ZELString packageName;
    ZELString domain;
    ZanDicRef<OXMIDicPackage> package;
};

/// Why a setter refuses an object of the right kind, for people. The setters that are not here do so only for
/// an object that is being taken out.
struct Refusal {
    std::string_view setter;
    std::string_view why;
};

constexpr Refusal kRefusals[] = {
    {"SetSuperClass", "it is the class itself or below it, or an extension above a class"},
    {"SetSuperInterface", "it is the interface itself or below it"},
    {"AddScope", "it is no class"},
    {"AddElement", "the key has an attribute of that name already"},
};

std::string_view WhyRefused(std::string_view setter) {
    for (const Refusal& refusal : kRefusals) {
        if (refusal.setter == setter) return refusal.why;
    }
    return "the model does not allow it";
}

}  // namespace

std::string ReferenceLine(const ReferenceSpot& spot, std::string_view reason) {
    return Joined({text::kCouldNotProcess, NameOf(spot.node), text::kAttributeOf, spot.attribute.Name(),
                   text::kBecause, reason});
}

Fault ReferenceFault(const ReferenceSpot& spot, ZanDicDiagnosticCode code, OXMIDicElementH* target) {
    Fault fault = FaultOf(spot.reading, code, spot.node);
    fault.attribute = spot.attribute;
    if (target != nullptr) SetOther(fault, *target);
    return fault;
}

HRESULT ReportLeftOut(const ReferenceSpot& spot, std::string_view uuidText, int cause) {
    Fault fault = ReferenceFault(spot, ZanDicDiagnosticCode::ReferenceNotFound, nullptr);
    fault.detail = uuidText;
    return spot.reading.faults.ReportConsequence(std::move(fault), cause);
}

HRESULT ReportSetterFailed(const ReferenceSpot& spot, OXMIDicElementH& target, std::string_view setter) {
    Fault fault = ReferenceFault(spot, ZanDicDiagnosticCode::ReferenceRefused, &target);
    fault.detail = WhyRefused(setter);
    fault.lines.push_back({spot.trace, ReferenceLine(spot, Joined({setter, text::kFailed}))});
    return spot.reading.faults.Report(fault);
}

std::string DomainConflict(OXMIDicElement& element, OXMIDicElement& other) {
    ZanDicRef<OXMIDicPackage> package;
    ZanDicRef<OXMIDicPackage> otherPackage;
    element.GetPackage(package.Out());
    other.GetPackage(otherPackage.Out());
    // An object has one adapter per interface: the same pointer is the same package.
    if (package && package.Get() == otherPackage.Get()) return {};

    const Whereabouts here(element);
    const Whereabouts there(other);
    if (!here.package || !there.package) return std::string(text::kNoPackageOfElement);
    if (here.domain == there.domain) return {};
    return Joined({text::kElement, here.Text(), text::kCannotBeRelated, there.Text(), text::kDomainsDiffer});
}

void AddReferenceLine(Fault& fault, const ReferenceSpot& spot, std::string_view reason) {
    fault.lines.push_back({spot.trace, ReferenceLine(spot, reason)});
}

}  // namespace complete
