#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "Command.h"
#include "Find.h"
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

/// \returns the members of that name: attributes of a class, own or inherited, unique keys, visible blocks,
/// enumerators.
std::vector<Object> MembersOf(OXMIDicElement& element, const std::string& name) {
    std::vector<Object> members;
    const auto add = [&members](auto&& found) {
        if (found) members.push_back(zandic::As<OXMIDicElementH>(found));
    };
    if (const auto classElement = zandic::As<OXMIDicClass>(element)) {
        add(zandic::Find(*classElement, &OXMIDicClass::GetElement, name));
        add(zandic::Find(*classElement, &OXMIDicClass::GetUnique, name));
        add(zandic::Find(*classElement, &OXMIDicClass::GetAttBlock, name));
    } else if (const auto enumeration = zandic::As<OXMIDicEnum>(element)) {
        add(zandic::Find(*enumeration, &OXMIDicEnum::GetEnumerator, name));
    }
    return members;
}

template <class Member>
void AddNamed(const zandic::List<Member>& members, std::string_view name, std::vector<Object>& found) {
    for (Member& member : members) {
        if (zandic::Name(member).View() == name) found.push_back(zandic::As<OXMIDicElementH>(member));
    }
}

/// \returns what the object owns under that name: roots, components and path expressions, methods and
/// parameters.
std::vector<Object> OwnedBy(OXMIDicElementH& object, const std::string& name) {
    std::vector<Object> found;
    if (const auto mapping = zandic::As<OXMIDicRBOMapping>(object)) {
        AddNamed(zandic::All<OXMIDicRBORoot>(*mapping, &OXMIDicRBOMapping::GetElements), name, found);
    } else if (const auto root = zandic::As<OXMIDicRBORoot>(object)) {
        AddNamed(ComponentsOf(*root), name, found);
    } else if (const auto component = zandic::As<OXMIDicRBOComponent>(object)) {
        AddNamed(ComponentsOf(*component), name, found);
        const auto path = zandic::Link(*component, &OXMIDicRBOComponent::GetRBOPathExpression);
        if (path && zandic::Name(*path).View() == name) found.push_back(zandic::As<OXMIDicElementH>(path));
    } else if (const auto method = zandic::As<OXMIDicMethod>(object)) {
        AddNamed(zandic::All<OXMIDicParameter>(*method, &OXMIDicMethod::GetParameters), name, found);
    } else if (const auto interface = zandic::As<OXMIDicInterface>(object)) {
        const auto inherited = zandic::Find(*interface, &OXMIDicInterface::GetMethod, name);
        if (inherited) found.push_back(zandic::As<OXMIDicElementH>(inherited));
    }
    return found;
}

/// Goes down from an interface or a mapping, one separator a level.
std::vector<Object> NestedMembersOf(OXMIDicElement& element, std::string_view way) {
    std::vector<Object> found{zandic::As<OXMIDicElementH>(element)};
    while (!found.empty()) {
        const std::size_t end = way.find(kNameSeparator);
        std::vector<Object> next;
        for (const Object& object : found) {
            for (Object& each : OwnedBy(*object, std::string(way.substr(0, end)))) {
                next.push_back(std::move(each));
            }
        }
        found = std::move(next);
        if (end == way.npos) break;
        way.remove_prefix(end + kNameSeparator.size());
    }
    return found;
}

bool IsNest(OXMIDicElement& element) {
    const OXMDicTYPE kind = zandic::Kind(element);
    return kind == OXMDicTYPE_Interface || kind == OXMDicTYPE_RBOMapping;
}

std::vector<Object> FindByName(Session& session, const Target& target) {
    const auto package = FindPackage(session, target);
    if (!package) return {};
    if (target.element.empty()) return {zandic::As<OXMIDicElementH>(package)};
    const auto element = FindElement(session, *package, target);
    if (!element) return {};
    if (target.member.empty()) return {zandic::As<OXMIDicElementH>(element)};

    std::vector<Object> members =
        IsNest(*element) ? NestedMembersOf(*element, target.member) : MembersOf(*element, target.member);
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
