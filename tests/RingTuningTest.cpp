// Attribute blocks that extend each other across a ring of packages: RA uses RB and RB uses RA; RB's block
// extends one of RA, and RA's second block extends that.
#include "DictionaryFixture.h"
#include "OXMIDicAttributeBlock.h"
#include "OXMIDicClass.h"
#include "OXMIDicPackage.h"
#include "ZELTestDirectory.h"
#include "zandic.hpp"

namespace {

class RingTuningTest : public DictionaryFixture {
protected:
    void Load(const char* directory, const char* name) {
        const ZELString packageName(name);
        ASSERT_EQ(Manager().LoadPackageFromDir(directory, &packageName, OXMDicPERSISTENT_Xml), S_OK);
    }

    /// \returns the names of the attributes of the one block that is visible in a class, in order.
    static std::string VisibleAttributes(const char* package, const char* className) {
        const auto dictionary = zandic::Dictionary::Open();
        const auto owner = zandic::As<OXMIDicClass>(
            zandic::Find(*dictionary.Package(package), &OXMIDicPackage::GetElement, className));
        std::string names;
        for (OXMIDicAttributeBlock& block :
             zandic::All<OXMIDicAttributeBlock>(*owner, &OXMIDicClass::GetAttBlocks)) {
            names += std::string(zandic::Name(block).View()) + ":";
            for (OXMIDicElementH& attribute :
                 zandic::All<OXMIDicElementH>(block, &OXMIDicAttributeBlock::GetAttributes)) {
                names += " " + std::string(zandic::Name(attribute).View());
            }
        }
        return names;
    }
};

TEST_F(RingTuningTest, BlocksExtendEachOtherWhicheverMemberIsAskedFor) {
    for (const char* first : {"RA", "RB"}) {
        Load(ZANDIC_TEST_DATA "/ring", first);

        EXPECT_EQ(VisibleAttributes("RA", "Base"), "Sheet: a1") << first;
        EXPECT_EQ(VisibleAttributes("RB", "Mid"), "Sheet: m1 a1") << first;
        EXPECT_EQ(VisibleAttributes("RA", "Leaf"), "Sheet: l1 m1 a1") << first;
        EXPECT_EQ(Written() + WrittenErrors(), "") << first;
        Manager().End();
        Manager().Init(0);
    }
}

// The one that is not asked for is created first, so its description stands and the other tuning fails.
TEST_F(RingTuningTest, ABlockThatTwoMembersDescribeIsTheFirstOnes) {
    struct {
        const char* asked;
        const char* visible;
    } const rows[] = {{"RA", "Other: a1"}, {"RB", "Sheet: a1"}};
    for (const auto& [asked, visible] : rows) {
        Load(ZANDIC_TEST_DATA "/ring/twice", asked);

        EXPECT_EQ(VisibleAttributes("RA", "Base"), visible) << asked;
        EXPECT_EQ(WrittenErrors(), "ERROR : second valuation of the same AttributeBlock\n") << asked;
        EXPECT_EQ(Written(),
                  std::string("OxmDicFromXML:OxmDicFromXML- *** WARNING *** OxmDicFromXML_Tuning(") + asked +
                      ") failed.\n");
        Manager().End();
        Manager().Init(0);
        ClearWritten();
    }
}

TEST_F(RingTuningTest, AFaultyTuningIsItsOwnPackagesFailure) {
    const TestDirectory directory;
    const std::string ring = ZANDIC_TEST_DATA "/ring";
    for (const char* file : {"RA.metadata", "RB.metadata"}) {
        std::filesystem::copy(ring + "/" + file, directory.Path(file));
    }
    directory.MakeFile("RA.tuning",
                       "<Package Uuid=\"A0000000-0000-0000-0000000000000001\" Name=\"RA\">"
                       "<Class Uuid=\"A0000000-0000-0000-0000000000000002\" Name=\"Base\">"
                       "<AttributeBlock Uuid=\"A0000000-0000-0000-00000000000000B1\" Name=\"Sheet\""
                       " AttributeUuids=\"A0000000-0000-0000-0000000000000003\"/></Class></Package>");
    directory.MakeFile("RB.tuning", "<Package Name=\"RB\"/>");

    Load(directory.Path().c_str(), "RA");

    EXPECT_EQ(VisibleAttributes("RA", "Base"), "Sheet: a1");
    EXPECT_NE(WrittenErrors().find("ERROR no Uuid Attribute in Package Tag RB"), std::string::npos);
    EXPECT_NE(Written().find("OxmDicFromXML_Tuning(RB) failed"), std::string::npos);
}

}  // namespace
