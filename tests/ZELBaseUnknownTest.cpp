#include "ZELBaseUnknown.h"

#include <gtest/gtest.h>

#include "ZELTestComponents.h"

namespace {

class ZELBaseUnknownTest : public testing::Test {
protected:
    void SetUp() override { componentEvents.clear(); }
};

TEST_F(ZELBaseUnknownTest, IsBornWithOneReference) {
    auto* const object = new Surface(4);

    EXPECT_EQ(object->RefCount(), 1U);
    EXPECT_EQ(object->AddRef(), 2U);
    EXPECT_EQ(object->Release(), 1U);
    EXPECT_EQ(componentEvents, "");

    EXPECT_EQ(object->Release(), 0U);
    EXPECT_EQ(componentEvents, "object;");
}

TEST_F(ZELBaseUnknownTest, MayLiveOnTheStack) {
    {
        const Surface object(4);
        EXPECT_EQ(object.RefCount(), 1U);
    }
    EXPECT_EQ(componentEvents, "object;");
}

TEST_F(ZELBaseUnknownTest, ADerivedClassUsesTheTailOfTheBase) { EXPECT_EQ(sizeof(Surface), 24U); }

TEST_F(ZELBaseUnknownTest, ACopyIsAnObjectOfItsOwn) {
    Surface original(4);
    original.AddRef();
    ISurface* const surface = Query<ISurface>(original);

    Surface copy(original);
    Surface assigned(1);
    assigned = original;

    EXPECT_EQ(copy.RefCount(), 1U);
    EXPECT_EQ(assigned.RefCount(), 1U);
    ISurface* const surfaceOfCopy = Query<ISurface>(copy);
    EXPECT_NE(surfaceOfCopy, surface);
    surfaceOfCopy->Release();
    surface->Release();
}

TEST_F(ZELBaseUnknownTest, KnowsItsClass) {
    const Square square(2);

    EXPECT_STREQ(square.IsA(), "Square");
    EXPECT_EQ(square.IsAKindOf("Square"), 1);
    EXPECT_EQ(square.IsAKindOf("Surface"), 1);
    EXPECT_EQ(square.IsAKindOf("ZELBaseUnknown"), 1);
    EXPECT_EQ(square.IsAKindOf("Circle"), 0);
    EXPECT_EQ(square.IsAKindOf(nullptr), 0);
}

TEST_F(ZELBaseUnknownTest, WithoutAClassOfItsOwnIsAZELBaseUnknown) {
    ZELBaseUnknown object;
    void* out = &object;

    EXPECT_STREQ(object.IsA(), "ZELBaseUnknown");
    EXPECT_EQ(object.QueryInterface(ISurface::ClassId(), &out), E_NOINTERFACE);
    EXPECT_EQ(out, &object);
}

TEST_F(ZELBaseUnknownTest, AQueryWithoutOutputIsInvalid) {
    Square square(2);

    EXPECT_EQ(square.QueryInterface(ISquare::ClassId(), nullptr), E_INVALIDARG);
    EXPECT_EQ(square.RefCount(), 1U);
}

TEST_F(ZELBaseUnknownTest, AQueryForWhatTheClassLacksLeavesTheOutputAlone) {
    Square square(2);
    int mark = 0;
    void* out = &mark;

    EXPECT_EQ(square.QueryInterface(INothing::ClassId(), &out), E_NOINTERFACE);
    EXPECT_EQ(square.QueryInterface(IUnknown::ClassId(), &out), E_NOINTERFACE);

    EXPECT_EQ(out, &mark);
    EXPECT_EQ(square.RefCount(), 1U);
}

/// Takes and gives back a reference and an interface of itself while it ends.
class SelfUser : public Surface {
public:
    SelfUser() : Surface(1) {}
    ~SelfUser() override {
        AddRef();
        Release();
        Query<ISurface>(*this)->Release();
    }
};

TEST_F(ZELBaseUnknownTest, ReferencesTakenAtItsEndDoNotEndItTwice) {
    (new SelfUser)->Release();

    EXPECT_EQ(componentEvents, "object;");
}

ZELTieLink* MakeNothing(ZELBaseUnknown&) { return nullptr; }
ZELTieLink* RunOutOfMemory(ZELBaseUnknown&) { throw std::bad_alloc(); }

constinit ZELMetaClass poorMeta("Poor");
const ZELTieRow kPoorRows[] = {{{2, 1}, MakeNothing}, {{2, 2}, RunOutOfMemory}};

class Poor : public ZELBaseUnknown {
public:
    ZELMetaClass& MetaObject() const override { return poorMeta; }
};

TEST_F(ZELBaseUnknownTest, AnAdapterThatCannotBeMadeFailsTheQuery) {
    poorMeta.RegisterTies(kPoorRows);
    Poor object;
    void* out = nullptr;

    EXPECT_EQ(object.QueryInterface({2, 1}, &out), E_FAIL);
    EXPECT_EQ(object.QueryInterface({2, 2}, &out), E_FAIL);

    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(object.RefCount(), 1U);
}

TEST(ZELBaseUnknownDeathTest, EndingWithAnInterfaceHeldIsFatal) {
    EXPECT_DEATH(
        {
            Surface object(1);
            Query<ISurface>(object);
        },
        "AssertionFailed:_Ties == nullptr, ZELBaseUnknown");
}

}  // namespace
