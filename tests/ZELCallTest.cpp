#include "ZELCall.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace {

HRESULT FallShort() {
    return ZELCall([]() -> HRESULT { throw std::bad_alloc(); });
}

void FallShortWithoutResult() {
    ZELCall([] { throw std::bad_alloc(); });
}

TEST(ZELCallTest, GivesTheResultOfTheBody) {
    EXPECT_EQ(ZELCall([] { return S_FALSE; }), S_FALSE);
    EXPECT_EQ(ZELCall([] { return 7U; }), 7U);
}

TEST(ZELCallTest, AnswersAShortageOfMemoryWithAFailure) {
    const ZELShortageWatch shortage;

    EXPECT_EQ(FallShort(), E_FAIL);

    EXPECT_TRUE(shortage.Happened());
}

TEST(ZELCallTest, AnswersATextThatIsTooLongWithAFailure) {
    EXPECT_EQ(ZELCall([]() -> HRESULT { throw std::length_error("too long"); }), E_FAIL);
}

TEST(ZELCallTest, UndoesOnlyWhatFellShort) {
    int undone = 0;
    const auto undo = [&undone] { ++undone; };

    EXPECT_EQ(ZELCall([] { return E_FAIL; }, undo), E_FAIL);
    EXPECT_EQ(undone, 0);

    EXPECT_EQ(ZELCall([]() -> HRESULT { throw std::bad_alloc(); }, undo), E_FAIL);
    EXPECT_EQ(undone, 1);
}

TEST(ZELCallDeathTest, EndsTheProcessWhereThereIsNoResult) {
    EXPECT_DEATH(FallShortWithoutResult(), "^Out of memory, FallShortWithoutResult, line 24\n$");
}

}  // namespace
