#include "ModelText.h"

#include <algorithm>
#include <vector>

#include "DictionaryFixture.h"
#include "HexToBinary.h"
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

template <class T>
Held<T> As(IUnknown& object) {
    Held<T> face;
    object.QueryInterface(T::ClassId(), face.OutVoid());
    return face;
}

std::string UuidOf(OXMIDicElementH& object) {
    ZELDbBinary uuid;
    object.GetUuid(&uuid);
    return UuidText(uuid);
}

OXMDicTYPE TypeOf(OXMIDicElementH& object) {
    OXMDicTYPE type = OXMDicTYPE_UNDEFINED;
    object.GetType(&type);
    return type;
}

class Describer {
public:
    std::string text;

    void Package(OXMIDicPackage& package) {
        Identity(package);
        LongText("alias", package, &OXMIDicPackage::GetAlias);
        LongText("expositionLevel", package, &OXMIDicPackage::GetExpositionLevel);
        ZELString domain;
        package.GetDomain(&domain);
        Line("domain", domain.View());
        References("uses", package, &OXMIDicPackage::GetUsedPackages, true);
        References("scopes", package, &OXMIDicPackage::GetScopePackages, true);
        Other(package);
        Children(package, &OXMIDicPackage::GetElements);
    }

private:
    struct KindRow {
        OXMDicTYPE type;
        void (Describer::*describe)(IUnknown& object);
    };
    static const KindRow kKinds[8];

    void Line(std::string_view name, std::string_view value) {
        text.append(_Indentation, ' ').append(name).append("=[").append(value).append("]\n");
    }
    void Line(std::string_view name, int value) { Line(name, std::to_string(value)); }

    void Identity(OXMIDicElementH& object) {
        ZELString name;
        object.GetName(&name);
        Line(std::to_string(TypeOf(object)), name.View());
        Line("uuid", UuidOf(object));
    }

    template <class Interface, class Base>
    void LongText(std::string_view name, Interface& object, HRESULT (Base::*getter)(ZELUnicodeString*),
                  int least = 2) {
        ZELUnicodeString value;
        (object.*getter)(&value);
        Line(name, value.Length() >= least ? value.View() : "");
    }
    template <class Interface, class Base, class Number>
    void Value(std::string_view name, Interface& object, HRESULT (Base::*getter)(Number*)) {
        Number value{};
        const HRESULT rc = (object.*getter)(&value);
        Line(name, rc == S_OK ? std::to_string(static_cast<int>(value)) : "inherited");
    }
    template <class Interface, class Base>
    void Text(std::string_view name, Interface& object, HRESULT (Base::*getter)(ZELString*)) {
        ZELString value;
        (object.*getter)(&value);
        Line(name, value.View());
    }
    template <class Interface, class Base, class Target>
    void Reference(std::string_view name, Interface& object, HRESULT (Base::*getter)(Target**)) {
        Held<Target> target;
        (object.*getter)(target.Out());
        Line(name, target ? UuidOf(*target) : "");
    }
    template <class Interface, class Base>
    void References(std::string_view name, Interface& object, HRESULT (Base::*getter)(ZELListPtrIUnknown*),
                    bool ordered) {
        HeldList list;
        (object.*getter)(&list);
        std::vector<std::string> uuids;
        for (IUnknown* const entry : list) uuids.push_back(UuidOf(static_cast<OXMIDicElementH&>(*entry)));
        if (!ordered) std::sort(uuids.begin(), uuids.end());
        for (const std::string& uuid : uuids) Line(name, uuid);
    }
    template <class Interface, class Base>
    void Children(Interface& object, HRESULT (Base::*getter)(ZELListPtrIUnknown*)) {
        HeldList list;
        (object.*getter)(&list);
        _Indentation += 2;
        for (IUnknown* const entry : list) Element(*entry);
        _Indentation -= 2;
    }

    void Element(IUnknown& object) {
        const OXMDicTYPE type = TypeOf(static_cast<OXMIDicElementH&>(object));
        for (const KindRow& row : kKinds) {
            if (row.type == type) return (this->*row.describe)(object);
        }
        ADD_FAILURE() << "no description of type " << type;
    }

    void Other(OXMIDicElementH& object) {
        ZELListValZELUnicodeString names;
        ZELListValZELUnicodeString values;
        object.GetAllOtherAttributes(names, values);
        for (int position = 1; position <= names.Size(); ++position) {
            Line("other " + std::string(names[position].View()), values[position].View());
        }
    }

    void Common(OXMIDicElement& element, int leastAlias = 2) {
        Identity(element);
        LongText("alias", element, &OXMIDicElement::GetAlias, leastAlias);
        LongText("expositionLevel", element, &OXMIDicElement::GetExpositionLevel);
        Value("visibility", element, &OXMIDicElement::GetVisibility);
        References("category", element, &OXMIDicElementH::GetCategories, true);
        Other(element);
    }

    void Class(IUnknown& object) {
        const Held<OXMIDicClass> held = As<OXMIDicClass>(object);
        OXMIDicClass& element = *held;
        Common(element);
        Value("persistent", element, &OXMIDicClass::GetPersistent);
        Value("abstract", element, &OXMIDicClass::GetAbstract);
        Value("instance", element, &OXMIDicClass::GetInstance);
        Value("extensible", element, &OXMIDicClass::GetExtensible);
        Value("derivable", element, &OXMIDicClass::GetClassKVADerivable);
        Text("lateType", element, &OXMIDicClass::GetLateType);
        LongText("applicationName", element, &OXMIDicClass::GetApplicationName);
        Reference("super", element, &OXMIDicClass::GetSuperClass);
        Reference("reference", element, &OXMIDicClass::GetReference);
        References("sub", element, &OXMIDicClass::GetSubClasses, false);
        HeldList injectives;
        element.GetInjectivesPointingOnMe(injectives);
        Line("injectives", injectives.Size());
        References("all", element, &OXMIDicClass::GetAllElements, true);
        Children(element, &OXMIDicClass::GetClassElements);
        Children(element, &OXMIDicClass::GetUniques);
    }

    /// \returns the kind of the primitive that types the attribute; 0 for another type or none.
    int Attribute(OXMIDicAttribute& attribute) {
        Common(attribute);
        Held<OXMIDicElement> type;
        attribute.GetType(type.Out());
        const Held<OXMIDicPrimitive> primitive =
            type ? As<OXMIDicPrimitive>(*type) : Held<OXMIDicPrimitive>();
        const int kind = primitive ? primitive->Primitive() : 0;
        Line("type", primitive ? std::to_string(kind) : type ? UuidOf(*type) : "");
        Value("access", attribute, &OXMIDicAttribute::GetAccessMode);
        Value("mandatory", attribute, &OXMIDicAttribute::GetMandatory);
        Value("sensitive", attribute, &OXMIDicAttribute::GetSensitive);
        Value("facet", attribute, &OXMIDicAttribute::GetUpdateFacet);
        Value("multi", attribute, &OXMIDicAttribute::GetMultiValuated);
        unsigned char multi = 0;
        attribute.GetMultiValuated(&multi);
        if (multi == 1) {
            Value("lower", attribute, &OXMIDicAttribute::GetLower);
            Value("upper", attribute, &OXMIDicAttribute::GetUpper);
            Value("collection", attribute, &OXMIDicAttribute::GetCollectionType);
        }
        LongText("default", attribute, &OXMIDicAttribute::GetDefault, 1);
        Reference("specializes", attribute, &OXMIDicAttribute::GetSpecializedAttribute);
        return kind;
    }

    void Length(OXMIDicAttribute& attribute, bool hasLength) {
        int length = -1;
        attribute.GetMaxLength(&length);
        Line("maxLength", hasLength && length > 0 ? length : -1);
    }

    void Simple(IUnknown& object) {
        const Held<OXMIDicSimple> held = As<OXMIDicSimple>(object);
        OXMIDicSimple& simple = *held;
        const int kind = Attribute(simple);
        Length(simple, kind == OXMDicPRIMITIVEType_String || kind == OXMDicPRIMITIVEType_Binary);
        if (kind == OXMDicPRIMITIVEType_String) Value("case", simple, &OXMIDicSimple::GetCaseMode);
        LongText("magnitude", simple, &OXMIDicSimple::GetMagnitude, 1);
        LongText("dbFormat", simple, &OXMIDicSimple::GetDBFormat, 1);
    }

    void Relation(OXMIDicRelationship& relation) {
        const int kind = Attribute(relation);
        Length(relation, kind == OXMDicPRIMITIVEType_String || kind == OXMDicPRIMITIVEType_Binary ||
                             kind == OXMDicPRIMITIVEType_URL);
        Value("injective", relation, &OXMIDicRelationship::GetInjective);
        Value("aggregation", relation, &OXMIDicRelationship::GetAggregationMode);
    }

    void Relationship(IUnknown& object) {
        const Held<OXMIDicRelationship> held = As<OXMIDicRelationship>(object);
        Relation(*held);
        Value("scope", *held, &OXMIDicRelationship::GetScope);
        References("scopes", *held, &OXMIDicRelationship::GetScopes, true);
        References("invertedBy", *held, &OXMIDicRelationship::GetInvertedAttributes, false);
    }

    void Inverse(IUnknown& object) {
        const Held<OXMIDicRelationship> held = As<OXMIDicRelationship>(object);
        Relation(*held);
        const Held<OXMIDicInverse> inverse = As<OXMIDicInverse>(object);
        Reference("inverseOf", *inverse, &OXMIDicInverse::GetInverse);
    }

    void Unique(IUnknown& object) {
        const Held<OXMIDicUnique> unique = As<OXMIDicUnique>(object);
        Common(*unique);
        References("member", *unique, &OXMIDicUnique::GetElements, true);
    }

    void Category(IUnknown& object) {
        const Held<OXMIDicCategory> category = As<OXMIDicCategory>(object);
        Common(*category, 1);
        Text("group", *category, &OXMIDicCategory::GetGroup);
    }

    void Enum(IUnknown& object) {
        const Held<OXMIDicEnum> element = As<OXMIDicEnum>(object);
        Common(*element);
        Children(*element, &OXMIDicEnum::GetEnumerators);
    }

    void Enumerator(IUnknown& object) {
        const Held<OXMIDicEnumerator> enumerator = As<OXMIDicEnumerator>(object);
        Common(*enumerator);
        Value("value", *enumerator, &OXMIDicEnumerator::GetValue);
    }

    std::size_t _Indentation = 0;
};

constexpr Describer::KindRow Describer::kKinds[8] = {
    {OXMDicTYPE_Class, &Describer::Class},
    {OXMDicTYPE_Simple, &Describer::Simple},
    {OXMDicTYPE_Relationship, &Describer::Relationship},
    {OXMDicTYPE_Inverse, &Describer::Inverse},
    {OXMDicTYPE_Unique, &Describer::Unique},
    {OXMDicTYPE_Category, &Describer::Category},
    {OXMDicTYPE_Enum, &Describer::Enum},
    {OXMDicTYPE_Enumerator, &Describer::Enumerator},
};

}  // namespace

std::string ModelText(OXMIDicMgr& manager) {
    std::vector<std::string> packages;
    for (const char* const domain : {"VALKOR", "DUVRA"}) {
        const ZELString name(domain);
        HeldList list;
        manager.GetPackages(&name, &list);
        for (IUnknown* const entry : list) {
            Describer describer;
            describer.Package(static_cast<OXMIDicPackage&>(*entry));
            packages.push_back(describer.text);
        }
    }
    std::sort(packages.begin(), packages.end());
    std::string text;
    for (const std::string& package : packages) text += package;
    return text;
}
