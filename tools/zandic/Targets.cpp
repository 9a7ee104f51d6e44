#include "Targets.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "Model.h"
#include "Nearest.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "RboWalk.h"

namespace tool {
namespace {

using Object = zandic::Handle<OXMIDicElementH>;

Object FindByUuid(Session& session, const Target& target) {
    Object found = session.Dictionary().Search(*target.uuid);
    if (!found) session.Refuse(target.text, "no object of the loaded packages has this UUID");
    return found;
}

template <class Member>
void AddNames(const zandic::List<Member>& members, Nearest& nearest) {
    for (Member& member : members) nearest.Add(zandic::Name(member).View());
}

/// \returns the element of \p target; null when the package has none of that name.
zandic::Handle<OXMIDicElement> FindElement(Session& session, OXMIDicPackage& package, const Target& target) {
    auto element = zandic::Find(package, &OXMIDicPackage::GetElement, target.element);
    if (!element) {
        Nearest nearest(target.element);
        AddNames(zandic::Elements(package), nearest);
        session.Refuse(target.text,
                       fmt::format("package {} has no element {}{}", zandic::Name(package).View(),
                                   target.element, nearest.Question()));
    }
    return element;
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

/// The names among which MembersOf looks.
void AddMemberNames(OXMIDicElement& element, Nearest& nearest) {
    if (const auto classElement = zandic::As<OXMIDicClass>(element)) {
        AddNames(zandic::Attributes(*classElement), nearest);
        AddNames(zandic::All<OXMIDicUnique>(*classElement, &OXMIDicClass::GetUniques), nearest);
        AddNames(zandic::All<OXMIDicAttributeBlock>(*classElement, &OXMIDicClass::GetAttBlocks), nearest);
    } else if (const auto enumeration = zandic::As<OXMIDicEnum>(element)) {
        AddNames(zandic::All<OXMIDicEnumerator>(*enumeration, &OXMIDicEnum::GetEnumerators), nearest);
    }
}

template <class Member>
void AddObjects(const zandic::List<Member>& members, std::vector<Object>& objects) {
    for (Member& member : members) objects.push_back(zandic::As<OXMIDicElementH>(member));
}

/// \returns what the object owns: roots, components and path expressions, methods and parameters.
std::vector<Object> OwnedBy(OXMIDicElementH& object) {
    std::vector<Object> owned;
    if (const auto mapping = zandic::As<OXMIDicRBOMapping>(object)) {
        AddObjects(zandic::All<OXMIDicRBORoot>(*mapping, &OXMIDicRBOMapping::GetElements), owned);
    } else if (const auto root = zandic::As<OXMIDicRBORoot>(object)) {
        AddObjects(ComponentsOf(*root), owned);
    } else if (const auto component = zandic::As<OXMIDicRBOComponent>(object)) {
        AddObjects(ComponentsOf(*component), owned);
        const auto path = zandic::Link(*component, &OXMIDicRBOComponent::GetRBOPathExpression);
        if (path) owned.push_back(zandic::As<OXMIDicElementH>(path));
    } else if (const auto method = zandic::As<OXMIDicMethod>(object)) {
        AddObjects(zandic::All<OXMIDicParameter>(*method, &OXMIDicMethod::GetParameters), owned);
    } else if (const auto interface = zandic::As<OXMIDicInterface>(object)) {
        AddObjects(zandic::All<OXMIDicMethod>(*interface, &OXMIDicInterface::GetMethods), owned);
        const auto above = zandic::All<OXMIDicInterface>(*interface, &OXMIDicInterface::GetSuperInterfaces);
        for (OXMIDicInterface& each : above) {
            AddObjects(zandic::All<OXMIDicMethod>(each, &OXMIDicInterface::GetMethods), owned);
        }
    }
    return owned;
}

/// Goes down from an interface or a mapping, one separator a level. \p nearest learns the names of the level
/// at which it ends.
std::vector<Object> NestedMembersOf(OXMIDicElement& element, std::string_view way, std::string& question) {
    std::vector<Object> found{zandic::As<OXMIDicElementH>(element)};
    while (true) {
        const std::size_t end = way.find(kNameSeparator);
        const std::string_view name = way.substr(0, end);
        Nearest nearest(name);
        std::vector<Object> next;
        for (const Object& object : found) {
            for (Object& each : OwnedBy(*object)) {
                const ZELString own = zandic::Name(*each);
                nearest.Add(own.View());
                if (own.View() == name) next.push_back(std::move(each));
            }
        }
        question = nearest.Question();
        found = std::move(next);
        if (end == way.npos || found.empty()) return found;
        way.remove_prefix(end + kNameSeparator.size());
    }
}

bool IsNest(OXMIDicElement& element) {
    const OXMDicTYPE kind = zandic::Kind(element);
    return kind == OXMDicTYPE_Interface || kind == OXMDicTYPE_RBOMapping;
}

std::vector<Object> FindMembers(Session& session, OXMIDicElement& element, const Target& target) {
    std::string question;
    std::vector<Object> members;
    if (IsNest(element)) {
        members = NestedMembersOf(element, target.member, question);
    } else if (members = MembersOf(element, target.member); members.empty()) {
        Nearest nearest(target.member);
        AddMemberNames(element, nearest);
        question = nearest.Question();
    }
    if (members.empty()) {
        session.Refuse(target.text, fmt::format("{} {} has no member {}{}", TagOf(element),
                                                QualifiedName(element), target.member, question));
    }
    return members;
}

std::vector<Object> FindByName(Session& session, const Target& target) {
    const auto package = FindPackage(session, target);
    if (!package) return {};
    if (target.element.empty()) return {zandic::As<OXMIDicElementH>(package)};
    const auto element = FindElement(session, *package, target);
    if (!element) return {};
    if (target.member.empty()) return {zandic::As<OXMIDicElementH>(element)};
    return FindMembers(session, *element, target);
}

Target PackageTarget(const std::string& name) { return {name, {}, name, {}, {}}; }

}  // namespace

zandic::Handle<OXMIDicPackage> FindPackage(Session& session, const Target& target) {
    if (!session.Load(target.package)) return {};
    auto package = session.Package(target.package);
    if (!package) session.Refuse(target.text, "the package is gone again");
    return package;
}

void Targets::LoadIn() {
    for (const std::string& name : _Options.in) {
        if (auto wrong = WrongPackageName(name)) {
            _Session.RejectUse(name, *wrong);
        } else {
            _Session.Load(name);
        }
    }
}

std::vector<AskedPackage> Targets::PackagesOfAll() {
    std::vector<AskedPackage> packages;
    const auto add = [&](const std::string& name) {
        if (auto package = _Session.Package(name)) packages.push_back({name, std::move(package)});
    };
    if (_Options.in.empty()) {
        for (const std::string& name : _Session.LoadPath(PathDocuments::Metadata)) add(name);
    } else {
        LoadIn();
        for (const std::string& name : _Options.in) add(name);
    }
    return packages;
}

std::vector<AskedPackage> Targets::Packages() {
    _Session.Expect("loading", _Options.names.size() + _Options.in.size());
    if (AreAll()) return PackagesOfAll();
    std::vector<AskedPackage> packages;
    for (const std::string& name : _Options.names) {
        if (const auto uuid = zandic::ParseUuid(name)) {
            if (const auto document = DocumentOfPackage(*uuid, _Session.Path())) {
                packages.push_back({*document, FindPackage(_Session, PackageTarget(*document))});
            } else {
                _Session.Refuse(name, "no package of the path has this UUID");
                packages.push_back({name, {}});
            }
        } else if (auto wrong = WrongPackageName(name)) {
            _Session.RejectUse(name, *wrong);
        } else {
            packages.push_back({name, FindPackage(_Session, PackageTarget(name))});
        }
    }
    LoadIn();
    return packages;
}

std::vector<AskedObject> Targets::Objects() {
    std::vector<AskedObject> objects;
    _Session.Expect("loading", _Options.names.size() + _Options.in.size());
    if (AreAll()) {
        for (const auto& [asked, package] : PackagesOfAll()) {
            objects.push_back({asked, zandic::As<OXMIDicElementH>(package)});
        }
        return objects;
    }

    std::vector<Target> targets;
    for (const std::string& name : _Options.names) {
        Target target = ParseTarget(name);
        if (auto wrong = WrongTarget(target, _Session.Path())) {
            _Session.RejectUse(name, *wrong);
        } else {
            targets.push_back(std::move(target));
        }
    }
    const bool hasUuid =
        std::any_of(targets.begin(), targets.end(), [](const Target& each) { return each.uuid.has_value(); });
    if (hasUuid && _Options.in.empty()) _Session.LoadPath(PathDocuments::All);
    LoadIn();
    for (const Target& target : targets) {
        const std::vector<Object> found =
            target.uuid ? std::vector<Object>{FindByUuid(_Session, target)} : FindByName(_Session, target);
        for (const Object& each : found) {
            if (each) objects.push_back({target.text, each});
        }
    }
    return objects;
}

}  // namespace tool
