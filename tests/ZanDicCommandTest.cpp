#include "ZanDicCommand.h"

#include "KindsFixture.h"
#include "OXMIDicBOLink.h"
#include "OXMIDicBObject.h"
#include "ZanDicBOLink.h"
#include "ZanDicBObject.h"
#include "ZanDicCommandParameter.h"

namespace {

constexpr const char* kNotice = "- *** ERROR *** Deprecated functionnality. Should not be used anymore.\n";

class ZanDicCommandTest : public KindsFixture {
protected:
    /// The notice that \p operation writes.
    static std::string Notice(const std::string& operation) { return operation + kNotice; }

    Held<ZanDicCommand> object{new ZanDicCommand("Print", TestUuid(1))};
    Held<OXMIDicCommand> command = Face<OXMIDicCommand>(*object);
    Held<ZanDicCommandParameter> parameterObject{new ZanDicCommandParameter("Copies", TestUuid(2))};
    Held<OXMIDicCommandParameter> parameter = Face<OXMIDicCommandParameter>(*parameterObject);

    template <class Interface>
    static Held<Interface> Face(ZanDicObj& asked) {
        void* face = nullptr;
        EXPECT_EQ(asked.bind_Interface(OXMDicTYPE_UNDEFINED, &face), S_OK);
        return Held<Interface>(static_cast<Interface*>(face));
    }
};

TEST_F(ZanDicCommandTest, EveryOperationOfACommandRefusesWithItsNotice) {
    const ZELString name("Copies");
    const ZELDbBinary uuid = NextUuid();
    OXMIDicCommandParameter* made = nullptr;
    OXMIDicClass* target = nullptr;
    OXMDicCDETYPE type{};
    HeldList elements;
    ClearWritten();

    EXPECT_EQ(command->CreateParameter(&name, &made), E_FAIL);
    EXPECT_EQ(command->CreateParameter(&name, &uuid, &made), E_FAIL);
    EXPECT_EQ(command->GetCommandType(&type), E_FAIL);
    EXPECT_EQ(command->SetCommandType(type), E_FAIL);
    EXPECT_EQ(command->GetElements(&elements), E_FAIL);
    EXPECT_EQ(command->GetTarget(&target), E_FAIL);
    EXPECT_EQ(command->SetTarget(nullptr), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(target, nullptr);
    EXPECT_EQ(elements.Size(), 0);
    EXPECT_EQ(Written(), Notice("ZanDicCommand::CreateParameter") + Notice("ZanDicCommand::CreateParameter") +
                             Notice("ZanDicCommand::GetCommandType") +
                             Notice("ZanDicCommand::SetCommandType") + Notice("ZanDicCommand::GetElements") +
                             Notice("ZanDicCommand::GetTarget") + Notice("ZanDicCommand::SetTarget"));
}

TEST_F(ZanDicCommandTest, EveryOperationOfAParameterRefusesWithItsNotice) {
    OXMIDicElement* element = nullptr;
    ClearWritten();

    EXPECT_EQ(parameter->GetOrigin(&element), E_FAIL);
    EXPECT_EQ(parameter->GetTarget(&element), E_FAIL);
    EXPECT_EQ(parameter->SetTarget(nullptr), E_FAIL);

    EXPECT_EQ(element, nullptr);
    EXPECT_EQ(Written(), Notice("ZanDicCommandParameter::GetOrigin") +
                             Notice("ZanDicCommandParameter::GetTarget") +
                             Notice("ZanDicCommandParameter::SetTarget"));
}

TEST_F(ZanDicCommandTest, TheClassKindComesWithTheNotice) {
    ClearWritten();

    EXPECT_EQ(object->get_type(), ZanDicObj::_type_Command);
    EXPECT_EQ(parameterObject->get_type(), ZanDicObj::_type_CommandParameter);

    EXPECT_EQ(Written(), Notice("ZanDicCommand::get_type") + Notice("ZanDicCommandParameter::get_type"));
}

TEST_F(ZanDicCommandTest, ANegativeTraceLevelSilencesTheNotice) {
    TraceFromNow(-1);

    EXPECT_EQ(command->SetTarget(nullptr), E_FAIL);

    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicCommandTest, KeepsTypeCodeAndClassPart) {
    const auto asClass = QueryFor<OXMIDicClass>(*command);

    EXPECT_EQ(object->Type(), OXMDicTYPE_Command);
    EXPECT_EQ(parameterObject->Type(), OXMDicTYPE_CommandParameter);
    EXPECT_STREQ(object->IsA(), "ZanDicCommand");
    EXPECT_STREQ(parameterObject->IsA(), "ZanDicCommandParameter");
    ASSERT_TRUE(asClass);
    const auto number = Simple(*asClass, "Number");
    EXPECT_EQ(Listed(*asClass, &OXMIDicClass::GetClassElements), "Number ");
    EXPECT_TRUE(QueryFor<OXMIDicAttribute>(*parameter));
}

TEST_F(ZanDicCommandTest, ACopiedParameterHasTheAttributePart) {
    const auto package = Package("Items");
    const auto part = Class(*package, "Part");
    const ZELUnicodeString value("2");
    parameterObject->SetMandatory(1);
    parameterObject->SetDefault(&value);
    EXPECT_EQ(parameterObject->ZanDicAttribute::SetTarget(part.Get()), S_OK);
    EXPECT_EQ(parameterObject->AddScope(part.Get()), S_OK);

    const ZanDicCommandParameter copy(*parameterObject);
    ZanDicCommandParameter assigned("Other", TestUuid(9));
    assigned = *parameterObject;
    EXPECT_EQ(parameterObject->RemoveScope(part.Get()), S_OK);

    for (const ZanDicCommandParameter* each :
         {&copy, static_cast<const ZanDicCommandParameter*>(&assigned)}) {
        unsigned char mandatory = 0;
        ZELUnicodeString text;
        HeldList scopes;
        Held<OXMIDicClass> target;
        EXPECT_EQ(each->GetMandatory(&mandatory), S_OK);
        EXPECT_EQ(each->GetDefault(&text), S_OK);
        EXPECT_EQ(each->GetScopes(&scopes), S_OK);
        EXPECT_EQ(each->ZanDicAttribute::GetTarget(target.Out()), S_OK);
        EXPECT_EQ(mandatory, 1);
        EXPECT_EQ(text, value);
        EXPECT_EQ(NamesOf(scopes), "Part ") << "the scope is a copy";
        EXPECT_EQ(each->Type(), OXMDicTYPE_CommandParameter);
    }
}

TEST_F(ZanDicCommandTest, BusinessObjectsAnswerTheirInterface) {
    const Held<ZanDicBObject> business(new ZanDicBObject("Part", TestUuid(3)));
    const Held<ZanDicBOLink> link(new ZanDicBOLink("Use", TestUuid(4)));

    EXPECT_TRUE(Face<OXMIDicBObject>(*business));
    EXPECT_TRUE(Face<OXMIDicBOLink>(*link));
    EXPECT_EQ(business->Type(), OXMDicTYPE_BObject);
    EXPECT_EQ(link->Type(), OXMDicTYPE_BOLink);
    EXPECT_EQ(business->get_type(), ZanDicObj::_type_Element);
    EXPECT_STREQ(business->IsA(), "ZanDicBObject");
    EXPECT_STREQ(link->IsA(), "ZanDicBOLink");
}

TEST_F(ZanDicCommandTest, APackageKeepsCommandsByName) {
    const auto package = Package("Items");
    const Held<ZanDicCommand> second(new ZanDicCommand("Print", TestUuid(5)));

    EXPECT_EQ(package->AddCommand(command.Get()), S_OK);
    EXPECT_EQ(package->AddCommand(command.Get()), E_FAIL);
    EXPECT_EQ(package->AddCommand(Face<OXMIDicCommand>(*second).Get()), E_FAIL) << "the name is taken";
    EXPECT_EQ(Listed(*package, &OXMIDicPackage::GetCommands), "Print ");

    EXPECT_EQ(package->RemoveCommand(command.Get()), S_OK);
    EXPECT_EQ(package->RemoveCommand(command.Get()), E_FAIL);
    EXPECT_EQ(Listed(*package, &OXMIDicPackage::GetCommands), "");
}

TEST_F(ZanDicCommandTest, APackageRefusesNull) {
    const auto package = Package("Items");

    EXPECT_EQ(package->AddCommand(nullptr), E_FAIL);
    EXPECT_EQ(package->RemoveCommand(nullptr), E_FAIL);
    EXPECT_EQ(package->GetCommands(nullptr), E_FAIL);
}

TEST_F(ZanDicCommandTest, AFlushLeavesTheCommandsAndWarns) {
    const auto package = Package("Items");
    EXPECT_EQ(package->AddCommand(command.Get()), S_OK);
    ClearWritten();

    EXPECT_EQ(package->FlushAll(), S_OK);

    EXPECT_EQ(Listed(*package, &OXMIDicPackage::GetCommands), "Print ");
    EXPECT_EQ(Written(),
              "ZanHashList::RemoveAll _HASH.Size()=0, _LISTP.Size()=0\n"
              "ZanDicPackage::FlushAll- *** WARNING *** processing _COMMANDS: TO BE COMPLETED !.\n");
}

TEST_F(ZanDicCommandTest, ACommandThatIsDestroyedIsAbsentAndCountedAsLost) {
    const auto package = Package("Items");
    {
        const Held<ZanDicCommand> passing(new ZanDicCommand("Save", TestUuid(6)));
        EXPECT_EQ(package->AddCommand(Face<OXMIDicCommand>(*passing).Get()), S_OK);
        EXPECT_EQ(LostLinks(*package), 0);
    }

    EXPECT_EQ(Listed(*package, &OXMIDicPackage::GetCommands), "");
    EXPECT_EQ(LostLinks(*package), 1);
}

}  // namespace
