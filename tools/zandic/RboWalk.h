/// Walks over what a mapping owns. Nests are as deep as documents make them, so nothing recurses.
#ifndef ZANDIC_TOOL_RBO_WALK_H
#define ZANDIC_TOOL_RBO_WALK_H

#include <vector>

#include "OXMIDicRBOComponent.h"
#include "OXMIDicRBOMapping.h"
#include "OXMIDicRBOPathExpression.h"
#include "OXMIDicRBORoot.h"
#include "zandic.hpp"

namespace tool {

/// \returns the direct components of a root or component.
inline zandic::List<OXMIDicRBOComponent> ComponentsOf(OXMIDicRBORoot& root) {
    return zandic::All<OXMIDicRBOComponent>(root, &OXMIDicRBORoot::GetElements);
}
inline zandic::List<OXMIDicRBOComponent> ComponentsOf(OXMIDicRBOComponent& component) {
    return zandic::All<OXMIDicRBOComponent>(component, &OXMIDicRBOComponent::GetElements);
}

/// Calls \p visit(object, owner) for each root, component and path expression below the mapping, the owner
/// always before what it owns.
template <class Visit>
void ForEachBelow(OXMIDicRBOMapping& mapping, Visit&& visit) {
    std::vector<zandic::Handle<OXMIDicRBOComponent>> pending;
    const auto visitAll = [&](const zandic::List<OXMIDicRBOComponent>& components, OXMIDicElement& owner) {
        for (OXMIDicRBOComponent& component : components) {
            visit(component, owner);
            pending.push_back(zandic::Handle<OXMIDicRBOComponent>::Share(&component));
        }
    };
    for (OXMIDicRBORoot& root : zandic::All<OXMIDicRBORoot>(mapping, &OXMIDicRBOMapping::GetElements)) {
        visit(root, mapping);
        visitAll(ComponentsOf(root), root);
        while (!pending.empty()) {
            const auto component = std::move(pending.back());
            pending.pop_back();
            if (const auto path = zandic::Link(*component, &OXMIDicRBOComponent::GetRBOPathExpression)) {
                visit(*path, *component);
            }
            visitAll(ComponentsOf(*component), *component);
        }
    }
}

/// \returns the name of what a getter hands out, else the text that is stored beside it.
template <class Object, class Getter, class TextGetter>
std::string LinkedName(Object& object, Getter getter, TextGetter textGetter) {
    if (const auto linked = zandic::Link(object, getter)) return std::string(zandic::Name(*linked).View());
    const auto text = zandic::Get(object, textGetter);
    return text ? std::string(text->View()) : std::string();
}

}  // namespace tool

#endif
