#include "MemberNames.h"

#include <optional>

#include "Model.h"
#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "RboWalk.h"

namespace tool {

MemberNames::MemberNames(const zandic::Dictionary& dictionary) {
    ForEachPackage(dictionary, [this](OXMIDicPackage& package) {
        const std::size_t owner = Add(package, kNone);
        for (OXMIDicElement& element : zandic::All<OXMIDicElement>(package, &OXMIDicPackage::GetElements)) {
            AddMembers(element, owner);
        }
    });
}

std::size_t MemberNames::Add(OXMIDicElementH& object, std::size_t owner) {
    _ENTRIES.push_back({zandic::Name(object), zandic::Uuid(object), owner});
    return _ENTRIES.size() - 1;
}

template <class Object, class Getter>
void MemberNames::AddAll(Object& object, Getter getter, std::size_t owner) {
    for (OXMIDicElementH& member : zandic::All<OXMIDicElementH>(object, getter)) {
        _PLACES.emplace(zandic::Uuid(member), Add(member, owner));
    }
}

void MemberNames::AddMembers(OXMIDicElement& element, std::size_t owner) {
    const std::size_t own = Add(element, owner);
    if (const auto mapping = zandic::As<OXMIDicRBOMapping>(element)) {
        AddMapping(*mapping, own);
    } else if (const auto enumeration = zandic::As<OXMIDicEnum>(element)) {
        AddAll(*enumeration, &OXMIDicEnum::GetEnumerators, own);
    } else if (zandic::Kind(element) == OXMDicTYPE_Interface) {
        const auto interface = zandic::As<OXMIDicInterface>(element);
        for (OXMIDicMethod& method : zandic::All<OXMIDicMethod>(*interface, &OXMIDicInterface::GetMethods)) {
            const std::size_t place = Add(method, own);
            _PLACES.emplace(zandic::Uuid(method), place);
            AddAll(method, &OXMIDicMethod::GetParameters, place);
        }
    } else if (const auto classElement = zandic::As<OXMIDicClass>(element)) {
        AddAll(*classElement, &OXMIDicClass::GetUniques, own);
    }
}

void MemberNames::AddMapping(OXMIDicRBOMapping& mapping, std::size_t owner) {
    ForEachBelow(mapping, [&](OXMIDicElement& object, OXMIDicElement& above) {
        const auto found = _PLACES.find(zandic::Uuid(above));
        _PLACES.emplace(zandic::Uuid(object), Add(object, found != _PLACES.end() ? found->second : owner));
    });
}

bool MemberNames::AppendName(const ZELDbBinary& uuid, std::string& name) const {
    const auto found = _PLACES.find(uuid);
    if (found == _PLACES.end()) return false;
    std::vector<std::size_t> way;
    for (std::size_t place = found->second; place != kNone; place = _ENTRIES[place].owner) {
        way.push_back(place);
    }
    for (auto next = way.rbegin(); next != way.rend(); ++next) {
        if (next != way.rbegin()) name += kNameSeparator;
        name += _ENTRIES[*next].name.View();
    }
    return true;
}

ZELDbBinary MemberNames::OwnerOf(const ZELDbBinary& uuid) const {
    const auto found = _PLACES.find(uuid);
    if (found == _PLACES.end()) return {};
    return _ENTRIES[_ENTRIES[found->second].owner].uuid;
}

namespace {

std::optional<MemberNames>& CurrentMembers() {
    static std::optional<MemberNames> names;
    return names;
}

}  // namespace

const MemberNames& Members() {
    std::optional<MemberNames>& names = CurrentMembers();
    if (!names) names.emplace(zandic::Dictionary::Open());
    return *names;
}

void ForgetMembers() { CurrentMembers().reset(); }

}  // namespace tool
