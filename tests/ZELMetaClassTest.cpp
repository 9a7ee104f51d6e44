#include "ZELMetaClass.h"

#include <gtest/gtest.h>

#include "ZELTestComponents.h"

namespace {

TEST(ZELMetaClassTest, ARootsBaseIsTheNullClass) {
    EXPECT_STREQ(surfaceMeta.Name(), "Surface");
    EXPECT_STREQ(surfaceMeta.BaseName(), "ZELNull");
    EXPECT_STREQ(squareMeta.BaseName(), "Surface");
}

TEST(ZELMetaClassTest, EveryClassIsOfTheDictionarysFamily) {
    EXPECT_STREQ(surfaceMeta.Family(), "ZELPLMDictionary");
    EXPECT_STREQ(squareMeta.Family(), "ZELPLMDictionary");
}

TEST(ZELMetaClassTest, AClassIsAKindOfItselfAndItsBases) {
    EXPECT_TRUE(squareMeta.IsAKindOf("Square"));
    EXPECT_TRUE(squareMeta.IsAKindOf("Surface"));
    EXPECT_FALSE(surfaceMeta.IsAKindOf("Square"));
    EXPECT_FALSE(squareMeta.IsAKindOf("ZELNull"));
    EXPECT_FALSE(squareMeta.IsAKindOf("Squar"));
}

TEST(ZELMetaClassTest, AQueryFindsOwnAndInheritedRows) {
    EXPECT_EQ(squareMeta.FindTie(ISquare::ClassId()), kSquareRows);
    EXPECT_EQ(squareMeta.FindTie(ISurface::ClassId()), kSurfaceRows);
    EXPECT_EQ(surfaceMeta.FindTie(ISquare::ClassId()), nullptr);
}

TEST(ZELMetaClassTest, EachRowHasATagOfItsOwn) {
    std::uint32_t square = 0;
    std::uint32_t surface = 0;
    std::uint32_t surfaceFromBase = 0;
    std::uint32_t nothing = 77;

    squareMeta.FindTie(ISquare::ClassId(), &square);
    squareMeta.FindTie(ISurface::ClassId(), &surface);
    surfaceMeta.FindTie(ISurface::ClassId(), &surfaceFromBase);
    squareMeta.FindTie(INothing::ClassId(), &nothing);

    EXPECT_NE(square, 0U);
    EXPECT_NE(square, surface);
    EXPECT_EQ(surface, surfaceFromBase);
    EXPECT_EQ(nothing, 77U);
}

TEST(ZELMetaClassTest, OwnRowsComeBeforeTheBases) {
    ZELMetaClass derived("Derived", &surfaceMeta);
    const ZELTieRow rows[] = {ZELMakeTieRow<SurfaceTie>()};

    derived.RegisterTies(rows);

    EXPECT_EQ(derived.FindTie(ISurface::ClassId()), rows);
}

TEST(ZELMetaClassTest, RowsRegisteredAfterAQueryAreFound) {
    ZELMetaClass derived("Late", &surfaceMeta);
    const ZELTieRow rows[] = {ZELMakeTieRow<SurfaceTie>()};
    EXPECT_EQ(derived.FindTie(ISurface::ClassId()), kSurfaceRows);

    derived.RegisterTies(rows);

    EXPECT_EQ(derived.FindTie(ISurface::ClassId()), rows);
}

ZELTieLink* MakeNone(ZELBaseUnknown&) { return nullptr; }

TEST(ZELMetaClassTest, EachOfManyRowsIsFoundAgainAndAgain) {
    ZELMetaClass wide("Wide");
    ZELTieRow rows[20];
    for (std::uint64_t number = 0; number < 20; ++number) rows[number] = {{number, 7 * number}, MakeNone};
    wide.RegisterTies(rows);

    for (int round = 0; round < 2; ++round) {
        for (const ZELTieRow& row : rows) {
            std::uint32_t tag = 0;
            EXPECT_EQ(wide.FindTie(row.interfaceId, &tag), &row);
            EXPECT_EQ(wide.FindTie(row.interfaceId), &row);
            EXPECT_NE(tag, 0U);
        }
    }
    EXPECT_EQ(wide.FindTie({1, 8}), nullptr);
}

TEST(ZELMetaClassTest, TheFactoryMakesAnObject) {
    const ZELMetaClass withFactory("Square", nullptr, []() -> ZELBaseUnknown* { return new Square(3); });

    ZELBaseUnknown* const object = withFactory.CreateItself();

    ASSERT_NE(object, nullptr);
    EXPECT_STREQ(object->IsA(), "Square");
    EXPECT_EQ(object->Release(), 0U);
    EXPECT_EQ(squareMeta.CreateItself(), nullptr);
}

TEST(ZELMetaClassDeathTest, RegisteringTwiceIsFatal) {
    EXPECT_DEATH(surfaceMeta.RegisterTies(kSurfaceRows), "AssertionFailed:_Rows == nullptr, ZELMetaClass");
}

}  // namespace
