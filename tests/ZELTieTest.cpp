#include "ZELTie.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "ZELTestComponents.h"

namespace {

class ZELTieTest : public testing::Test {
protected:
    void SetUp() override {
        componentEvents.clear();
        object = new Square(3);
    }

    Square* object = nullptr;  ///< one reference, each test's to give back
};

TEST_F(ZELTieTest, AnAdapterTakesFourWords) {
    EXPECT_EQ(sizeof(SquareTie), 4 * sizeof(void*));
    object->Release();
}

TEST_F(ZELTieTest, ForwardsOperationsAndTheirResults) {
    ISquare* const square = Query<ISquare>(*object);
    int side = 0;
    int area = 0;

    EXPECT_EQ(square->GetSide(&side), S_OK);
    EXPECT_EQ(square->GetArea(&area), S_FALSE);

    EXPECT_EQ(side, 3);
    EXPECT_EQ(area, 9);
    square->Release();
    object->Release();
}

TEST_F(ZELTieTest, IsTheInterfaceItWasAskedFor) {
    ISquare* const square = Query<ISquare>(*object);
    ISurface* const base = square;
    int area = 0;

    EXPECT_EQ(base->GetArea(&area), S_FALSE);

    EXPECT_EQ(area, 9);
    base->Release();
    object->Release();
}

TEST_F(ZELTieTest, HoldsOneReferenceHoweverManyCallersItHas) {
    ISquare* const first = Query<ISquare>(*object);
    EXPECT_EQ(object->RefCount(), 2U);

    ISquare* const second = Query<ISquare>(*object);
    EXPECT_EQ(second, first);
    EXPECT_EQ(first->AddRef(), 3U);
    EXPECT_EQ(object->RefCount(), 2U);

    EXPECT_EQ(first->Release(), 2U);
    EXPECT_EQ(first->Release(), 1U);
    EXPECT_EQ(object->RefCount(), 2U);
    EXPECT_EQ(componentEvents, "");
    EXPECT_EQ(first->Release(), 0U);

    EXPECT_EQ(object->RefCount(), 1U);
    EXPECT_EQ(componentEvents, "");
    object->Release();
}

TEST_F(ZELTieTest, TheFirstQuerysCountIsTheCallers) {
    ISquare* const square = Query<ISquare>(*object);

    EXPECT_EQ(square->Release(), 0U);

    EXPECT_EQ(object->RefCount(), 1U);
    object->Release();
}

TEST_F(ZELTieTest, EndsItsObjectWithTheLastReference) {
    ISquare* const square = Query<ISquare>(*object);

    EXPECT_EQ(object->Release(), 1U);
    EXPECT_EQ(componentEvents, "");
    EXPECT_EQ(square->Release(), 0U);

    EXPECT_EQ(componentEvents, "object;");
}

TEST_F(ZELTieTest, AnObjectHasOneAdapterPerInterface) {
    ISquare* const square = Query<ISquare>(*object);
    ISurface* const surface = Query<ISurface>(*object);

    EXPECT_NE(static_cast<IUnknown*>(square), static_cast<IUnknown*>(surface));
    EXPECT_EQ(object->RefCount(), 3U);
    EXPECT_EQ(Query<ISquare>(*surface), square);
    EXPECT_EQ(Query<ISurface>(*square), surface);
    EXPECT_EQ(object->RefCount(), 3U);

    EXPECT_EQ(square->Release(), 1U);
    EXPECT_EQ(surface->Release(), 1U);
    EXPECT_EQ(square->Release(), 0U);
    EXPECT_EQ(surface->Release(), 0U);
    object->Release();
}

TEST_F(ZELTieTest, LeavesTheChainWhereverItStands) {
    ISquare* const older = Query<ISquare>(*object);
    ISurface* const newer = Query<ISurface>(*object);

    older->Release();
    EXPECT_EQ(Query<ISurface>(*object), newer);
    newer->Release();
    ISquare* const again = Query<ISquare>(*object);
    newer->Release();

    EXPECT_EQ(Query<ISquare>(*object), again);
    EXPECT_EQ(object->RefCount(), 2U);
    again->Release();
    again->Release();
    EXPECT_EQ(object->RefCount(), 1U);
    object->Release();
}

TEST_F(ZELTieTest, AskedForWhatTheObjectLacksKeepsItsCounts) {
    ISquare* const square = Query<ISquare>(*object);
    void* out = nullptr;

    EXPECT_EQ(square->QueryInterface(INothing::ClassId(), &out), E_NOINTERFACE);
    EXPECT_EQ(square->QueryInterface(ISquare::ClassId(), nullptr), E_INVALIDARG);

    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(square->Release(), 0U);
    object->Release();
}

/// Keeps an interface for the life of the process, as a library's own holder does.
struct ProcessWideHolder {
    ~ProcessWideHolder() {
        square->Release();
        std::fprintf(stderr, "events: %s", componentEvents.c_str());
    }
    ISquare* square = nullptr;
};

TEST(ZELTieDeathTest, AnInterfaceMayBeReleasedAtProcessExit) {
    EXPECT_EXIT(
        {
            static ProcessWideHolder holder;
            auto* const held = new Square(3);
            holder.square = Query<ISquare>(*held);
            held->Release();
            std::exit(0);
        },
        testing::ExitedWithCode(0), "events: object;$");
}

}  // namespace
