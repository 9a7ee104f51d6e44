#include "ExpressClass.h"

#include <gtest/gtest.h>

#include <string>

#include "FakeClass.h"
#include "KindsFixture.h"
#include "SaveFixture.h"

namespace {

class ExpressClassTest : public SavingFixture<KindsFixture> {
protected:
    /// \returns the entity of a class; the result is in result.
    std::string TextOf(OXMIDicClass& element) {
        ZELDurableFile file;
        EXPECT_EQ(file.Open(directory.Path("schema")), S_OK);
        ExpressClass entities(file);
        result = entities.Write(element);
        hasDate = entities.HasDate();
        EXPECT_EQ(file.Commit(), S_OK);
        return FileText(directory.Path("schema"));
    }

    HRESULT result = S_OK;
    bool hasDate = false;
};

TEST_F(ExpressClassTest, AnElementOfAnotherKindEndsItsLine) {
    const Held<FakeClass> element(new FakeClass(OXMDicTYPE_Class, "C", 1));
    element->Own(new FakePlain(OXMDicTYPE_Method, "M", 2));
    element->Own(new FakePlain(OXMDicTYPE_Simple, "S", 3));

    EXPECT_EQ(TextOf(*element),
              "ENTITY C ;\n"
              "    M                                 : \n"
              "    S                                 : \n"
              "END_ENTITY ;\n"
              "\n");
    EXPECT_EQ(result, S_OK);
}

TEST_F(ExpressClassTest, UniquesAndInversesAmongTheAttributesAreNoAttributeLines) {
    const Held<FakeClass> element(new FakeClass(OXMDicTYPE_Class, "C", 1));
    element->Own(new FakePlain(OXMDicTYPE_Unique, "U", 2));
    element->Own(new FakePlain(OXMDicTYPE_Inverse, "I", 3));

    EXPECT_EQ(TextOf(*element),
              "ENTITY C ;\n"
              "INVERSE \n"
              "    I                                 : \n"
              "END_ENTITY ;\n"
              "\n");
}

TEST_F(ExpressClassTest, ANullUniqueEndsTheExport) {
    const Held<FakeClass> element(new FakeClass(OXMDicTYPE_Class, "C", 1));
    const Held<FakePlain> other(new FakePlain(OXMDicTYPE_Simple, "no unique", 2));
    element->uniques = {other.Get(), nullptr};

    EXPECT_EQ(TextOf(*element), "ENTITY C ;\n");
    EXPECT_EQ(result, E_FAIL);
}

/// An external relationship of another kind than those that have a text.
class ExpressExternalTest : public ExpressClassTest,
                            public testing::WithParamInterface<OXMDicPRIMITIVEType> {};

TEST_P(ExpressExternalTest, OfAnotherPrimitiveEndsItsLine) {
    const Held<OXMIDicPackage> package = Package("P");
    const Held<OXMIDicClass> owner = Class(*package, "C");
    const Held<OXMIDicRelationship> relationship = Relationship(*owner, "R");
    relationship->SetType(Primitive(GetParam()).Get());
    relationship->SetScope(OXMDicSCOPE_Vault);

    EXPECT_EQ(TextOf(*owner),
              "ENTITY C ;\n"
              "    R                                 : OPTIONAL \n"
              "END_ENTITY ;\n"
              "\n");
    EXPECT_FALSE(hasDate);
}

INSTANTIATE_TEST_SUITE_P(Primitives, ExpressExternalTest,
                         testing::Values(OXMDicPRIMITIVEType_Boolean, OXMDicPRIMITIVEType_Integer,
                                         OXMDicPRIMITIVEType_Double, OXMDicPRIMITIVEType_Date,
                                         OXMDicPRIMITIVEType_Logical, OXMDicPRIMITIVEType_AnyObject));

TEST_F(ExpressClassTest, AnExternalRelationshipWithATargetNamesIt) {
    const Held<OXMIDicPackage> package = Package("P");
    const Held<OXMIDicClass> owner = Class(*package, "C");
    const Held<OXMIDicRelationship> relationship = Relationship(*owner, "R");
    relationship->SetTarget(owner.Get());
    relationship->SetScope(OXMDicSCOPE_External);
    relationship->SetMandatory(1);

    EXPECT_EQ(TextOf(*owner),
              "ENTITY C ;\n"
              "    R                                 : C ;\n"
              "END_ENTITY ;\n"
              "\n");
}

TEST_F(ExpressClassTest, WhatIsGoneIsWrittenAsNeverSet) {
    const Held<OXMIDicPackage> package = Package("P");
    Held<OXMIDicPackage> other = Package("Other");
    const Held<OXMIDicClass> owner = Class(*package, "C");
    {
        const Held<OXMIDicClass> lost = Class(*other, "Lost");
        owner->SetSuperClass(lost.Get());
        Simple(*owner, "S")->SetType(Enum(*other, "E").Get());
        Relationship(*owner, "R")->SetTarget(lost.Get());
        const Held<OXMIDicInverse> inverse = Inverse(*owner, "I");
        inverse->SetTarget(lost.Get());
        inverse->SetInverse(Relationship(*lost, "LR").Get());
        const Held<OXMIDicUnique> unique = Unique(*owner, "U");
        unique->AddElement(Simple(*lost, "LS").Get());
    }
    other.Reset();
    RemovePackage("Other");

    EXPECT_EQ(TextOf(*owner),
              "ENTITY C ;\n"
              "    S                                 : OPTIONAL  ; \n"
              "    R                                 : OPTIONAL unknown target  ;\n"
              "INVERSE \n"
              "    I                                 : I FOR  (* WARNING inverse not accessible *) ; \n"
              "UNIQUE \n"
              "    U :  ; \n"
              "END_ENTITY ;\n"
              "\n");
    EXPECT_EQ(result, S_OK);
}

TEST_F(ExpressClassTest, ADateIsNotedWhetherItHasALengthOrNot) {
    const Held<OXMIDicPackage> package = Package("P");
    const Held<OXMIDicClass> owner = Class(*package, "C");
    const Held<OXMIDicSimple> simple = Simple(*owner, "S");
    simple->SetPrimitive(Primitive(OXMDicPRIMITIVEType_Date).Get());
    simple->SetMaxLength(5);

    EXPECT_EQ(TextOf(*owner),
              "ENTITY C ;\n"
              "    S                                 : OPTIONAL OXM_DATE(5)  ; \n"
              "END_ENTITY ;\n"
              "\n");
    EXPECT_TRUE(hasDate);
}

TEST_F(ExpressClassTest, NamesAreWrittenAsTheyAreAndCountInCharacters) {
    const Held<OXMIDicPackage> package = Package("P");
    const Held<OXMIDicClass> owner = Class(*package, " a \"b\" ");
    std::string name;
    for (int count = 0; count < 32; ++count) name += "\xf0\x9f\x98\x80";
    Simple(*owner, name.c_str())->SetMandatory(1);

    EXPECT_EQ(TextOf(*owner), "ENTITY  a \"b\"  ;\n    " + name + "  :  ; \nEND_ENTITY ;\n\n");
}

}  // namespace
