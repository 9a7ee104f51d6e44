#include "ZanHashList.h"

#include <rapidcheck.h>

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "DictionaryFixture.h"
#include "ZELTestDirectory.h"

namespace {

class ZanHashListTest : public DictionaryFixture {
protected:
    ZanHashList list{29};
    ZanDicObj part{"Part", TestUuid(1)};
    ZanDicObj document{"Document", TestUuid(2)};
};

std::string At(const void* address) {
    std::ostringstream text;
    text << address;
    return text.str();
}

std::vector<ZanDicObj*> Entries(const ZanHashList& list) {
    std::vector<ZanDicObj*> entries;
    for (int position = 1; position <= list.Size(); ++position) entries.push_back(list[position]);
    return entries;
}

/// Objects "O1" to "On".
std::vector<std::unique_ptr<ZanDicObj>> MakeObjects(unsigned count) {
    std::vector<std::unique_ptr<ZanDicObj>> objects;
    for (unsigned number = 1; number <= count; ++number) {
        objects.push_back(
            std::make_unique<ZanDicObj>(("O" + std::to_string(number)).c_str(), TestUuid(number)));
    }
    return objects;
}

}  // namespace

static_assert(sizeof(ZanHashList) == sizeof(void*));

TEST_F(ZanHashListTest, KeepsTheOrderOfAppending) {
    EXPECT_EQ(list.Append(&part), S_OK);
    EXPECT_EQ(list.Append(&document), S_OK);

    EXPECT_EQ(Entries(list), (std::vector<ZanDicObj*>{&part, &document}));
    EXPECT_EQ(part.RefCount(), 1U);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanHashListTest, AnswersNullOutsideItsPositions) {
    list.Append(&part);

    EXPECT_EQ(list[0], nullptr);
    EXPECT_EQ(list[-1], nullptr);
    EXPECT_EQ(list[2], nullptr);
}

TEST_F(ZanHashListTest, AppendRefusesASecondObjectOfTheSameName) {
    ZanDicObj second("Part", TestUuid(3));

    EXPECT_EQ(list.Append(&part), S_OK);
    EXPECT_EQ(list.Append(&second), E_FAIL);

    EXPECT_EQ(Entries(list), (std::vector<ZanDicObj*>{&part}));
    EXPECT_EQ(Written(), "ZanHashList::Append- *** ERROR *** Could not insert in ZELHASH_ZanDicObj.\n");
    EXPECT_EQ(Lines()[0].severity, ZELLineSeverity::Error);
}

TEST_F(ZanHashListTest, AppendRefusesTheSameObjectTwice) {
    list.Append(&part);

    EXPECT_EQ(list.Append(&part), E_FAIL);
    EXPECT_EQ(list.Size(), 1);
}

TEST_F(ZanHashListTest, AppendRefusesNull) {
    EXPECT_EQ(list.Append(static_cast<ZanDicObj*>(nullptr)), E_FAIL);

    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(Written(), "ZanHashList::Append- *** ERROR *** Input argument is NULL.\n");
}

TEST_F(ZanHashListTest, AppendTracesAtLevelOne) {
    TraceFromNow(1);
    list.Append(&part);

    EXPECT_EQ(Written(),
              "ZanHashList::Append- === start ===.\n"
              "ZanHashList::Append- appending object:Part, @=" +
                  At(&part) +
                  ".\n"
                  "ZanHashList::Append- === exit === rc=OK.\n");
}

TEST_F(ZanHashListTest, AppendOfAListedOperationTracesAtLevelZero) {
    const TestDirectory directory;
    ZanDicSetTraceMethodsFile(directory.MakeFile("methods.txt", "ZanHashList::Append\n").c_str());
    list.Append(&part);
    list.Remove("Part");

    EXPECT_EQ(Written(),
              "ZanHashList::Append- === start ===.\n"
              "ZanHashList::Append- appending object:Part, @=" +
                  At(&part) +
                  ".\n"
                  "ZanHashList::Append- === exit === rc=OK.\n");
}

TEST_F(ZanHashListTest, AppendOfNullTracesStartAndExit) {
    TraceFromNow(1);
    list.Append(static_cast<ZanDicObj*>(nullptr));

    EXPECT_EQ(Written(),
              "ZanHashList::Append- === start ===.\n"
              "ZanHashList::Append- *** ERROR *** Input argument is NULL.\n"
              "ZanHashList::Append- === exit === rc=KO.\n");
}

TEST_F(ZanHashListTest, AppendOfAListGoesOnAfterARefusal) {
    ZanDicObj clash("Part", TestUuid(3));
    ZanDicObj last("Last", TestUuid(4));
    ZanHashList other(29);
    for (ZanDicObj* const object : {&document, &clash, &last}) other.Append(object);
    list.Append(&part);

    EXPECT_EQ(list.Append(other), E_FAIL);
    EXPECT_EQ(Entries(list), (std::vector<ZanDicObj*>{&part, &document, &last}));
}

TEST_F(ZanHashListTest, AppendOfAnEmptyListIsTracedUnderItsOwnLabel) {
    TraceFromNow(1);

    EXPECT_EQ(list.Append(ZanHashList(7)), S_OK);
    EXPECT_EQ(Written(),
              "ZanHashList::Append(ZanHashList)- === start ===.\n"
              "ZanHashList::Append(ZanHashList)- === exit === rc=OK.\n");
}

TEST_F(ZanHashListTest, NamesCompareExactly) {
    ZanDicObj lower("part", TestUuid(3));
    list.Append(&part);

    EXPECT_EQ(list.Append(&lower), S_OK);
}

TEST_F(ZanHashListTest, SearchFindsByName) {
    list.Append(&part);
    list.Append(&document);
    ZanDicObj* found = nullptr;

    EXPECT_EQ(list.Search("Document", &found), S_OK);
    EXPECT_EQ(found, &document);
}

TEST_F(ZanHashListTest, SearchLeavesItsOutputUntouchedOnAMissAndTracesNothing) {
    ZanDicObj* warm = nullptr;
    ZanDicSetTraceLevel(5);
    list.Search("Warm", &warm);  // the shared probe shows once in a process
    list.Append(&part);
    ClearWritten();
    ZanDicObj* found = &document;

    EXPECT_EQ(list.Search("part", &found), E_FAIL);
    EXPECT_EQ(found, &document);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanHashListTest, SearchNeedsSomewhereToPutTheObject) {
    list.Append(&part);

    EXPECT_EQ(list.Search("Part", nullptr), E_FAIL);
}

TEST_F(ZanHashListTest, NothingIsFoundInAListOfAnyKindThatIsEmpty) {
    for (const ZanHashListKind kind :
         {ZanHashListKind::Links, ZanHashListKind::Owner, ZanHashListKind::Unnamed}) {
        const ZanHashList empty(29, kind);
        ZanDicObj* found = nullptr;

        EXPECT_EQ(empty.Search("Part", &found), E_FAIL);
        EXPECT_EQ(found, nullptr);
    }
}

TEST_F(ZanHashListTest, RemoveTakesTheObjectOut) {
    list.Append(&part);
    list.Append(&document);
    ZanDicObj* found = nullptr;

    EXPECT_EQ(list.Remove("Part"), S_OK);
    EXPECT_EQ(Entries(list), (std::vector<ZanDicObj*>{&document}));
    EXPECT_EQ(list.Search("Part", &found), E_FAIL);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanHashListTest, RemoveOfAnUnknownNameFailsAndChangesNothing) {
    list.Append(&part);

    EXPECT_EQ(list.Remove("part"), E_FAIL);
    EXPECT_EQ(list.Size(), 1);
}

TEST_F(ZanHashListTest, RemoveShowsItsProbeInTheTrace) {
    list.Append(&part);
    TraceFromNow(1);
    list.Remove("Part");

    ASSERT_EQ(Lines().size(), 6U);
    EXPECT_EQ(Lines()[0].text, "ZanHashList::Remove- === start === .");
    EXPECT_EQ(Lines()[1].text, "ZanDicObj::ZanDicObj- _Type=-1, _Name=UNDEFINED.");
    EXPECT_EQ(Lines()[2].text.rfind("ZanDicObj::ZanDicObj- @=0x", 0), 0U);
    EXPECT_EQ(Lines()[3].text, "ZanHashList::Remove- removing object:Part, @=" + At(&part) + ".");
    EXPECT_EQ(Lines()[4].text, "ZanHashList::Remove- === exit === rc=OK.");
    EXPECT_EQ(Lines()[5].text, "ZanDicObj::~ZanDicObj- === start ===.");
}

TEST_F(ZanHashListTest, RemoveOfAnUnknownNameTracesANullAddress) {
    TraceFromNow(1);
    list.Remove("Part");

    EXPECT_NE(Written().find("ZanHashList::Remove- removing object:Part, @=0.\n"
                             "ZanHashList::Remove- === exit === rc=KO.\n"),
              std::string::npos);
}

TEST_F(ZanHashListTest, RemoveAllAlwaysWritesItsLine) {
    list.Append(&part);
    TraceFromNow(-1);

    EXPECT_EQ(list.RemoveAll(), S_OK);
    EXPECT_EQ(list.RemoveAll(), S_OK);
    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(Written(),
              "ZanHashList::RemoveAll _HASH.Size()=1, _LISTP.Size()=1\n"
              "ZanHashList::RemoveAll _HASH.Size()=0, _LISTP.Size()=0\n");
}

TEST_F(ZanHashListTest, RemoveAllTracesTheSizesBeforeAndAfter) {
    list.Append(&part);
    TraceFromNow(1);
    list.RemoveAll();

    EXPECT_EQ(Written(),
              "ZanHashList::RemoveAll- === start === .\n"
              "ZanHashList::RemoveAll- _HASH.Size()=1, _LISTP.Size()=1.\n"
              "ZanHashList::RemoveAll _HASH.Size()=1, _LISTP.Size()=1\n"
              "ZanHashList::RemoveAll- _HASH.Size()=0, _LISTP.Size()=0.\n"
              "ZanHashList::RemoveAll- === exit === rc=OK.\n");
}

TEST_F(ZanHashListTest, KeepsTheNameOfTheTimeOfAppendingAsKey) {
    list.Append(&part);
    const ZELString renamed = "Renamed";
    part.SetName(&renamed);
    ZanDicObj* found = nullptr;

    EXPECT_EQ(list.Search("Renamed", &found), E_FAIL);
    EXPECT_EQ(list.Search("Part", &found), S_OK);
    EXPECT_EQ(list.Remove("Part"), S_OK);
    EXPECT_EQ(list.Append(&part), S_OK);
    EXPECT_EQ(list.Search("Renamed", &found), S_OK);
}

TEST_F(ZanHashListTest, TakesAnObjectByIdentityWhateverItsNameIs) {
    ZanDicObj namesake("Part", TestUuid(3));
    list.Append(&part);
    const ZELString renamed = "Renamed";
    part.SetName(&renamed);

    EXPECT_FALSE(list.take_Object(&namesake));
    EXPECT_FALSE(list.take_Object(nullptr));
    EXPECT_TRUE(list.take_Object(&part));
    EXPECT_FALSE(list.take_Object(&part));
    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanHashListTest, TakesWhatItKeepsWithoutANameToo) {
    ZanDicObj first("Same", TestUuid(1)), second("Same", TestUuid(2)), stranger("Same", TestUuid(3));
    ZanHashList kept(0, ZanHashListKind::Unnamed);
    kept.keep(first);
    kept.keep(second);

    EXPECT_FALSE(kept.take_Object(&stranger));
    EXPECT_TRUE(kept.take_Object(&second));
    EXPECT_FALSE(kept.take_Object(&second));

    EXPECT_EQ(kept.Size(), 1);
    EXPECT_EQ(kept[1], &first);
}

TEST_F(ZanHashListTest, TreatsAnObjectThatIsGoneAsAbsent) {
    ZanDicObj successor("Part", TestUuid(3));
    list.Append(&part);
    list.Append(&document);
    part.mark_Gone();
    ZanDicObj* found = nullptr;

    EXPECT_EQ(list.Search("Part", &found), E_FAIL);
    EXPECT_EQ(Entries(list), (std::vector<ZanDicObj*>{&document}));
    EXPECT_EQ(list.Append(&successor), S_OK);
    EXPECT_EQ(Entries(list), (std::vector<ZanDicObj*>{&document, &successor}));
}

TEST_F(ZanHashListTest, DoesNotTouchAnObjectThatWasDestroyed) {
    auto doomed = std::make_unique<ZanDicObj>("Doomed", TestUuid(3));
    list.Append(doomed.get());
    doomed.reset();
    ZanDicObj* found = nullptr;

    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(list.Search("Doomed", &found), E_FAIL);
    EXPECT_EQ(list.Remove("Doomed"), E_FAIL);
}

TEST_F(ZanHashListTest, AnOwningListCountsItsObjectsUntilRemoveAllWithoutTouchingThem) {
    ZanHashList owning(29, ZanHashListKind::Owner);
    auto released = std::make_unique<ZanDicObj>("Released", TestUuid(3));
    owning.Append(released.get());
    owning.Append(&part);
    part.mark_Gone();
    released.reset();

    EXPECT_EQ(owning.Size(), 2);
    EXPECT_EQ(owning[2], &part);
    owning.RemoveAll();
    EXPECT_EQ(owning.Size(), 0);
    EXPECT_EQ(Written(), "ZanHashList::RemoveAll _HASH.Size()=2, _LISTP.Size()=2\n");
}

TEST_F(ZanHashListTest, CopiesAndAssigns) {
    list.Append(&part);
    ZanHashList copy(list);
    list.Append(&document);
    ZanHashList assigned(7, ZanHashListKind::Owner);
    assigned = list;
    list.clear();

    EXPECT_EQ(Entries(copy), (std::vector<ZanDicObj*>{&part}));
    EXPECT_EQ(Entries(assigned), (std::vector<ZanDicObj*>{&part, &document}));
    EXPECT_EQ(list.Size(), 0);
}

TEST_F(ZanHashListTest, ACopyOfALongListFindsAllAndIsAListOfItsOwn) {
    const auto objects = MakeObjects(1000);
    for (const auto& object : objects) ASSERT_EQ(list.Append(object.get()), S_OK);
    ZanDicObj* found = nullptr;

    const ZanHashList copy(list);
    list.clear();

    EXPECT_EQ(copy.Size(), 1000);
    EXPECT_EQ(copy.Search("O1", &found), S_OK);
    EXPECT_EQ(found, objects.front().get());
    EXPECT_EQ(copy.Search("O1000", &found), S_OK);
    EXPECT_EQ(found, objects.back().get());
    EXPECT_EQ(copy.Search("O1001", &found), E_FAIL);
}

TEST_F(ZanHashListTest, FindsEachOfManyObjectsAndAllWhileTheyAreRemoved) {
    const auto objects = MakeObjects(1000);
    list.reserve(500);
    for (const auto& object : objects) ASSERT_EQ(list.Append(object.get()), S_OK);

    for (std::size_t index = 0; index < objects.size(); index += 2) {
        ASSERT_EQ(list.Remove(objects[index]->Name()), S_OK);
    }
    EXPECT_EQ(list.Size(), 500);
    for (std::size_t index = 0; index < objects.size(); ++index) {
        ZanDicObj* found = nullptr;
        ASSERT_EQ(list.Search(objects[index]->Name(), &found), index % 2 == 0 ? E_FAIL : S_OK);
        ASSERT_EQ(found, index % 2 == 0 ? nullptr : objects[index].get());
    }
}

TEST_F(ZanHashListTest, HoldsAgainstAModel) {
    EXPECT_TRUE(rc::check("a named list is what a model says", [] {
        const bool owner = *rc::gen::arbitrary<bool>();
        ZanHashList tried(1, owner ? ZanHashListKind::Owner : ZanHashListKind::Links);
        auto objects = MakeObjects(40);
        std::vector<ZanDicObj*> model;

        const auto steps = *rc::gen::arbitrary<std::vector<std::pair<std::uint8_t, std::uint8_t>>>();
        for (const auto& [action, which] : steps) {
            auto& object = objects[which % objects.size()];
            const ZELString name = object->Name();
            const auto entry = std::find(model.begin(), model.end(), object.get());
            const bool isIn = entry != model.end();
            ZanDicObj* found = nullptr;
            RC_ASSERT(tried.Search(name, &found) == (isIn ? S_OK : E_FAIL));
            RC_ASSERT(found == (isIn ? object.get() : nullptr));
            if (action % 8 < 4) {
                if (!isIn) {
                    RC_ASSERT(tried.Append(object.get()) == S_OK);
                    model.push_back(object.get());
                }
            } else if (action % 8 < 6) {
                RC_ASSERT(tried.Remove(name) == (isIn ? S_OK : E_FAIL));
                if (isIn) model.erase(entry);
            } else if (action % 8 < 7) {
                RC_ASSERT(tried.take_Object(object.get()) == isIn);
                if (isIn) model.erase(entry);
            } else if (!owner) {
                if (isIn) model.erase(entry);
                object = std::make_unique<ZanDicObj>(name, ZELDbBinary());
            }
            RC_ASSERT(tried.Size() == static_cast<int>(model.size()));
            if (action % 3 == 0) RC_ASSERT(Entries(tried) == model);
        }
        RC_ASSERT(Entries(tried) == model);
    }));
}
