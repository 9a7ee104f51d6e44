#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "Command.h"
#include "Model.h"
#include "Names.h"
#include "Views.h"

namespace tool {
namespace {

using Object = zandic::Handle<OXMIDicElementH>;

Object FindByUuid(Session& session, const Target& target) {
    Object found = session.Dictionary().Search(*target.uuid);
    if (!found) session.Refuse(target.text, "no object of the loaded packages has this UUID");
    return found;
}

/// \returns the members of that name: attributes of a class, own or inherited, unique keys, enumerators.
std::vector<Object> MembersOf(OXMIDicElement& element, const std::string& name) {
    std::vector<Object> members;
    const auto add = [&members](auto&& found) {
        if (found) members.push_back(zandic::As<OXMIDicElementH>(found));
    };
    if (const auto classElement = zandic::As<OXMIDicClass>(element)) {
        add(zandic::Find(*classElement, &OXMIDicClass::GetElement, name));
        add(zandic::Find(*classElement, &OXMIDicClass::GetUnique, name));
    } else if (const auto enumeration = zandic::As<OXMIDicEnum>(element)) {
        add(zandic::Find(*enumeration, &OXMIDicEnum::GetEnumerator, name));
    }
    return members;
}

std::vector<Object> FindByName(Session& session, const Target& target) {
    if (!session.Load(target.package)) return {};
    const auto package = session.Package(target.package);
    if (!package) {
        session.Refuse(target.text, "the package is gone again");
        return {};
    }
    if (target.element.empty()) return {zandic::As<OXMIDicElementH>(package)};

    const auto element = zandic::Find(*package, &OXMIDicPackage::GetElement, target.element);
    if (!element) {
        session.Refuse(target.text, fmt::format("package {} has no element {}", zandic::Name(*package).View(),
                                                target.element));
        return {};
    }
    if (target.member.empty()) return {zandic::As<OXMIDicElementH>(element)};

    std::vector<Object> members = MembersOf(*element, target.member);
    if (members.empty()) {
        session.Refuse(target.text, fmt::format("{} {} has no member {}", TagOf(*element),
                                                QualifiedName(*element), target.member));
    }
    return members;
}

void LoadIn(Session& session, const Options& options) {
    for (const std::string& name : options.in) {
        if (auto wrong = WrongPackageName(name)) {
            session.RejectUse(name, *wrong);
        } else {
            session.Load(name);
        }
    }
}

}  // namespace

void RunShow(Session& session, const Options& options, Output& output) {
    std::vector<Target> targets;
    for (const std::string& name : options.names) {
        Target target = ParseTarget(name);
        if (auto wrong = WrongTarget(target, session.Path())) {
            session.RejectUse(name, *wrong);
        } else {
            targets.push_back(std::move(target));
        }
    }
    const bool hasUuid =
        std::any_of(targets.begin(), targets.end(), [](const Target& each) { return each.uuid.has_value(); });
    if (hasUuid && options.in.empty()) session.LoadWholePath();
    LoadIn(session, options);

    // Everything is found, and so loaded, before the first is shown: each sheet knows all users.
    std::vector<Object> objects;
    for (const Target& target : targets) {
        const std::vector<Object> found =
            target.uuid ? std::vector<Object>{FindByUuid(session, target)} : FindByName(session, target);
        std::copy_if(found.begin(), found.end(), std::back_inserter(objects),
                     [](const Object& object) { return static_cast<bool>(object); });
    }
    AskForAllAttributes(session.Dictionary());
    for (const Object& object : objects) {
        if (&object != &objects.front()) output.Write("\n");
        ShowObject(session.Dictionary(), *object, output);
    }
}

}  // namespace tool
