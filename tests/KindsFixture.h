/// Short ways to make extensions, interfaces, methods and RBO objects, for tests of the model.
#ifndef KINDS_FIXTURE_H
#define KINDS_FIXTURE_H

#include "ModelFixture.h"
#include "OXMIDicApp.h"
#include "OXMIDicCommand.h"
#include "OXMIDicCommandParameter.h"
#include "OXMIDicExtension.h"
#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "OXMIDicParameter.h"
#include "OXMIDicRBOClass.h"
#include "OXMIDicRBOComponent.h"
#include "OXMIDicRBOMapping.h"
#include "OXMIDicRBOPathExpression.h"
#include "OXMIDicRBORoot.h"

class KindsFixture : public ModelFixture {
protected:
    /// Calls a factory that takes name and UUID, and expects it to work.
    template <class Owner, class Interface>
    Held<Interface> Make(Owner& owner,
                         HRESULT (Owner::*create)(const ZELString*, const ZELDbBinary*, Interface**),
                         const char* name) {
        const ZELString text(name);
        const ZELDbBinary uuid = NextUuid();
        Held<Interface> made;
        EXPECT_EQ((owner.*create)(&text, &uuid, made.Out()), S_OK) << name;
        return made;
    }

    Held<OXMIDicExtension> Extension(OXMIDicPackage& package, const char* name) {
        return Make<OXMIDicPackage, OXMIDicExtension>(package, &OXMIDicPackage::CreateExtension, name);
    }
    Held<OXMIDicInterface> Interface(OXMIDicPackage& package, const char* name) {
        return Make<OXMIDicPackage, OXMIDicInterface>(package, &OXMIDicPackage::CreateInterface, name);
    }
    Held<OXMIDicMethod> Method(OXMIDicInterface& owner, const char* name) {
        return Make<OXMIDicInterface, OXMIDicMethod>(owner, &OXMIDicInterface::CreateMethod, name);
    }
    Held<OXMIDicParameter> Parameter(OXMIDicMethod& owner, const char* name) {
        return Make<OXMIDicMethod, OXMIDicParameter>(owner, &OXMIDicMethod::CreateParameter, name);
    }
    Held<OXMIDicRBOClass> RBOClass(OXMIDicPackage& package, const char* name) {
        return Make<OXMIDicPackage, OXMIDicRBOClass>(package, &OXMIDicPackage::CreateRBOClass, name);
    }
    Held<OXMIDicRBOMapping> Mapping(OXMIDicPackage& package, const char* name) {
        return Make<OXMIDicPackage, OXMIDicRBOMapping>(package, &OXMIDicPackage::CreateRBOMapping, name);
    }
    Held<OXMIDicRBORoot> Root(OXMIDicRBOMapping& owner, const char* name) {
        return Make<OXMIDicRBOMapping, OXMIDicRBORoot>(owner, &OXMIDicRBOMapping::CreateRBORoot, name);
    }
    Held<OXMIDicRBOComponent> Component(OXMIDicRBORoot& owner, const char* name) {
        return Make<OXMIDicRBORoot, OXMIDicRBOComponent>(owner, &OXMIDicRBORoot::CreateRBOComponent, name);
    }
    Held<OXMIDicRBOComponent> Component(OXMIDicRBOComponent& owner, const char* name) {
        return Make<OXMIDicRBOComponent, OXMIDicRBOComponent>(owner, &OXMIDicRBOComponent::CreateRBOComponent,
                                                              name);
    }
    Held<OXMIDicRBOPathExpression> Path(OXMIDicRBOComponent& owner, const char* name) {
        return Make<OXMIDicRBOComponent, OXMIDicRBOPathExpression>(
            owner, &OXMIDicRBOComponent::CreateRBOPathExpression, name);
    }

    /// \returns the names that a list operation gives; a failure fails the test.
    template <class Owner, class Declared>
    static std::string Listed(Owner& owner, HRESULT (Declared::*get)(ZELListPtrIUnknown*),
                              HRESULT expected = S_OK) {
        HeldList list;
        EXPECT_EQ((owner.*get)(&list), expected);
        return NamesOf(list);
    }

    /// \returns how many links of an object have lost theirs; -1 when it does not say.
    static int LostLinks(OXMIDicElementH& object) {
        int count = -1;
        EXPECT_EQ(object.GetLostLinks(&count), S_OK);
        return count;
    }
};

#endif
