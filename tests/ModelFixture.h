/// What tests of the model share: short ways to make elements, and lists as text.
#ifndef MODEL_FIXTURE_H
#define MODEL_FIXTURE_H

#include <string>

#include "DictionaryFixture.h"
#include "OXMIDicAttribute.h"
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
#include "ZELTestDirectory.h"

/// \returns the names of the objects of a list, each followed by a blank.
inline std::string NamesOf(const ZELListPtrIUnknown& list) {
    std::string names;
    for (IUnknown* const entry : list) {
        ZELString name;
        static_cast<OXMIDicElementH*>(entry)->GetName(&name);
        names.append(name.View()).append(" ");
    }
    return names;
}

/// \returns the interface \p Interface of the object behind \p face; null when it has none.
template <class Interface>
Held<Interface> QueryFor(IUnknown& face) {
    Held<Interface> found;
    face.QueryInterface(Interface::ClassId(), found.OutVoid());
    return found;
}

/// \returns whether both interfaces belong to one object.
inline bool SameObject(IUnknown& first, IUnknown& second) {
    return QueryFor<OXMIDicElementH>(first).Get() == QueryFor<OXMIDicElementH>(second).Get();
}

class ModelFixture : public DictionaryFixture {
protected:
    ZELDbBinary NextUuid() { return TestUuid(++_LastUuid); }

    Held<OXMIDicPackage> Package(const char* name) {
        const ZELString packageName(name);
        const ZELString domain("VALKOR");
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicPackage> package;
        EXPECT_EQ(Manager().CreatePackage(&packageName, &uuid, &domain, package.Out()), S_OK);
        return package;
    }

    Held<OXMIDicClass> Class(OXMIDicPackage& package, const char* name) {
        const ZELString className(name);
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicClass> made;
        EXPECT_EQ(package.CreateClass(&className, &uuid, made.Out()), S_OK);
        return made;
    }

    Held<OXMIDicClass> SubClass(OXMIDicPackage& package, const char* name, OXMIDicClass& superClass) {
        Held<OXMIDicClass> made = Class(package, name);
        EXPECT_EQ(made->SetSuperClass(&superClass), S_OK);
        return made;
    }

    Held<OXMIDicEnum> Enum(OXMIDicPackage& package, const char* name) {
        const ZELString enumName(name);
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicEnum> made;
        EXPECT_EQ(package.CreateEnum(&enumName, &uuid, made.Out()), S_OK);
        return made;
    }

    Held<OXMIDicCategory> Category(OXMIDicPackage& package, const char* name) {
        const ZELString categoryName(name);
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicCategory> made;
        EXPECT_EQ(package.CreateCategory(&categoryName, &uuid, made.Out()), S_OK);
        return made;
    }

    Held<OXMIDicSimple> Simple(OXMIDicClass& owner, const char* name) {
        const ZELString attributeName(name);
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicSimple> made;
        EXPECT_EQ(owner.CreateSimple(&attributeName, &uuid, made.Out()), S_OK);
        return made;
    }

    Held<OXMIDicRelationship> Relationship(OXMIDicClass& owner, const char* name) {
        const ZELString attributeName(name);
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicRelationship> made;
        EXPECT_EQ(owner.CreateRelationship(&attributeName, &uuid, made.Out()), S_OK);
        return made;
    }

    Held<OXMIDicInverse> Inverse(OXMIDicClass& owner, const char* name) {
        const ZELString attributeName(name);
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicInverse> made;
        EXPECT_EQ(owner.CreateInverse(&attributeName, &uuid, made.Out()), S_OK);
        return made;
    }

    Held<OXMIDicUnique> Unique(OXMIDicClass& owner, const char* name) {
        const ZELString uniqueName(name);
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicUnique> made;
        EXPECT_EQ(owner.CreateUnique(&uniqueName, &uuid, made.Out()), S_OK);
        return made;
    }

    Held<OXMIDicEnumerator> Enumerator(OXMIDicEnum& owner, const char* name) {
        const ZELString enumeratorName(name);
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicEnumerator> made;
        EXPECT_EQ(owner.CreateEnumerator(&enumeratorName, &uuid, made.Out()), S_OK);
        return made;
    }

    Held<OXMIDicPrimitive> Primitive(OXMDicPRIMITIVEType kind) {
        Held<OXMIDicPrimitive> primitive;
        EXPECT_EQ(Manager().GetPrimitive(kind, primitive.Out()), S_OK);
        return primitive;
    }

    /// Forgets what was written and lists \p operations, one a line, as the traced ones.
    void TraceOnly(const std::string& operations) {
        ZanDicSetTraceMethodsFile(_Directory.MakeFile("methods.txt", operations).c_str());
        ClearWritten();
    }

    void RemovePackage(const char* name) {
        const ZELString packageName(name);
        EXPECT_EQ(Manager().RemovePackage(&packageName), S_OK);
    }

    /// Whether the registry holds \p face's object.
    bool IsRegistered(OXMIDicElementH& face) {
        ZELDbBinary uuid;
        face.GetUuid(&uuid);
        Held<OXMIDicElementH> found;
        return Manager().Search(&uuid, found.Out()) == S_OK && SameObject(*found, face);
    }

    /// \returns all attributes of a class, as names.
    static std::string AllOf(OXMIDicClass& owner) {
        HeldList attributes;
        EXPECT_EQ(owner.GetAllElements(&attributes), S_OK);
        return NamesOf(attributes);
    }

private:
    TestDirectory _Directory;
    unsigned _LastUuid = 1000;
};

/// \returns a name as an argument.
inline const ZELString* Named(const ZELString& name) { return &name; }

#endif
