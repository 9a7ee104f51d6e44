#include "Hierarchy.h"

#include <algorithm>
#include <utility>

namespace tool {
namespace {

/// \returns what is derived directly. An interface hands its own out as interfaces, so each is asked.
std::vector<ClassHandle> SubClassesOf(OXMIDicClass& element) {
    std::vector<ClassHandle> below;
    for (OXMIDicElementH& each : zandic::All<OXMIDicElementH>(element, &OXMIDicClass::GetSubClasses)) {
        below.push_back(zandic::As<OXMIDicClass>(each));
    }
    return below;
}

/// \returns how many classes are below.
int CountBelow(OXMIDicClass& element) {
    int count = 0;
    std::vector<ClassHandle> pending{ClassHandle::Share(&element)};
    while (!pending.empty()) {
        const ClassHandle next = std::move(pending.back());
        pending.pop_back();
        for (ClassHandle& each : SubClassesOf(*next)) {
            ++count;
            pending.push_back(std::move(each));
        }
    }
    return count;
}

}  // namespace

bool IsInHierarchy(OXMIDicElementH& object) {
    const OXMDicTYPE kind = zandic::Kind(object);
    return kind == OXMDicTYPE_Class || kind == OXMDicTYPE_Extension || kind == OXMDicTYPE_Interface;
}

std::vector<ClassHandle> HierarchyElements(OXMIDicPackage& package) {
    std::vector<ClassHandle> elements;
    for (OXMIDicElement& element : zandic::Elements(package)) {
        if (IsInHierarchy(element)) elements.push_back(zandic::As<OXMIDicClass>(element));
    }
    return elements;
}

ClassHandle AboveOf(OXMIDicClass& element) { return zandic::Link(element, &OXMIDicClass::GetSuperClass); }

std::vector<ClassHandle> ChainAbove(OXMIDicClass& element) {
    std::vector<ClassHandle> chain;
    for (ClassHandle above = AboveOf(element); above; above = AboveOf(*above)) chain.push_back(above);
    std::reverse(chain.begin(), chain.end());
    return chain;
}

void AppendBelow(OXMIDicClass& element, int depth, std::optional<int> limit, bool isLast,
                 std::vector<HierarchyNode>& nodes) {
    std::vector<HierarchyNode> pending{{ClassHandle::Share(&element), depth, isLast, 0}};
    while (!pending.empty()) {
        HierarchyNode node = std::move(pending.back());
        pending.pop_back();
        if (limit && node.depth - depth >= *limit) {
            node.below = CountBelow(*node.element);
        } else {
            const std::size_t first = pending.size();
            for (ClassHandle& each : SubClassesOf(*node.element)) {
                pending.push_back({std::move(each), node.depth + 1, false, 0});
            }
            if (pending.size() > first) pending.back().isLast = true;
            std::reverse(pending.begin() + static_cast<std::ptrdiff_t>(first), pending.end());
        }
        nodes.push_back(std::move(node));
    }
}

}  // namespace tool
