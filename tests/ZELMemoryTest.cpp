#include "ZELMemory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "ZELFile.h"
#include "ZELTestDirectory.h"
#include "ZELVBTXMLNode.h"

namespace {

/// Has no memory to give.
class NoMemory final : public ZELMemoryCalls {
public:
    NoMemory() { ZELSetMemoryCalls(this); }
    ~NoMemory() { ZELSetMemoryCalls(nullptr); }
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;
    void* Allocate(std::size_t, std::size_t) override { return nullptr; }
    void* Reallocate(void*, std::size_t) override { return nullptr; }
};

TEST(ZELMemoryTest, AWatchSeesWhatIsNotedAfterIt) {
    const ZELShortageWatch before;
    EXPECT_FALSE(before.Happened());
    EXPECT_NO_THROW(before.Check());

    EXPECT_EQ(ZELNoteShortage(), E_FAIL);

    EXPECT_TRUE(before.Happened());
    EXPECT_THROW(before.Check(), std::bad_alloc);
    EXPECT_FALSE(ZELShortageWatch().Happened());
}

TEST(ZELMemoryTest, TheCallsThatAreSetAreGivenBackByTheNext) {
    NoMemory calls;

    EXPECT_EQ(ZELSetMemoryCalls(nullptr), &calls);
    EXPECT_EQ(ZELSetMemoryCalls(nullptr), nullptr);
}

TEST(ZELMemoryTest, AFileThatDoesNotFitIsAShortage) {
    const TestDirectory directory;
    const std::string path = directory.MakeFile("text", "text");
    ZELFileContent content;
    std::string reason;
    const ZELShortageWatch shortage;
    const NoMemory none;

    EXPECT_EQ(ZELReadFile(path.c_str(), content, &reason), E_FAIL);

    EXPECT_EQ(reason, "Cannot allocate memory");
    EXPECT_TRUE(shortage.Happened());
}

TEST(ZELMemoryTest, ADocumentThatDoesNotFitIsAShortage) {
    ZELVBTXMLError error;
    const ZELShortageWatch shortage;
    const NoMemory none;

    EXPECT_EQ(ZELVBTXMLDocument::CreateFromMemory("<Package/>", &error), nullptr);

    EXPECT_EQ(error.reason, "out of memory");
    EXPECT_TRUE(shortage.Happened());
}

}  // namespace
