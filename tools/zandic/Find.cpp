#include "Find.h"

#include <fmt/format.h>

namespace tool {

zandic::Handle<OXMIDicPackage> FindPackage(Session& session, const Target& target) {
    if (!session.Load(target.package)) return {};
    auto package = session.Package(target.package);
    if (!package) session.Refuse(target.text, "the package is gone again");
    return package;
}

zandic::Handle<OXMIDicElement> FindElement(Session& session, OXMIDicPackage& package, const Target& target) {
    auto element = zandic::Find(package, &OXMIDicPackage::GetElement, target.element);
    if (!element) {
        session.Refuse(target.text, fmt::format("package {} has no element {}", zandic::Name(package).View(),
                                                target.element));
    }
    return element;
}

}  // namespace tool
