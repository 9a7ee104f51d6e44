#include "AttributeText.h"

#include <fmt/format.h>

#include "Model.h"
#include "OXMIDicInverse.h"
#include "OXMIDicRelationship.h"

namespace tool {
namespace {

/// \returns what a relationship or inverse points at, in the width of a column.
std::string TargetText(const View& view, OXMIDicRelationship& relation, OXMIDicElement* type) {
    if (zandic::Kind(relation) == OXMDicTYPE_Inverse) {
        const auto inverse = zandic::As<OXMIDicInverse>(relation);
        if (const auto of = zandic::Link(*inverse, &OXMIDicInverse::GetInverse))
            return "<- " + NameIn(view, *of);
    }
    const std::string scope(WordOf(relation, &OXMIDicRelationship::GetScope, ZANDicFormat::kScopeWords));
    if (type == nullptr) return "-> ?";
    return "-> " + NameIn(view, *type) + (scope.empty() ? "" : fmt::format(" ({})", scope));
}

}  // namespace

std::string AttributeTypeText(const View& view, OXMIDicAttribute& attribute) {
    const auto type = zandic::TypeOf(attribute);
    if (zandic::Kind(attribute) != OXMDicTYPE_Simple) {
        return TargetText(view, *zandic::As<OXMIDicRelationship>(attribute), type.Get());
    }
    if (!type) return "?";
    const int maxLength = zandic::Get(attribute, &OXMIDicAttribute::GetMaxLength).value_or(-1);
    return NameIn(view, *type) + (maxLength >= 0 ? fmt::format("({})", maxLength) : "");
}

std::string AttributeText(const View& view, OXMIDicAttribute& attribute) {
    return fmt::format("{}: {} {}", zandic::Name(attribute).View(), AttributeTypeText(view, attribute),
                       ValuesText(attribute));
}

}  // namespace tool
