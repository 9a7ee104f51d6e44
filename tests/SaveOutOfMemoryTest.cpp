// Memory that runs out at every allocation of a save or an export: the old file stays whole, and alone.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "OutOfMemoryFixture.h"
#include "ZELFileCalls.h"

namespace {

/// Nothing waits for the disk.
class NoSync final : public ZELFileCalls {
public:
    NoSync() : _Before(ZELSetFileCalls(this)) {}
    ~NoSync() { ZELSetFileCalls(_Before); }
    NoSync(const NoSync&) = delete;
    NoSync& operator=(const NoSync&) = delete;
    int Sync(int) override { return 0; }

private:
    ZELFileCalls* _Before;
};

class SaveOutOfMemoryTest : public OutOfMemoryFixture<ReaderFixture> {
protected:
    static constexpr const char* kOld = "what was there before";

    void SetUp() override { ::setenv("SOURCE_DATE_EPOCH", "0", 1); }
    void TearDown() override { ::unsetenv("SOURCE_DATE_EPOCH"); }

    /// Saves the package over a file of that name. \returns the new file.
    std::string SweepSave(std::string_view name, OXMDicPERSISTENT mode, const std::string& fileName) {
        const NoSync noSync;
        const ZELString package(name);
        const std::string path = Directory().MakeFile(fileName, kOld);
        const std::string stateBefore = State();
        const char* const directory = Directory().Path().c_str();
        EXPECT_EQ(Sweep([&] { return Manager().SavePackageToDir(directory, &package, mode); },
                        [&] {
                            EXPECT_EQ(Content(path), kOld);
                            EXPECT_EQ(Names(), std::vector<std::string>{fileName});
                            EXPECT_EQ(State(), stateBefore);
                        }),
                  S_OK);
        EXPECT_GT(Failures(), 0);
        const std::string content = Content(path);
        std::filesystem::remove(path);
        return content;
    }

    /// The same without a shortage.
    std::string Save(std::string_view name, OXMDicPERSISTENT mode, const std::string& fileName) {
        State();  // some answers depend on what was asked before
        const ZELString package(name);
        EXPECT_EQ(Manager().SavePackageToDir(Directory().Path().c_str(), &package, mode), S_OK);
        const std::string path = Directory().Path() + "/" + fileName;
        const std::string content = Content(path);
        std::filesystem::remove(path);
        return content;
    }

    static std::string Content(const std::string& path) {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(Directory().Path()))
            names.push_back(entry.path().filename());
        return names;
    }
};
INSTANTIATE_TEST_SUITE_P(Shortages, SaveOutOfMemoryTest,
                         ::testing::Values(FailingMemory::Shortage::Once,
                                           FailingMemory::Shortage::FromThenOn),
                         ShortageName);

TEST_P(SaveOutOfMemoryTest, APackageOfEveryKind) {
    for (const char* const name : {"SaveExtensions", "SaveInterfaces", "SaveRelations", "SaveSimple"}) {
        ASSERT_EQ(LoadGood(name), S_OK);
        const std::string file = std::string(name) + ".metadata";
        const std::string expected = Save(name, OXMDicPERSISTENT_Xml, file);

        EXPECT_EQ(SweepSave(name, OXMDicPERSISTENT_Xml, file), expected);
    }
}

TEST_P(SaveOutOfMemoryTest, AMapping) {
    ASSERT_EQ(LoadGood("SaveTablesMap", OXMDicCONTENT_rbomap), S_OK);
    const std::string file = "SaveTablesMap.rbomap";
    const std::string expected = Save("SaveTablesMap", OXMDicPERSISTENT_Xml, file);

    EXPECT_EQ(SweepSave("SaveTablesMap", OXMDicPERSISTENT_Xml, file), expected);
}

TEST_P(SaveOutOfMemoryTest, AnExport) {
    for (const char* const name : {"ExpressPackage", "ExpressKinds"}) {
        ASSERT_EQ(LoadGood(name), S_OK);
        const std::string file = std::string(name) + ".express";
        const std::string expected = Save(name, OXMDicPERSISTENT_Express, file);

        EXPECT_EQ(SweepSave(name, OXMDicPERSISTENT_Express, file), expected);
    }
}

}  // namespace
