#include "Objects.h"

#include "Model.h"
#include "OXMIDicAttributeBlock.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "RboWalk.h"

namespace tool {
namespace {

using Visit = std::function<void(OXMIDicElementH&)>;

template <class Object, class Getter>
void VisitAll(Object& object, Getter getter, const Visit& visit) {
    for (OXMIDicElementH& member : zandic::All<OXMIDicElementH>(object, getter)) visit(member);
}

void VisitMethods(OXMIDicInterface& interface, const Visit& visit) {
    for (OXMIDicMethod& method : zandic::All<OXMIDicMethod>(interface, &OXMIDicInterface::GetMethods)) {
        visit(method);
        VisitAll(method, &OXMIDicMethod::GetParameters, visit);
    }
}

}  // namespace

void ForEachMemberOf(OXMIDicElement& element, const Visit& visit) {
    if (const auto mapping = zandic::As<OXMIDicRBOMapping>(element)) {
        ForEachBelow(*mapping, [&visit](OXMIDicElement& each, OXMIDicElement&) { visit(each); });
    } else if (const auto enumeration = zandic::As<OXMIDicEnum>(element)) {
        VisitAll(*enumeration, &OXMIDicEnum::GetEnumerators, visit);
    } else if (zandic::Kind(element) == OXMDicTYPE_Interface) {
        VisitMethods(*zandic::As<OXMIDicInterface>(element), visit);
    } else if (const auto classElement = zandic::As<OXMIDicClass>(element)) {
        VisitAll(*classElement, &OXMIDicClass::GetClassElements, visit);
        VisitAll(*classElement, &OXMIDicClass::GetUniques, visit);
        VisitAll(*classElement, &OXMIDicClass::GetClassAttBlocks, visit);
    }
}

void ForEachObjectOf(OXMIDicPackage& package, const Visit& visit) {
    for (OXMIDicElement& element : zandic::Elements(package)) {
        visit(element);
        ForEachMemberOf(element, visit);
    }
}

}  // namespace tool
