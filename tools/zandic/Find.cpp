#include "Find.h"

#include <fmt/format.h>

namespace tool {

zandic::Handle<OXMIDicPackage> FindPackage(Session& session, const Target& target) {
    if (!session.Load(target.package)) return {};
    auto package = session.Package(target.package);
    if (!package) session.Refuse(target.text, "the package is gone again");
    return package;
}

std::vector<AskedPackage> FindPackages(Session& session, const std::vector<std::string>& names) {
    std::vector<AskedPackage> packages;
    for (const std::string& name : names) {
        if (auto wrong = WrongPackageName(name)) {
            session.RejectUse(name, *wrong);
        } else {
            packages.push_back({name, FindPackage(session, {name, {}, name, {}, {}})});
        }
    }
    return packages;
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
