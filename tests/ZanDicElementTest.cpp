#include "ZanDicElement.h"

#include "ModelFixture.h"

namespace {

class ZanDicElementTest : public ModelFixture {};

TEST_F(ZanDicElementTest, IsAnElementByClassAndKind) {
    const ZanDicElement element("Part", TestUuid(1));

    EXPECT_STREQ(element.IsA(), "ZanDicElement");
    EXPECT_STREQ(ZanDicElement::ClassName(), "ZanDicElement");
    EXPECT_EQ(element.IsAKindOf("ZanDicObj"), 1);
    EXPECT_EQ(element.get_type(), ZanDicObj::_type_Element);
}

TEST_F(ZanDicElementTest, HasEmptyTextsWhenItWasBuiltWithAName) {
    const ZanDicElement element("Part", TestUuid(1));
    ZELUnicodeString alias("before");
    ZELUnicodeString level("before");

    EXPECT_EQ(element.GetAlias(&alias), S_OK);
    EXPECT_EQ(element.GetExpositionLevel(&level), S_OK);

    EXPECT_EQ(alias, ZELUnicodeString(""));
    EXPECT_EQ(level, ZELUnicodeString(""));
}

TEST_F(ZanDicElementTest, HasNullTextsWhenItWasBuiltWithoutAName) {
    const ZanDicElement element;
    ZELUnicodeString alias("before");
    ZELUnicodeString level("before");

    EXPECT_EQ(element.GetAlias(&alias), S_FALSE);
    EXPECT_EQ(element.GetExpositionLevel(&level), S_FALSE);

    EXPECT_EQ(alias, ZELUnicodeString("before"));
    EXPECT_TRUE(level.IsNull());
}

TEST_F(ZanDicElementTest, KeepsTheOtherTextNullWhenOneIsSet) {
    ZanDicElement element;
    const ZELUnicodeString level("Public");
    ZELUnicodeString alias;

    EXPECT_EQ(element.SetExpositionLevel(&level), S_OK);

    EXPECT_EQ(element.GetAlias(&alias), S_FALSE);
}

TEST_F(ZanDicElementTest, KeepsWhatItIsGiven) {
    ZanDicElement element("Part", TestUuid(1));
    const ZELUnicodeString text(
        "Pi\xc3\xa8"
        "ce");
    ZELUnicodeString alias;
    ZELUnicodeString level;
    OXMDicVISIBILITY visibility{};

    EXPECT_EQ(element.SetAlias(&text), S_OK);
    EXPECT_EQ(element.SetExpositionLevel(&text), S_OK);
    EXPECT_EQ(element.SetVisibility(OXMDicVISIBILITY_Private), S_OK);

    EXPECT_EQ(element.GetAlias(&alias), S_OK);
    EXPECT_EQ(element.GetExpositionLevel(&level), S_OK);
    EXPECT_EQ(element.GetVisibility(&visibility), S_OK);
    EXPECT_EQ(alias, text);
    EXPECT_EQ(level, text);
    EXPECT_EQ(visibility, OXMDicVISIBILITY_Private);
}

TEST_F(ZanDicElementTest, IsPublicAtFirst) {
    const ZanDicElement element("Part", TestUuid(1));
    OXMDicVISIBILITY visibility{};

    EXPECT_EQ(element.GetVisibility(&visibility), S_OK);

    EXPECT_EQ(visibility, OXMDicVISIBILITY_Public);
}

TEST_F(ZanDicElementTest, AcceptsANullTextAsAValue) {
    ZanDicElement element("Part", TestUuid(1));
    const ZELUnicodeString null;
    ZELUnicodeString alias("before");

    EXPECT_EQ(element.SetAlias(&null), S_OK);

    EXPECT_EQ(element.GetAlias(&alias), S_FALSE);
    EXPECT_EQ(alias, ZELUnicodeString("before"));
}

TEST_F(ZanDicElementTest, RefusesNullPointers) {
    ZanDicElement element("Part", TestUuid(1));

    EXPECT_EQ(element.SetAlias(nullptr), E_FAIL);
    EXPECT_EQ(element.SetExpositionLevel(nullptr), E_FAIL);
    EXPECT_EQ(element.GetAlias(nullptr), E_FAIL);
    EXPECT_EQ(element.GetExpositionLevel(nullptr), E_FAIL);
    EXPECT_EQ(element.GetVisibility(nullptr), E_FAIL);
    EXPECT_EQ(element.GetPackage(nullptr), E_FAIL);
    EXPECT_EQ(element.GetPackageName(nullptr), E_FAIL);
}

TEST_F(ZanDicElementTest, AnswersWithoutAPackage) {
    const ZanDicElement element("Part", TestUuid(1));
    OXMIDicPackage* package = nullptr;
    ZELString name("before");

    EXPECT_EQ(element.GetPackage(&package), E_FAIL);
    EXPECT_EQ(element.GetPackageName(&name), S_FALSE);

    EXPECT_EQ(package, nullptr);
    EXPECT_EQ(name, ZELString("before"));
    EXPECT_EQ(element.get_PackageName(), ZELString("?"));
}

TEST_F(ZanDicElementTest, KnowsItsPackage) {
    const auto package = Package("Items");
    const auto part = Class(*package, "Part");
    Held<OXMIDicPackage> owner;
    ZELString name;

    EXPECT_EQ(part->GetPackage(owner.Out()), S_OK);
    EXPECT_EQ(part->GetPackageName(&name), S_OK);

    EXPECT_EQ(owner.Get(), package.Get());
    EXPECT_EQ(name, ZELString("Items"));
}

TEST_F(ZanDicElementTest, ForgetsItsPackageOnceItIsRemoved) {
    const auto package = Package("Items");
    const auto part = Class(*package, "Part");
    Held<OXMIDicPackage> owner;
    ZELString name;

    EXPECT_EQ(package->RemoveElement(Named("Part")), S_OK);

    EXPECT_EQ(part->GetPackage(owner.Out()), E_FAIL);
    EXPECT_EQ(part->GetPackageName(&name), S_FALSE);
    EXPECT_EQ(part->GetName(&name), S_OK);
    EXPECT_EQ(name, ZELString("Part"));
}

TEST_F(ZanDicElementTest, HasNoOwnerAndNoSuperPackage) {
    const auto package = Package("Items");
    const auto part = Class(*package, "Part");
    OXMIDicElement* owner = nullptr;
    OXMIDicPackage* superPackage = nullptr;

    EXPECT_EQ(part->BelongsTo(&owner), E_FAIL);
    EXPECT_EQ(part->GetSuperPackage(&superPackage), E_FAIL);

    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicElementTest, FlushesNothingAndSaysSo) {
    const auto package = Package("Items");
    const auto category = Category(*package, "Weight");
    TraceFromNow(1);

    EXPECT_EQ(category->FlushAll(), S_OK);

    EXPECT_EQ(Written(),
              "ZanDicElement::FlushAll- *** INFO *** Default implementation for Element: Category, RC=OK.\n");
}

TEST_F(ZanDicElementTest, DumpsItselfAfterItsBase) {
    ZanDicElement element("Part", TestUuid(1));
    const ZELUnicodeString alias("Item");
    element.set_TYPE(OXMDicTYPE_Category);
    element.SetAlias(&alias);
    ClearWritten();

    element.Dump("the test");

    EXPECT_EQ(Written(),
              "ZanDicElement::Dump -  called by the test ------\n"
              "ZanDicObj::Dump -  called by the test ------\n"
              "ZanDicObj::Dump - _Name=Part.\n"
              "ZanDicObj::Dump - _Uuid=00000000-0000-0000-0000000000000001.\n"
              "ZanDicObj::Dump - _Type=2-Category.\n"
              "ZanDicElement::Dump - _Alias=Item.\n"
              "ZanDicElement::Dump - _Visibility=1.\n");
}

}  // namespace
