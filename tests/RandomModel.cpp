#include "RandomModel.h"

#include <rapidcheck.h>

#include <iterator>
#include <string>
#include <vector>

#include "DictionaryFixture.h"
#include "OXMIDicCategory.h"
#include "OXMIDicClass.h"
#include "OXMIDicEnum.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicInverse.h"
#include "OXMIDicPackage.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "OXMIDicUnique.h"

namespace {

/// \returns a number from 0 to \p count - 1.
int Draw(int count) { return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, count)); }
bool Chance(int oneOf) { return Draw(oneOf) == 0; }

std::string HostileText() {
    static const std::string kHuge(100'000, '&');
    const char* const pieces[] = {"a",
                                  "Name",
                                  " ",
                                  "  ",
                                  "\"",
                                  "'",
                                  "&",
                                  "<",
                                  ">",
                                  "\t",
                                  "\n",
                                  "\r",
                                  "\r\n",
                                  "&amp;",
                                  "]]>",
                                  "--",
                                  "<!--",
                                  "=",
                                  "\xc3\xa9",
                                  "\xe2\x82\xac",
                                  "\xf0\x9f\x98\x80",
                                  "\x7f",
                                  "0123456789abcdef",
                                  ".",
                                  "/",
                                  "\\",
                                  ":"};
    if (Chance(400)) return " " + kHuge + " ";
    std::string text;
    for (int count = Draw(6); count > 0; --count) text += pieces[Draw(std::size(pieces))];
    return text;
}

ZELUnicodeString HostileUnicode() { return ZELUnicodeString(HostileText()); }

class RandomModel {
public:
    explicit RandomModel(OXMIDicMgr& manager) : _Manager(manager) {}

    void Make() {
        const ZELString domain(Chance(4) ? "DUVRA" : "VALKOR");
        for (const char* const name : {"Base", "Scope", "Top"}) {
            const ZELString packageName(name);
            const ZELDbBinary uuid = NextUuid();
            Held<OXMIDicPackage> package;
            _Manager.CreatePackage(&packageName, &uuid, &domain, package.Out());
            Fill(*package);
            _PACKAGES.push_back(std::move(package));
        }
        _PACKAGES[2]->AddUsedPackage(_PACKAGES[0].Get());
        _PACKAGES[2]->AddScopePackage(_PACKAGES[1].Get());
    }

private:
    /// One row a kind of top-level element, as often as it is to come.
    struct KindRow {
        int weight;
        void (RandomModel::*make)(OXMIDicPackage& package);
    };
    static const KindRow kKinds[3];

    ZELDbBinary NextUuid() { return TestUuid(++_Number); }

    /// A hostile name that nothing else has.
    ZELString NextName() { return ZELString(HostileText() + "#" + std::to_string(_Number)); }

    template <class Interface>
    void Free(Interface& element) {
        const char* const names[] = {"Owner", "x:y", "\xc3\xa9t\xc3\xa9", "_a", "Z.1", "NAME"};
        for (int count = Draw(3); count > 0; --count) {
            element.SetOtherAttribute(ZELUnicodeString(names[Draw(std::size(names))]), HostileUnicode());
        }
    }

    template <class Interface, class Base>
    void Text(Interface& element, HRESULT (Base::*setter)(const ZELUnicodeString*)) {
        if (Chance(2)) return;
        const ZELUnicodeString text = HostileUnicode();
        (element.*setter)(&text);
    }
    template <class Interface, class Base>
    void Flag(Interface& element, HRESULT (Base::*setter)(unsigned char)) {
        if (Chance(2)) (element.*setter)(static_cast<unsigned char>(Draw(2)));
    }
    /// A number from 1 to \p highest.
    template <class Word, class Interface, class Base>
    void Code(Interface& element, HRESULT (Base::*setter)(Word), int highest, int lowest = 1) {
        if (Chance(2)) (element.*setter)(static_cast<Word>(lowest + Draw(highest - lowest + 1)));
    }
    template <class Interface, class Base>
    void Number(Interface& element, HRESULT (Base::*setter)(int)) {
        const int numbers[] = {-2147483647 - 1, -1, 0, 1, 2, 250, 2147483647};
        if (Chance(2)) (element.*setter)(numbers[Draw(std::size(numbers))]);
    }

    void Fill(OXMIDicPackage& package) {
        Text(package, &OXMIDicPackage::SetAlias);
        Text(package, &OXMIDicPackage::SetExpositionLevel);
        Free(package);
        if (Chance(3)) package.SetOtherAttribute("Version", "7");
        int weights = 0;
        for (const KindRow& row : kKinds) weights += row.weight;
        for (int count = Draw(8); count > 0; --count) {
            int place = Draw(weights);
            const KindRow* row = kKinds;
            for (; place >= row->weight; ++row) place -= row->weight;
            (this->*row->make)(package);
        }
    }

    template <class Interface>
    Interface& Keep(std::vector<Held<Interface>>& list, Held<Interface> element) {
        list.push_back(std::move(element));
        return *list.back();
    }
    template <class Interface>
    Interface* Any(std::vector<Held<Interface>>& list) {
        return list.empty() ? nullptr
                            : list[static_cast<std::size_t>(Draw(static_cast<int>(list.size())))].Get();
    }

    void Category(OXMIDicPackage& package) {
        const ZELDbBinary uuid = NextUuid();
        const ZELString name = NextName();
        Held<OXMIDicCategory> made;
        package.CreateCategory(&name, &uuid, made.Out());
        OXMIDicCategory& category = Keep(_CATEGORIES, std::move(made));
        Text(category, &OXMIDicElement::SetAlias);
        const ZELString group(HostileText());
        category.SetGroup(&group);
        Free(category);
    }

    void Enum(OXMIDicPackage& package) {
        const ZELDbBinary uuid = NextUuid();
        const ZELString name = NextName();
        Held<OXMIDicEnum> made;
        package.CreateEnum(&name, &uuid, made.Out());
        OXMIDicEnum& element = Keep(_ENUMS, std::move(made));
        Text(element, &OXMIDicElement::SetAlias);
        Free(element);
        for (int count = Draw(4); count > 0; --count) {
            const ZELDbBinary enumeratorUuid = NextUuid();
            const ZELString enumeratorName = NextName();
            Held<OXMIDicEnumerator> enumerator;
            element.CreateEnumerator(&enumeratorName, &enumeratorUuid, enumerator.Out());
            Text(*enumerator, &OXMIDicElement::SetAlias);
            Number(*enumerator, &OXMIDicEnumerator::SetValue);
            Free(*enumerator);
        }
    }

    void Class(OXMIDicPackage& package) {
        const ZELDbBinary uuid = NextUuid();
        const ZELString name = NextName();
        OXMIDicClass* const superClass = Chance(2) ? Any(_CLASSES) : nullptr;
        Held<OXMIDicClass> made;
        package.CreateClass(&name, &uuid, made.Out());
        OXMIDicClass& element = Keep(_CLASSES, std::move(made));
        if (superClass != nullptr && MayRefer(package, *superClass)) element.SetSuperClass(superClass);
        if (OXMIDicClass* const reference = Any(_CLASSES); Chance(3) && MayRefer(package, *reference)) {
            element.SetReference(reference);
        }
        Text(element, &OXMIDicElement::SetAlias);
        Text(element, &OXMIDicElement::SetExpositionLevel);
        Code(element, &OXMIDicElement::SetVisibility, 3);
        Code<int>(element, &OXMIDicClass::SetKVADerivable, 4);
        Flag(element, &OXMIDicClass::SetPersistent);
        Flag(element, &OXMIDicClass::SetAbstract);
        Flag(element, &OXMIDicClass::SetInstance);
        Flag(element, &OXMIDicClass::SetExtensible);
        Text(element, &OXMIDicClass::SetApplicationName);
        const ZELString lateType(HostileText());
        element.SetLateType(&lateType);
        Free(element);
        std::vector<Held<OXMIDicElement>> members;
        for (int count = Draw(5); count > 0; --count) Member(package, element, members);
        for (int count = Draw(3); count > 0; --count) Unique(element, members);
    }

    /// Whether an element of \p package may name the other one: within a package, and from the top.
    bool MayRefer(OXMIDicPackage& package, OXMIDicElement& other) {
        ZELString from;
        ZELString to;
        package.GetName(&from);
        other.GetPackageName(&to);
        return from == to || from == ZELString("Top");
    }

    void Member(OXMIDicPackage& package, OXMIDicClass& owner, std::vector<Held<OXMIDicElement>>& members) {
        const int kind = Draw(3);
        const ZELDbBinary uuid = NextUuid();
        // A simple attribute may redefine an inherited one: these names come again and again.
        const ZELString common(Draw(2) == 0 ? "Common" : " Other common ");
        Held<OXMIDicElement> present;
        const bool usesCommon =
            kind == 0 && Chance(3) && Failed(owner.GetClassElement(&common, present.Out()));
        const ZELString name = usesCommon ? common : NextName();
        if (kind == 0) Simple(package, owner, name, uuid);
        if (kind == 1) Relationship(package, owner, name, uuid);
        if (kind == 2) Inverse(package, owner, name, uuid);
        Held<OXMIDicElement> member;
        owner.GetClassElement(&name, member.Out());
        members.push_back(std::move(member));
    }

    void Attribute(OXMIDicPackage& package, OXMIDicAttribute& attribute, int lowestAccess) {
        Text(attribute, &OXMIDicElement::SetAlias);
        Text(attribute, &OXMIDicElement::SetExpositionLevel);
        Code(attribute, &OXMIDicElement::SetVisibility, 3);
        Code(attribute, &OXMIDicAttribute::SetAccessMode, 4, lowestAccess);
        Flag(attribute, &OXMIDicAttribute::SetMandatory);
        Flag(attribute, &OXMIDicAttribute::SetSensitive);
        Flag(attribute, &OXMIDicAttribute::SetMultiValuated);
        Code(attribute, &OXMIDicAttribute::SetUpdateFacet, 3);
        Code(attribute, &OXMIDicAttribute::SetCollectionType, 4);
        Number(attribute, &OXMIDicAttribute::SetMaxLength);
        Number(attribute, &OXMIDicAttribute::SetLower);
        Number(attribute, &OXMIDicAttribute::SetUpper);
        Text(attribute, &OXMIDicAttribute::SetDefault);
        for (int count = Draw(3); count > 0; --count) {
            OXMIDicCategory* const category = Any(_CATEGORIES);
            if (category != nullptr && MayRefer(package, *category)) attribute.AddCategory(category);
        }
    }

    void Simple(OXMIDicPackage& package, OXMIDicClass& owner, const ZELString& name,
                const ZELDbBinary& uuid) {
        Held<OXMIDicSimple> simple;
        owner.CreateSimple(&name, &uuid, simple.Out());
        Attribute(package, *simple, 1);
        Code(*simple, &OXMIDicSimple::SetCaseMode, 3);
        Text(*simple, &OXMIDicSimple::SetMagnitude);
        Text(*simple, &OXMIDicSimple::SetDBFormat);
        Free(*simple);
        OXMIDicEnum* const element = Any(_ENUMS);
        if (element != nullptr && Chance(3) && MayRefer(package, *element)) {
            simple->SetType(element);
        } else if (!Chance(8)) {
            Held<OXMIDicPrimitive> primitive;
            _Manager.GetPrimitive(static_cast<OXMDicPRIMITIVEType>(1 + Draw(7)), primitive.Out());
            simple->SetPrimitive(primitive.Get());
        } else if (Chance(2)) {
            simple->SetOtherAttribute("Type", "Money");  // a word of documents that name no primitive
        }
    }

    void Relation(OXMIDicPackage& package, OXMIDicRelationship& relation) {
        Attribute(package, relation, 2);
        Flag(relation, &OXMIDicRelationship::SetInjective);
        Code(relation, &OXMIDicRelationship::SetAggregationMode, 3);
        Code(relation, &OXMIDicRelationship::SetScope, 3);
        OXMIDicClass* const target = Any(_CLASSES);
        if (Chance(2) && target != nullptr && MayRefer(package, *target)) {
            relation.SetTarget(target);
        } else if (!Chance(4)) {
            const OXMDicPRIMITIVEType kinds[] = {OXMDicPRIMITIVEType_String, OXMDicPRIMITIVEType_Binary,
                                                 OXMDicPRIMITIVEType_URL, OXMDicPRIMITIVEType_AnyObject};
            Held<OXMIDicPrimitive> primitive;
            _Manager.GetPrimitive(kinds[Draw(4)], primitive.Out());
            relation.SetType(primitive.Get());
        }
    }

    void Relationship(OXMIDicPackage& package, OXMIDicClass& owner, const ZELString& name,
                      const ZELDbBinary& uuid) {
        Held<OXMIDicRelationship> made;
        owner.CreateRelationship(&name, &uuid, made.Out());
        Relation(package, Keep(_RELATIONSHIPS, std::move(made)));
    }

    void Inverse(OXMIDicPackage& package, OXMIDicClass& owner, const ZELString& name,
                 const ZELDbBinary& uuid) {
        Held<OXMIDicInverse> inverse;
        owner.CreateInverse(&name, &uuid, inverse.Out());
        Held<OXMIDicRelationship> relation;
        inverse->QueryInterface(OXMIDicRelationship::ClassId(), relation.OutVoid());
        Relation(package, *relation);
        OXMIDicRelationship* const inverted = Any(_RELATIONSHIPS);
        if (inverted == nullptr || Chance(3) || !MayRefer(package, *inverted)) return;
        inverted->SetInvertedAttribute(inverse.Get());
        inverse->SetInverse(inverted);
    }

    void Unique(OXMIDicClass& owner, std::vector<Held<OXMIDicElement>>& members) {
        const ZELDbBinary uuid = NextUuid();
        const ZELString name = NextName();
        Held<OXMIDicUnique> unique;
        owner.CreateUnique(&name, &uuid, unique.Out());
        Text(*unique, &OXMIDicElement::SetAlias);
        Free(*unique);
        for (int count = Draw(3); count > 0; --count) {
            if (OXMIDicElement* const member = Any(members)) unique->AddElement(member);
        }
    }

    OXMIDicMgr& _Manager;
    unsigned _Number = 0;
    std::vector<Held<OXMIDicPackage>> _PACKAGES;
    std::vector<Held<OXMIDicCategory>> _CATEGORIES;
    std::vector<Held<OXMIDicEnum>> _ENUMS;
    std::vector<Held<OXMIDicClass>> _CLASSES;
    std::vector<Held<OXMIDicRelationship>> _RELATIONSHIPS;
};

constexpr RandomModel::KindRow RandomModel::kKinds[3] = {
    {1, &RandomModel::Category}, {1, &RandomModel::Enum}, {3, &RandomModel::Class}};

}  // namespace

void MakeRandomModel(OXMIDicMgr& manager) { RandomModel(manager).Make(); }
