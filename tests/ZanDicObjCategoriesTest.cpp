#include <memory>
#include <string>

#include "DictionaryFixture.h"
#include "OXMIDicCategory.h"
#include "OXMIDicPackage.h"
#include "ZELTestDirectory.h"
#include "ZanDicObj.h"

namespace {

class ZanDicObjCategoriesTest : public DictionaryFixture {
protected:
    /// A category of a package of its own.
    Held<OXMIDicCategory> MakeCategory(const char* name, unsigned number) {
        Held<OXMIDicCategory> category;
        const ZELString text = name;
        const ZELDbBinary uuid = TestUuid(number);
        EXPECT_EQ(Package().CreateCategory(&text, &uuid, category.Out()), S_OK);
        return category;
    }

    OXMIDicPackage& Package() {
        if (!_Package) {
            const ZELString name = "Tests";
            const ZELString domain = "VALKOR";
            const ZELDbBinary uuid = TestUuid(1000);
            EXPECT_EQ(Manager().CreatePackage(&name, &uuid, &domain, _Package.Out()), S_OK);
        }
        return *_Package;
    }

private:
    Held<OXMIDicPackage> _Package;
};

}  // namespace

TEST_F(ZanDicObjCategoriesTest, AddCategoryOfNullIsAnErrorWithItsNumber) {
    ZanDicObj object;
    unsigned char isCategory = 7;
    const ZELString name = "Any";

    EXPECT_EQ(object.AddCategory(nullptr), E_FAIL);
    EXPECT_EQ(Written(), "ZanDicObj::AddCategory- 234- *** ERROR *** Input argument is NULL..\n");
    EXPECT_EQ(object.IsCategory(&name, &isCategory), E_FAIL) << "no list was made";
}

TEST_F(ZanDicObjCategoriesTest, AddCategoryAttachesOnce) {
    const auto category = MakeCategory("Heavy", 1);
    ZanDicObj object("Part", TestUuid(2));
    HeldList categories;

    EXPECT_EQ(object.AddCategory(category.Get()), S_OK);
    EXPECT_EQ(object.AddCategory(category.Get()), S_FALSE);
    EXPECT_EQ(object.GetCategories(&categories), S_OK);
    EXPECT_EQ(categories.Size(), 1);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicObjCategoriesTest, AddCategoryTraces) {
    const auto category = MakeCategory("Heavy", 1);
    ZanDicObj object("Part", TestUuid(2));
    const TestDirectory directory;
    ZanDicSetTraceMethodsFile(directory.MakeFile("methods.txt", "ZanDicObj::AddCategory\n").c_str());
    object.AddCategory(category.Get());

    EXPECT_EQ(Written(),
              "ZanDicObj::AddCategory- === start === .\n"
              "ZanDicObj::AddCategory- _Name=Part.\n"
              "ZanDicObj::AddCategory- Creating _CATEGORIES = new ZanHashList.\n"
              "ZanDicObj::AddCategory- CategoryName=Heavy.\n"
              "ZanDicObj::AddCategory- === exit === rc=OK.\n");
    ClearWritten();
    object.AddCategory(category.Get());
    EXPECT_EQ(Written(),
              "ZanDicObj::AddCategory- === start === .\n"
              "ZanDicObj::AddCategory- _Name=Part.\n"
              "ZanDicObj::AddCategory- CategoryName=Heavy.\n"
              "ZanDicObj::AddCategory- Category Heavy is already defined for element named Part.\n"
              "ZanDicObj::AddCategory- === exit === rc=OK.\n");
}

TEST_F(ZanDicObjCategoriesTest, AddCategoryRefusesOneThatIsGone) {
    const auto category = MakeCategory("Heavy", 1);
    const ZELString name = "Heavy";
    Package().RemoveElement(&name);
    ZanDicObj object("Part", TestUuid(2));
    unsigned char isCategory = 7;

    EXPECT_EQ(object.AddCategory(category.Get()), E_FAIL);
    EXPECT_EQ(object.IsCategory(&name, &isCategory), E_FAIL) << "nothing has changed";
}

TEST_F(ZanDicObjCategoriesTest, IsCategoryAnswersOnceThereIsAList) {
    const auto heavy = MakeCategory("Heavy", 1);
    ZanDicObj object("Part", TestUuid(2));
    const ZELString heavyName = "Heavy";
    const ZELString lightName = "Light";
    unsigned char isCategory = 7;

    EXPECT_EQ(object.IsCategory(&heavyName, &isCategory), E_FAIL);
    EXPECT_EQ(isCategory, 7);
    object.AddCategory(heavy.Get());
    EXPECT_EQ(object.IsCategory(&heavyName, &isCategory), S_OK);
    EXPECT_EQ(isCategory, 1);
    EXPECT_EQ(object.IsCategory(&lightName, &isCategory), S_OK);
    EXPECT_EQ(isCategory, 0);
}

TEST_F(ZanDicObjCategoriesTest, RemoveCategoryDetachesByName) {
    const auto heavy = MakeCategory("Heavy", 1);
    ZanDicObj object("Part", TestUuid(2));

    EXPECT_EQ(object.RemoveCategory(heavy.Get()), E_FAIL) << "no list";
    object.AddCategory(heavy.Get());
    EXPECT_EQ(object.RemoveCategory(nullptr), E_FAIL);
    EXPECT_EQ(object.RemoveCategory(heavy.Get()), S_OK);
    EXPECT_EQ(object.RemoveCategory(heavy.Get()), E_FAIL) << "not attached any more";
}

TEST_F(ZanDicObjCategoriesTest, GetCategoriesGivesThemInOrder) {
    const auto heavy = MakeCategory("Heavy", 1);
    const auto light = MakeCategory("Light", 2);
    ZanDicObj object("Part", TestUuid(3));
    object.AddCategory(light.Get());
    object.AddCategory(heavy.Get());
    HeldList categories;

    EXPECT_EQ(object.GetCategories(&categories), S_OK);
    ASSERT_EQ(categories.Size(), 2);
    EXPECT_EQ(categories[1], static_cast<IUnknown*>(light.Get()));
    EXPECT_EQ(categories[2], static_cast<IUnknown*>(heavy.Get()));
}

TEST_F(ZanDicObjCategoriesTest, GetCategoriesTellsNoListFromNoCategory) {
    const auto heavy = MakeCategory("Heavy", 1);
    ZanDicObj object("Part", TestUuid(2));
    HeldList categories;

    EXPECT_EQ(object.GetCategories(nullptr), E_INVALIDARG);
    EXPECT_EQ(object.GetCategories(&categories), E_FAIL);
    object.AddCategory(heavy.Get());
    object.RemoveCategory(heavy.Get());
    EXPECT_EQ(object.GetCategories(&categories), S_OK);
    EXPECT_EQ(categories.Size(), 0);
}

TEST_F(ZanDicObjCategoriesTest, ACategoryThatIsGoneCountsAsDetached) {
    auto heavy = MakeCategory("Heavy", 1);
    ZanDicObj object("Part", TestUuid(2));
    object.AddCategory(heavy.Get());
    const ZELString name = "Heavy";
    heavy.Reset();
    Package().RemoveElement(&name);
    unsigned char isCategory = 7;

    EXPECT_EQ(object.IsCategory(&name, &isCategory), S_OK);
    EXPECT_EQ(isCategory, 0);
}

TEST_F(ZanDicObjCategoriesTest, ACopySharesTheCategories) {
    const auto heavy = MakeCategory("Heavy", 1);
    auto object = std::make_unique<ZanDicObj>("Part", TestUuid(2));
    object->AddCategory(heavy.Get());
    object->SetOtherAttribute("Key", "v");
    const ZanDicObj copy(*object);
    object->RemoveCategory(heavy.Get());
    object->SetOtherAttribute("Key", "changed");
    object.reset();
    HeldList categories;
    ZELUnicodeString value;

    EXPECT_EQ(copy.GetCategories(&categories), S_OK);
    EXPECT_EQ(categories.Size(), 0) << "the list is one";
    copy.GetOtherAttribute("Key", value);
    EXPECT_EQ(value, "v") << "the free attributes are two";
}
