// Packages that need each other: rings by UseNames and UseScopes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "OXMIDicExtension.h"
#include "OXMIDicRelationship.h"
#include "OxmDicFromXML.h"
#include "ReaderFixture.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

namespace {

class PackageLoadStackTest : public ReaderFixture {
protected:
    using PackageList = HRESULT (OXMIDicPackage::*)(ZELListPtrIUnknown*);

    std::vector<std::string> Names(std::string_view package, PackageList getter) {
        HeldList list;
        (*Package(package).*getter)(&list);
        std::vector<std::string> names;
        for (IUnknown* const entry : list) names.push_back(NameOf(static_cast<OXMIDicPackage&>(*entry)));
        return names;
    }
    std::vector<std::string> Used(std::string_view package) {
        return Names(package, &OXMIDicPackage::GetUsedPackages);
    }
    std::vector<std::string> Scopes(std::string_view package) {
        return Names(package, &OXMIDicPackage::GetScopePackages);
    }

    /// The packages in memory, in the manager's order.
    std::vector<std::string> Loaded() {
        HeldList list;
        Manager().GetPackages(&list);
        std::vector<std::string> names;
        for (IUnknown* const entry : list) names.push_back(NameOf(static_cast<OXMIDicPackage&>(*entry)));
        return names;
    }

    std::string SuperOf(unsigned number) {
        Held<OXMIDicClass> super;
        return Find<OXMIDicClass>(number)->GetSuperClass(super.Out()) == S_OK ? NameOf(*super) : "";
    }

    /// The driver's lines of these kinds, package by package.
    std::vector<std::string> Steps(std::initializer_list<std::string_view> kinds) const {
        std::vector<std::string> steps;
        for (const auto& line : Lines()) {
            const std::string_view text = line.text;
            if (!text.starts_with("OxmDicFromXML:OxmDicFromXML")) continue;
            const auto has = [&](std::string_view kind) { return text.find(kind) != std::string_view::npos; };
            if (std::any_of(kinds.begin(), kinds.end(), has)) steps.emplace_back(text.substr(27));
        }
        return steps;
    }

    /// A ring of packages, each using the next, with a class each whose super class is the next one's; the
    /// last's is not set.
    void MakeRing(int count, std::string_view attributesOfLast = "") {
        for (int number = 0; number < count; ++number) {
            const bool isLast = number == count - 1;
            const std::string next = "R" + std::to_string(isLast ? 0 : number + 1);
            const std::string super = isLast ? std::string(attributesOfLast)
                                             : "SuperRef=\"" + U(static_cast<unsigned>(number) + 2) + "\"";
            MakePackage("R" + std::to_string(number),
                        ClassTag("C" + std::to_string(number), static_cast<unsigned>(number) + 1, super),
                        "UseNames=\"" + next + "\"");
        }
    }
};

TEST_F(PackageLoadStackTest, TwoPackagesThatUseEachOtherLoad) {
    MakePackage("A", ClassTag("CA", 1, "SuperRef=\"" + U(3) + "\"") + ClassTag("CA2", 2), "UseNames=\"B\"");
    MakePackage(
        "B",
        ClassTag("CB", 3, "ReferenceRef=\"" + U(1) + "\"") + ClassTag("CB2", 4, "SuperRef=\"" + U(2) + "\""),
        "UseNames=\"A\"");

    EXPECT_EQ(Load("A"), S_OK);

    EXPECT_EQ(Written(), "");
    EXPECT_THAT(Loaded(), ElementsAre("B", "A"));
    EXPECT_THAT(Used("A"), ElementsAre("B"));
    EXPECT_THAT(Used("B"), ElementsAre("A"));
    EXPECT_EQ(SuperOf(1), "CB");
    EXPECT_EQ(SuperOf(4), "CA2");
}

TEST_F(PackageLoadStackTest, EachStepIsTakenByAllMembersInOrderOfCreation) {
    MakePackage("A", ClassTag("CA", 1), "UseNames=\"B\"");
    MakePackage("B", ClassTag("CB", 2), "UseNames=\"A\"");
    TraceFromNow(4);

    ASSERT_EQ(Load("A"), S_OK);

    EXPECT_THAT(
        Steps({"calling", "rc(OxmDicFromXML", "INFO", "Boucle", "exit"}),
        ElementsAre("- calling OxmDicFromXML(B).", "- calling OxmDicFromXML(A).",
                    "-*** INFO *** Package finally got loaded as a prereq of another Package.",
                    "- === exit (main) === RC=OK.", "- rc(OxmDicFromXML(A))=OK.", "- Boucle 1 : Class[CB].",
                    "- rc(OxmDicFromXML(B))=OK.", "- Boucle 1 : Class[CA].", "- Boucle 2 : Class[CB].",
                    "- Boucle 2 : Class[CA].", "- Boucle 3 : Class[CB].", "- Boucle 3 : Class[CA].",
                    "- calling OxmDicFromXML_Tuning(B)....", "- calling OxmDicFromXML_Tuning(A)....",
                    "-*** INFO *** Releasing Package handle.", "- === exit (main) === RC=OK.",
                    "-*** INFO *** Releasing Package handle.", "- === exit (main) === RC=OK."));
}

TEST_F(PackageLoadStackTest, ARingOfFiveLoadsFromEachMember) {
    MakeRing(5);
    for (int first = 0; first < 5; ++first) {
        ASSERT_EQ(Load("R" + std::to_string(first)), S_OK) << Written();

        EXPECT_EQ(Loaded().size(), 5U);
        EXPECT_EQ(SuperOf(1), "C1");
        EXPECT_EQ(SuperOf(4), "C4");
        for (int number = 0; number < 5; ++number) {
            EXPECT_THAT(Used("R" + std::to_string(number)),
                        ElementsAre("R" + std::to_string((number + 1) % 5)));
        }
        for (int number = 0; number < 5; ++number) {
            const ZELString name("R" + std::to_string(number));
            ASSERT_EQ(Manager().RemovePackage(&name), S_OK);
        }
    }
}

TEST_F(PackageLoadStackTest, ARingOf2000PackagesLoads) {
    MakeRing(2000);

    EXPECT_EQ(Load("R0"), S_OK);

    EXPECT_EQ(Loaded().size(), 2000U);
}

TEST_F(PackageLoadStackTest, AMemberMayUseItself) {
    MakePackage("A", ClassTag("CA", 1), "UseNames=\"A B\" UseScopes=\"A\"");
    MakePackage("B", ClassTag("CB", 2), "UseNames=\"B A\"");

    ASSERT_EQ(Load("A"), S_OK);

    EXPECT_THAT(Used("A"), ElementsAre("B"));
    EXPECT_THAT(Used("B"), ElementsAre("A"));
    EXPECT_THAT(Scopes("A"), IsEmpty());
}

TEST_F(PackageLoadStackTest, APackageUsedByTwoMembersIsLoadedOnceAndStaysOutside) {
    MakePackage("A", ClassTag("CA", 1, "SuperRef=\"" + U(3) + "\""), "UseNames=\"B Shared\"");
    MakePackage("B", ClassTag("CB", 2, "SuperRef=\"" + U(3) + "\""), "UseNames=\"Shared A\"");
    MakePackage("Shared", ClassTag("CS", 3));
    TraceFromNow(2);

    ASSERT_EQ(Load("A"), S_OK);

    EXPECT_THAT(Loaded(), ElementsAre("Shared", "B", "A"));
    EXPECT_THAT(
        Steps({"OxmDicFromXML_Tuning(Shared)...", "OxmDicFromXML_Tuning(B)..."}),
        ElementsAre("- calling OxmDicFromXML_Tuning(Shared)....", "- calling OxmDicFromXML_Tuning(B)...."));
    EXPECT_EQ(SuperOf(1), "CS");
    EXPECT_EQ(SuperOf(2), "CS");
}

// Rings by UseScopes.

TEST_F(PackageLoadStackTest, AScopePackageThatIsNotMadeYetIsNotedInItsPlaceLater) {
    MakePackage("A", ClassTag("CA", 1), "UseNames=\"B\"");
    MakePackage("B", ClassTag("CB", 2, "SuperRef=\"" + U(1) + "\""), "UseScopes=\"A C\"");
    MakePackage("C", ClassTag("CC", 3));

    ASSERT_EQ(Load("A"), S_OK) << Written();

    EXPECT_THAT(Scopes("B"), ElementsAre("A", "C"));
    EXPECT_EQ(SuperOf(2), "CA");
}

TEST_F(PackageLoadStackTest, AScopePackageInProgressThatIsMadeIsNotWaitedFor) {
    MakePackage("A", ClassTag("CA", 1, "SuperRef=\"" + U(2) + "\""), "UseScopes=\"B\"");
    MakePackage("B", ClassTag("CB", 2), "UseScopes=\"A\"");

    ASSERT_EQ(Load("A"), S_OK) << Written();

    EXPECT_THAT(Loaded(), ElementsAre("A", "B"));
    EXPECT_THAT(Scopes("A"), ElementsAre("B"));
    EXPECT_THAT(Scopes("B"), ElementsAre("A"));
}

TEST_F(PackageLoadStackTest, AMemberFoundOnlyByAScopeCatchesUp) {
    // A and B are a ring; C belongs to it by its own UseNames and is found by B's UseScopes.
    MakePackage("A", ClassTag("CA", 1, "SuperRef=\"" + U(3) + "\""), "UseNames=\"B\"");
    MakePackage("B", ClassTag("CB", 2), "UseNames=\"A\" UseScopes=\"C\"");
    MakePackage("C", ClassTag("CC", 3, "SuperRef=\"" + U(2) + "\""), "UseNames=\"A\" UseScopes=\"D\"");
    MakePackage("D", ClassTag("CD", 4));
    TraceFromNow(4);

    ASSERT_EQ(Load("A"), S_OK) << Written();

    EXPECT_EQ(SuperOf(1), "CC");
    EXPECT_EQ(SuperOf(3), "CB");
    EXPECT_THAT(Used("C"), ElementsAre("A"));
    EXPECT_THAT(Scopes("C"), ElementsAre("D"));
    EXPECT_THAT(Steps({"Boucle"}),
                ElementsAre("- Boucle 1 : Class[CB].", "- Boucle 1 : Class[CA].", "- Inter Boucle : C.",
                            "- Boucle 1 : Class[CC].", "- Inter Boucle : D.", "- Boucle 1 : Class[CD].",
                            "- Boucle 2 : Class[CD].", "- Boucle 3 : Class[CD].", "- Boucle 2 : Class[CB].",
                            "- Boucle 2 : Class[CA].", "- Boucle 2 : Class[CC].", "- Boucle 3 : Class[CB].",
                            "- Boucle 3 : Class[CA].", "- Boucle 3 : Class[CC]."));
}

TEST_F(PackageLoadStackTest, ARingInsideALargerRingWaitsForIt) {
    // B and C use each other; C's scope leads back to A, which uses B.
    MakePackage("A", ClassTag("CA", 1), "UseNames=\"B\"");
    MakePackage("B", ClassTag("CB", 2), "UseNames=\"C\"");
    MakePackage("C", ClassTag("CC", 3, "SuperRef=\"" + U(1) + "\""), "UseNames=\"B\" UseScopes=\"A\"");

    ASSERT_EQ(Load("A"), S_OK) << Written();

    EXPECT_THAT(Loaded(), ElementsAre("C", "B", "A"));
    EXPECT_EQ(SuperOf(3), "CA");
    EXPECT_THAT(Scopes("C"), ElementsAre("A"));
}

// Failures.

TEST_F(PackageLoadStackTest, ARingWhoseLastMemberFailsGoesAsAWholeLastCreatedFirst) {
    MakePackage("Base", ClassTag("Root", 9));
    MakePackage("A", "<Class Name=\"Bad\"/>", "UseNames=\"B Base\"");
    MakePackage("B", ClassTag("CB", 2, "SuperRef=\"" + U(9) + "\""), "UseNames=\"C\"");
    MakePackage("C", ClassTag("CC", 3), "UseNames=\"Base A\"");
    TraceFromNow(2);

    EXPECT_EQ(Load("A"), E_FAIL);

    EXPECT_THAT(Loaded(), ElementsAre("Base"));
    EXPECT_THAT(Steps({"Removing"}), ElementsAre("-*** INFO *** Removing Package A from dictionary.",
                                                 "-*** INFO *** Removing Package B from dictionary.",
                                                 "-*** INFO *** Removing Package C from dictionary."));
    EXPECT_FALSE(Find<OXMIDicClass>(2));
}

TEST_F(PackageLoadStackTest, AFailureInALaterPhaseTakesAllMembersOut) {
    MakePackage("A", ClassTag("CA", 1), "UseNames=\"B\"");
    MakePackage("B", ClassTag("CB", 2, "SuperRef=\"" + U(0xFF) + "\""), "UseNames=\"A\"");
    const int objectsBefore = ZanDicObj::live_Objects();

    EXPECT_EQ(Load("A"), E_FAIL);

    EXPECT_THAT(Loaded(), IsEmpty());
    EXPECT_EQ(ZanDicObj::live_Objects(), objectsBefore);
}

TEST_F(PackageLoadStackTest, AMemberThatCannotBeMadeTakesTheOthersWithIt) {
    MakePackage("A", ClassTag("CA", 1), "UseNames=\"B Missing\"");
    MakePackage("B", ClassTag("CB", 2), "UseNames=\"A\"");

    EXPECT_EQ(Load("A"), E_FAIL);

    EXPECT_THAT(Loaded(), IsEmpty());
}

TEST_F(PackageLoadStackTest, AFailedRingLoadsOnceItIsCorrected) {
    MakePackage("A", "<Class Name=\"Bad\"/>", "UseNames=\"B\"");
    MakePackage("B", ClassTag("CB", 2), "UseNames=\"A\"");
    ASSERT_EQ(Load("B"), E_FAIL);
    MakePackage("A", ClassTag("CA", 1), "UseNames=\"B\"");

    EXPECT_EQ(Load("B"), S_OK);

    EXPECT_THAT(Loaded(), UnorderedElementsAre("A", "B"));
}

TEST_F(PackageLoadStackTest, ARingThatAFailedPackageNeedsStays) {
    MakeRing(2);
    MakePackage("P", "<Class Name=\"Bad\"/>", "UseNames=\"R0\"");

    EXPECT_EQ(Load("P"), E_FAIL);

    EXPECT_THAT(Loaded(), ElementsAre("R1", "R0"));
}

TEST_F(PackageLoadStackTest, GoingOnTellsTheFaultsOfAllMembersOnce) {
    MakePackage("A", ClassTag("CA", 1, "SuperRef=\"" + U(0xFF) + "\"") + "<Class Name=\"Bad\"/>",
                "UseNames=\"B\"");
    MakePackage("B", ClassTag("CB", 2, "SuperRef=\"" + U(0xFE) + "\""), "UseNames=\"A\" UseScopes=\"A\"");
    FaultCollector faults;

    EXPECT_EQ(Load("A"), E_FAIL);

    EXPECT_EQ(faults.Summary(),
              "missing-attribute 3:1 Bad @Uuid\n"
              "reference-not-found 2:78 CB @SuperRef\n"
              "reference-not-found 2:78 CA @SuperRef\n");
    EXPECT_THAT(Loaded(), IsEmpty());
}

TEST_F(PackageLoadStackTest, GoingOnEndsWhenAMemberCannotBeMade) {
    MakePackage("Taken", "");
    ASSERT_EQ(Load("Taken"), S_OK);
    Directory().MakeFile("A.metadata", "<Package" + Id("A", 0xF0000) + " UseNames=\"B\"/>");
    MakePackage("B", ClassTag("CB", 2), "UseNames=\"A\" UseScopes=\"A\"");
    FaultCollector faults;

    EXPECT_EQ(Load("A"), E_FAIL);

    EXPECT_EQ(faults.Summary(), "duplicate-uuid 1:19 A @Uuid\n");
    EXPECT_THAT(Loaded(), ElementsAre("Taken"));
}

// What may wait.

TEST_F(PackageLoadStackTest, ExtensibilityInheritedFromAClassOfAnotherMemberCounts) {
    MakePackage("A", ClassTag("Root", 1, "Extensible=\"Yes\""), "UseNames=\"B\"");
    MakePackage("B",
                "<Extension" + Id("More", 3) + " Persistent=\"No\" ScopeRefs=\"" + U(2) + " " + U(1) +
                    "\"/>" + ClassTag("Heir", 2, "SuperRef=\"" + U(1) + "\""),
                "UseNames=\"A\"");

    ASSERT_EQ(Load("A"), S_OK) << Written();

    HeldList scopes;
    Find<OXMIDicExtension>(3)->GetScopes(&scopes);
    ASSERT_EQ(scopes.Size(), 2);
    EXPECT_EQ(NameOf(static_cast<OXMIDicClass&>(*scopes[1])), "Heir");
    EXPECT_EQ(NameOf(static_cast<OXMIDicClass&>(*scopes[2])), "Root");
    EXPECT_EQ(Written(), "");
}

TEST_F(PackageLoadStackTest, MembersKnowEachOtherByTheNameAskedForToo) {
    Directory().MakeFile("Asked.metadata", "<Package" + Id("Own", 9) + " UseNames=\"Other\">" +
                                               ClassTag("C", 1) + "</Package>");
    Directory().MakeFile("Other.metadata", "<Package" + Id("Third", 8) + " UseNames=\"Asked\">" +
                                               ClassTag("D", 2, "SuperRef=\"" + U(1) + "\"") + "</Package>");

    EXPECT_EQ(Load("Asked"), S_OK) << Written();

    EXPECT_THAT(Used("Own"), ElementsAre("Third"));
    EXPECT_THAT(Used("Third"), ElementsAre("Own"));
    EXPECT_EQ(SuperOf(2), "C");
}

TEST_F(PackageLoadStackTest, ATuningThatFailsIsItsOwnPackagesFailure) {
    MakeRing(2);
    Directory().MakeFile("R0.tuning", "<Nothing/>");

    EXPECT_EQ(Load("R0"), S_OK);

    EXPECT_THAT(Loaded(), ElementsAre("R1", "R0"));
    EXPECT_THAT(Written(), HasSubstr("- *** WARNING *** OxmDicFromXML_Tuning(R0) failed."));
    EXPECT_THAT(Written(), Not(HasSubstr("OxmDicFromXML_Tuning(R1) failed")));
}

/// Counts the phases that are open, and the most that were at once.
class OpenPhases final : public ZanDicProfiler {
public:
    OpenPhases() { ZanDicSetProfiler(this); }
    ~OpenPhases() { ZanDicSetProfiler(nullptr); }
    OpenPhases(const OpenPhases&) = delete;
    OpenPhases& operator=(const OpenPhases&) = delete;
    void StepIn(std::string_view operation, std::string_view) override {
        if (operation == "OxmDicFromXML") most = std::max(most, ++open);
    }
    void StepOut(std::string_view operation, std::string_view) override {
        if (operation == "OxmDicFromXML") --open;
    }
    void ResetAll() override {}

    int open = 0;
    int most = 0;
};

TEST_F(PackageLoadStackTest, OnePhaseIsOpenAtATime) {
    MakeRing(3);
    const OpenPhases phases;

    ASSERT_EQ(Load("R0"), S_OK);

    EXPECT_EQ(phases.open, 0);
    EXPECT_EQ(phases.most, 1);
}

TEST_F(PackageLoadStackTest, AFailedRingClosesItsPhases) {
    MakeRing(3, "SuperRef=\"nothing\"");
    const OpenPhases phases;

    EXPECT_EQ(Load("R0"), E_FAIL);

    EXPECT_EQ(phases.open, 0);
    EXPECT_EQ(phases.most, 1);
}

}  // namespace
