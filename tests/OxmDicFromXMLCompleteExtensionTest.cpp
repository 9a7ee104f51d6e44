// Second pass over extensions, scopes of relationships and commands.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OXMIDicCommand.h"
#include "OXMIDicExtension.h"
#include "OXMIDicRelationship.h"
#include "ReaderFixture.h"
#include "ZanDicCommand.h"

using ::testing::HasSubstr;

namespace {

class OxmDicFromXMLCompleteExtensionTest : public ReaderFixture {
protected:
    static std::string Extension(std::string_view name, unsigned number, std::string_view scopes,
                                 std::string_view attributes = "") {
        return "<Extension" + Id(name, number) + " Persistent=\"No\" ScopeRefs=\"" + std::string(scopes) +
               "\" " + std::string(attributes) + "/>\n";
    }

    std::string ScopesOf(unsigned number) {
        HeldList scopes;
        Find<OXMIDicExtension>(number)->GetScopes(&scopes);
        std::string names;
        for (IUnknown* const scope : scopes) names += NameOf(static_cast<OXMIDicClass&>(*scope)) + " ";
        return names;
    }
};

TEST_F(OxmDicFromXMLCompleteExtensionTest, AnExtensionExtendsClassesAndExtensions) {
    ASSERT_EQ(
        LoadBody(ClassTag("C", 1, "Extensible=\"Yes\"") + Extension("E", 2, U(1), "Extensible=\"Yes\"") +
                 Extension("F", 3, U(2) + " " + U(1), "SuperRef=\"" + U(2) + "\"")),
        S_OK)
        << Written();

    EXPECT_EQ(ScopesOf(3), "E C C ");
    unsigned char isInstance = 9;
    Find<OXMIDicExtension>(2)->GetInstance(&isInstance);
    EXPECT_EQ(isInstance, 0);
    OXMDicTYPE type = OXMDicTYPE_UNDEFINED;
    Find<OXMIDicElementH>(2)->GetType(&type);
    EXPECT_EQ(type, OXMDicTYPE_Extension);
}

TEST_F(OxmDicFromXMLCompleteExtensionTest, TheSameScopeTwiceCountsOnce) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1, "Extensible=\"Yes\"") + Extension("E", 2, U(1) + " " + U(1))), S_OK);

    EXPECT_EQ(ScopesOf(2), "C ");
    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLCompleteExtensionTest, ExtensibilityMayComeFromASuperClassThatIsSetLater) {
    // When E is completed, D has no super class yet; C behind it must not come first.
    ASSERT_EQ(LoadBody(Extension("E", 1, U(2) + " " + U(3)) + ClassTag("D", 2, "SuperRef=\"" + U(3) + "\"") +
                       ClassTag("C", 3, "Extensible=\"Yes\"")),
              S_OK)
        << Written();

    EXPECT_EQ(ScopesOf(1), "D C ");
    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLCompleteExtensionTest, WhatIsNotExtensibleInTheEndFailsThen) {
    FaultCollector faults;

    EXPECT_EQ(LoadBody(Extension("E", 1, U(2) + " " + U(3)) + ClassTag("D", 2) +
                       ClassTag("C", 3, "Extensible=\"Yes\" SuperRef=\"" + U(0xFF) + "\"")),
              E_FAIL);

    EXPECT_EQ(faults.Summary(),
              "reference-not-found 4:94 C @SuperRef\n"
              "reference-refused 2:80 E @ScopeRefs\n");
    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:CompleteExtension- *** ERROR *** Extension E cannot extent "
                          "Class/Extension D because it is not extensible.\n"
                          "OxmDicFromXML:OxmDicFromXML- *** ERROR *** "
                          "OxmDicFromXML:CompleteExtension failed.\n"));
}

TEST_F(OxmDicFromXMLCompleteExtensionTest, ExtensibleSetToNoOverridesTheSuperClass) {
    EXPECT_EQ(
        LoadBody(ClassTag("C", 3, "Extensible=\"Yes\"") +
                 ClassTag("D", 2, "Extensible=\"No\" SuperRef=\"" + U(3) + "\"") + Extension("E", 1, U(2))),
        E_FAIL);
}

TEST_F(OxmDicFromXMLCompleteExtensionTest, ScopesOfAnotherDomainAreRefused) {
    MakePackage("Other", ClassTag("C", 1, "Extensible=\"Yes\""), "Domain=\"DUVRA\"");

    EXPECT_EQ(LoadBody(Extension("E", 2, U(1)), "UseNames=\"Other\""), E_FAIL);

    EXPECT_THAT(Written(), HasSubstr("attribute [ScopeRefs]: Cross Domain reference is not authorized"));
}

TEST_F(OxmDicFromXMLCompleteExtensionTest, ScopeRefsOfAClassHaveNoEffect) {
    EXPECT_EQ(LoadBody(ClassTag("C", 1, "ScopeRefs=\"" + U(0xFF) + "\" ScopeNames=\"X\"")), S_OK);

    EXPECT_EQ(Written(), "");
}

// Scopes of relationships.

TEST_F(OxmDicFromXMLCompleteExtensionTest, ARelationshipKeepsItsScopesInOrder) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1) + ClassTag("D", 2, "",
                                                   "<Relationship" + Id("R", 3) + " ScopeRefs=\"" + U(2) +
                                                       " " + U(1) + " " + U(2) + "\"/>")),
              S_OK);

    HeldList scopes;
    Find<OXMIDicRelationship>(3)->GetScopes(&scopes);
    ASSERT_EQ(scopes.Size(), 2);
    EXPECT_EQ(NameOf(static_cast<OXMIDicClass&>(*scopes[1])), "D");
    EXPECT_EQ(NameOf(static_cast<OXMIDicClass&>(*scopes[2])), "C");
}

// Commands, which only callers make.

class CommandFixture : public OxmDicFromXMLCompleteExtensionTest {
protected:
    /// Registers a command. The manager's End, which ends every test, gives its creator's reference back.
    CommandFixture() {
        const ZELDbBinary uuid = TestUuid(7);
        (new ZanDicCommand("Do", uuid))->SetUuid(&uuid);
    }
};

TEST_F(CommandFixture, APackageTakesACommandThatIsThere) {
    ASSERT_EQ(LoadBody("", "CommandRefs=\"" + U(7) + "\""), S_OK) << Written();

    HeldList commands;
    EXPECT_EQ(Package()->GetCommands(&commands), S_OK);
    ASSERT_EQ(commands.Size(), 1);
    EXPECT_EQ(NameOf(static_cast<OXMIDicElementH&>(*commands[1])), "Do");
}

TEST_F(CommandFixture, ACommandGivenTwiceFailsThePackage) {
    EXPECT_EQ(LoadBody("", "CommandRefs=\"" + U(7) + " " + U(7) + "\""), E_FAIL);

    EXPECT_THAT(Written(),
                HasSubstr("Could not process element [P], attribute [CommandRefs]: AddCommand failed"));
}

TEST_F(CommandFixture, AClassMayNameACommandAlthoughItTakesNone) {
    EXPECT_EQ(LoadBody(ClassTag("C", 1, "CommandRefs=\"" + U(7) + "\"")), S_OK);
}

TEST_F(CommandFixture, WhatIsNoCommandFails) {
    EXPECT_EQ(LoadBody(ClassTag("C", 1), "CommandRefs=\"" + U(1) + "\""), E_FAIL);

    EXPECT_THAT(Written(), HasSubstr("QueryInterface(OXMIDicCommand) failed"));
}

}  // namespace
