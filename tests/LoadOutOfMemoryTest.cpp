// Memory that runs out at every allocation of a load: the load fails, nothing of it stays, and the next one
// works.
#include <set>
#include <string>

#include "OutOfMemoryFixture.h"
#include "ZanDicTraceSettings.h"

namespace {

/// Asks to go on and keeps nothing of what it is told.
class DeafObserver final : public ZanDicDiagnosticObserver {
public:
    explicit DeafObserver(bool isThorough) : _IsThorough(isThorough) { ZanDicSetDiagnosticObserver(this); }
    ~DeafObserver() { ZanDicSetDiagnosticObserver(nullptr); }
    DeafObserver(const DeafObserver&) = delete;
    DeafObserver& operator=(const DeafObserver&) = delete;

    bool OnDiagnostic(const ZanDicDiagnostic&) override {
        ++told;
        return true;
    }
    bool IsThorough() const override { return _IsThorough; }

    int told = 0;

private:
    bool _IsThorough;
};

class LoadOutOfMemoryTest : public OutOfMemoryFixture<ReaderFixture> {
protected:
    /// A load that needs no other: whatever fails, the dictionary is as before.
    template <class Action>
    HRESULT SweepLoad(const Action& load) {
        const std::string stateBefore = State();
        const int objectsBefore = ZanDicObj::live_Objects();
        return Sweep(load, [&] {
            EXPECT_EQ(ZanDicObj::live_Objects(), objectsBefore);
            EXPECT_EQ(State(), stateBefore);
        });
    }

    HRESULT LoadHere(const ZELString& name) {
        return LoadGood(name, OXMDicCONTENT_metadata, Directory().Path().c_str());
    }

    void MakeRing() {
        MakePackage("Left",
                    ClassTag("A", 1, "", "<Relationship" + Id("to", 11) + " TargetRef=\"" + U(2) + "\"/>"),
                    "UseNames=\"Right\"");
        MakePackage(
            "Right",
            ClassTag("B", 2, "SuperRef=\"" + U(1) + "\"", "<Simple" + Id("x", 21) + " Type=\"Date\"/>"),
            "UseNames=\"Left\"");
        Directory().MakeFile("Right.tuning", "<Package" + Id("Right", 0xF0001) + "><Class" + Id("B", 2) +
                                                 "><AttributeBlock" + Id("Block", 22) + " AttributeUuids=\"" +
                                                 U(21) + "\"/></Class></Package>");
    }

    void MakeFaults() {
        MakePackage("P", ClassTag("A", 1, "Color=\"red\"", "<Simple" + Id("x", 11) + " Type=\"Nothing\"/>") +
                             ClassTag("B", 2, "SuperRef=\"" + U(99) + "\"", "<Unknown/>") +
                             ClassTag("B", 3, "", "<Simple" + Id("y", 11) + "/>"));
    }
};
INSTANTIATE_TEST_SUITE_P(Shortages, LoadOutOfMemoryTest,
                         ::testing::Values(FailingMemory::Shortage::Once,
                                           FailingMemory::Shortage::FromThenOn),
                         ShortageName);

TEST_P(LoadOutOfMemoryTest, APackageWithTuning) {
    const ZELString name("Tuned");
    EXPECT_EQ(SweepLoad([&] { return LoadGood(name); }), S_OK);

    EXPECT_TRUE(IsLoaded("Tuned"));
    EXPECT_GT(Failures(), 0);
}

TEST_P(LoadOutOfMemoryTest, ARingOfPackagesWithTuning) {
    MakeRing();

    const ZELString name("Left");
    EXPECT_EQ(SweepLoad([&] { return LoadHere(name); }), S_OK);

    EXPECT_TRUE(IsLoaded("Left"));
    EXPECT_TRUE(IsLoaded("Right"));
}

TEST_P(LoadOutOfMemoryTest, EveryKindOfElement) {
    for (const ZELString name : {"SaveExtensions", "SaveInterfaces", "SaveRelations", "SaveSimple"}) {
        ASSERT_EQ(LoadGood("SaveSmall"), S_OK);

        EXPECT_EQ(SweepLoad([&] { return LoadGood(name); }), S_OK) << name.View();

        EXPECT_TRUE(IsLoaded(name.View()));
        Manager().End();
        Manager().Init(0);
    }
}

/// What the asked package needs is loaded apart, and stays.
TEST_P(LoadOutOfMemoryTest, WhatAnotherPackageNeedsStaysWhole) {
    const ZELString asked("SaveTablesMap");
    const auto load = [&] { return LoadGood(asked, OXMDicCONTENT_rbomap); };
    std::set<std::string> wholes{State()};
    for (const char* const name : {"SaveSmall", "SaveTables.rbodef", "SavePlain", "SaveMeta.metaplm"}) {
        ASSERT_EQ(LoadGood(name), S_OK) << name;
        wholes.insert(State());
    }
    Manager().End();
    Manager().Init(0);

    EXPECT_EQ(Sweep(load,
                    [&] {
                        EXPECT_FALSE(IsLoaded("SaveTablesMap"));
                        EXPECT_EQ(wholes.count(State()), 1U) << State();
                        Manager().End();
                        Manager().Init(0);
                    }),
              S_OK);

    EXPECT_TRUE(IsLoaded("SaveTablesMap"));
}

TEST_P(LoadOutOfMemoryTest, ADocumentWithFaultsThatAnObserverIsTold) {
    MakeFaults();
    const DeafObserver observer(false);

    const ZELString name("P");
    EXPECT_EQ(SweepLoad([&] { return LoadHere(name); }), E_FAIL);

    EXPECT_GT(observer.told, 0);
}

TEST_P(LoadOutOfMemoryTest, ADocumentWithFaultsThatAThoroughObserverIsTold) {
    MakeFaults();
    const DeafObserver observer(true);

    const ZELString name("P");
    EXPECT_EQ(SweepLoad([&] { return LoadHere(name); }), E_FAIL);

    EXPECT_GT(observer.told, 0);
}

/// A line for which there is no memory is left out; the load fails for others' sake only.
TEST_P(LoadOutOfMemoryTest, ALoadThatIsTraced) {
    const ZELString name("Tuned");
    const std::string none = State();
    ASSERT_EQ(LoadGood(name), S_OK);
    const std::string whole = State();
    Manager().RemovePackage(&name);
    ZanDicSetTraceLevel(1);

    EXPECT_EQ(SweepAll([&] { return LoadGood(name); },
                       [&](HRESULT rc) {
                           EXPECT_EQ(State(), Succeeded(rc) ? whole : none);
                           Manager().RemovePackage(&name);
                       }),
              S_OK);
}

}  // namespace
