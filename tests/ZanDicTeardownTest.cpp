#include "ZanDicTeardown.h"

#include "ModelFixture.h"
#include "ZanDicElement.h"
#include "ZanDicRegistry.h"
#include "ZanDicTrace.h"

namespace {

/// An element that cannot be flushed.
class StubbornElement final : public ZanDicElement {
public:
    using ZanDicElement::ZanDicElement;
    HRESULT FlushAll() override { return E_FAIL; }
};

class ZanDicTeardownTest : public ModelFixture {
protected:
    /// \returns an element in the list, with the list's reference only.
    template <class Element>
    Element& Own(const char* name, bool isRegistered = true) {
        auto* const element = new Element(name, NextUuid());
        element->set_TYPE(OXMDicTYPE_Category);
        if (isRegistered) ZanDicGetRegistry()->Insert(element);
        EXPECT_EQ(owned.Append(element), S_OK);
        return *element;
    }

    /// Drops what is in the list.
    void DropAll() {
        ZanDicTaken taken;
        taken.Take(owned);
        DropTaken(taken);
    }

    ZanHashList owned{29, ZanHashListKind::Owner};
    const ZanDicTraceScope trace{"Owner::FlushAll", "RC="};
};

TEST_F(ZanDicTeardownTest, DropsEachObjectInOrderAndEmptiesTheList) {
    const int before = ZanDicObj::live_Objects();
    Own<ZanDicElement>("First");
    Own<ZanDicElement>("Second");
    TraceOnly("Owner::FlushAll\n");

    EXPECT_EQ(DropOwned(owned, "_LIST", trace), S_OK);

    EXPECT_EQ(owned.Size(), 0);
    EXPECT_EQ(ZanDicObj::live_Objects(), before);
    EXPECT_EQ(Written(),
              "Owner::FlushAll- processing _LIST[1]: First, Type: 2 (Category).\n"
              "Owner::FlushAll- rc[_LIST[1]->FlushAll]=OK.\n"
              "Owner::FlushAll- rc[ZanDictionary->Delete]=OK.\n"
              "Owner::FlushAll- after _LIST[1]->Release, RefCount=0.\n"
              "Owner::FlushAll- processing _LIST[2]: Second, Type: 2 (Category).\n"
              "Owner::FlushAll- rc[_LIST[2]->FlushAll]=OK.\n"
              "Owner::FlushAll- rc[ZanDictionary->Delete]=OK.\n"
              "Owner::FlushAll- after _LIST[2]->Release, RefCount=0.\n"
              "ZanHashList::RemoveAll _HASH.Size()=2, _LISTP.Size()=2\n");
}

TEST_F(ZanDicTeardownTest, MarksAnObjectGoneThatSomebodyHolds) {
    ZanDicElement& element = Own<ZanDicElement>("Held");
    element.AddRef();
    TraceOnly("Owner::FlushAll\n");

    EXPECT_EQ(DropOwned(owned, "_LIST", trace), S_OK);

    EXPECT_TRUE(element.is_Gone());
    EXPECT_FALSE(element.is_Registered());
    EXPECT_NE(Written().find("after _LIST[1]->Release, RefCount=1."), std::string::npos);
    EXPECT_EQ(element.Release(), 0U);
}

TEST_F(ZanDicTeardownTest, GoesOnPastAnObjectThatIsNotRegistered) {
    const int before = ZanDicObj::live_Objects();
    Own<ZanDicElement>("First", false);
    Own<ZanDicElement>("Second");
    TraceOnly("Owner::FlushAll\n");

    EXPECT_EQ(DropOwned(owned, "_LIST", trace), S_OK);

    EXPECT_EQ(ZanDicObj::live_Objects(), before);
    EXPECT_NE(Written().find(
                  "rc[ZanDictionary->Delete]=KO.\nOwner::FlushAll- after _LIST[1]->Release, RefCount=0."),
              std::string::npos);
}

TEST_F(ZanDicTeardownTest, StopsAtAnObjectThatCannotBeFlushed) {
    const int before = ZanDicObj::live_Objects();
    Own<ZanDicElement>("First");
    StubbornElement& stubborn = Own<StubbornElement>("Stubborn");
    ZanDicElement& last = Own<ZanDicElement>("Last");
    TraceOnly("Owner::FlushAll\n");

    EXPECT_EQ(DropOwned(owned, "_LIST", trace), E_FAIL);

    EXPECT_EQ(ZanDicObj::live_Objects(), before + 2);
    ASSERT_EQ(owned.Size(), 2);
    EXPECT_EQ(owned[1], &stubborn);
    EXPECT_EQ(owned[2], &last);
    EXPECT_TRUE(stubborn.is_Registered());
    EXPECT_EQ(Written(),
              "Owner::FlushAll- processing _LIST[1]: First, Type: 2 (Category).\n"
              "Owner::FlushAll- rc[_LIST[1]->FlushAll]=OK.\n"
              "Owner::FlushAll- rc[ZanDictionary->Delete]=OK.\n"
              "Owner::FlushAll- after _LIST[1]->Release, RefCount=0.\n"
              "Owner::FlushAll- processing _LIST[2]: Stubborn, Type: 2 (Category).\n"
              "Owner::FlushAll- rc[_LIST[2]->FlushAll]=KO.\n"
              "Owner::FlushAll- *** ERROR *** could not process Element: Stubborn, Type: 2 (Category).\n");
    DropAll();
}

TEST_F(ZanDicTeardownTest, KeepsNoObjectWhoseNameAnotherHasTaken) {
    const int before = ZanDicObj::live_Objects();
    StubbornElement& stubborn = Own<StubbornElement>("Stubborn");
    Own<ZanDicElement>("Last").SetName(Named("Stubborn"));

    EXPECT_EQ(DropOwned(owned, "_LIST", trace), E_FAIL);

    EXPECT_EQ(owned.Size(), 1);
    EXPECT_EQ(owned[1], &stubborn);
    EXPECT_EQ(ZanDicObj::live_Objects(), before + 1);
    DropAll();
}

/// Owns one list, which may hold owners in turn.
class Nest final : public ZanDicElement {
public:
    using ZanDicElement::ZanDicElement;
    HRESULT FlushAll() override { return FlushOwner(*this); }
    ZanDicOwnedList owned_List() override { return {&members, "_NEST", "Nest::FlushAll"}; }
    HRESULT flush_Rest(const ZanDicTraceScope& scope) override {
        scope.Say(TraceLevel::Detail, "rest");
        return S_OK;
    }
    void take_Owned(ZanDicTaken& taken) override { taken.Take(members); }

    ZanHashList members{29, ZanHashListKind::Owner};
};

TEST_F(ZanDicTeardownTest, AFailureInsideANestStopsEveryOwnerAbove) {
    const int before = ZanDicObj::live_Objects();
    Nest outer("Outer", NextUuid());
    auto* const inner = new Nest("Inner", NextUuid());
    auto* const stubborn = new StubbornElement("Stubborn", NextUuid());
    EXPECT_EQ(outer.members.Append(inner), S_OK);
    EXPECT_EQ(inner->members.Append(stubborn), S_OK);
    TraceOnly("Nest::FlushAll\n");

    EXPECT_EQ(outer.FlushAll(), E_FAIL);

    EXPECT_EQ(outer.members.Size(), 1);
    EXPECT_EQ(inner->members.Size(), 1);
    EXPECT_EQ(Written(),
              "Nest::FlushAll- === start === .\n"
              "Nest::FlushAll- _Type=-1 (?), _Name=Outer.\n"
              "Nest::FlushAll- processing _NEST....\n"
              "Nest::FlushAll- processing _NEST[1]: Inner, Type: -1 (?).\n"
              "Nest::FlushAll- === start === .\n"
              "Nest::FlushAll- _Type=-1 (?), _Name=Inner.\n"
              "Nest::FlushAll- processing _NEST....\n"
              "Nest::FlushAll- processing _NEST[1]: Stubborn, Type: -1 (?).\n"
              "Nest::FlushAll- rc[_NEST[1]->FlushAll]=KO.\n"
              "Nest::FlushAll- *** ERROR *** could not process Element: Stubborn, Type: -1 (?).\n"
              "Nest::FlushAll- === exit === RC=KO.\n"
              "Nest::FlushAll- rc[_NEST[1]->FlushAll]=KO.\n"
              "Nest::FlushAll- *** ERROR *** could not process Element: Inner, Type: -1 (?).\n"
              "Nest::FlushAll- === exit === RC=KO.\n");
    ZanDicTaken taken;
    outer.take_Owned(taken);
    DropTaken(taken);
    EXPECT_EQ(ZanDicObj::live_Objects(), before + 1) << "the outermost stands on the stack";
}

TEST_F(ZanDicTeardownTest, WhatIsLeftComesAfterTheList) {
    Nest outer("Outer", NextUuid());
    TraceOnly("Nest::FlushAll\n");

    EXPECT_EQ(FlushOwner(outer), S_OK);

    EXPECT_NE(Written().find("ZanHashList::RemoveAll _HASH.Size()=0, _LISTP.Size()=0\n"
                             "Nest::FlushAll- rest.\n"
                             "Nest::FlushAll- === exit === RC=OK.\n"),
              std::string::npos);
}

TEST_F(ZanDicTeardownTest, AMemberOutsideOfListsGoesWithItsOwnWords) {
    const int before = ZanDicObj::live_Objects();
    TraceOnly("Owner::FlushAll\n");

    EXPECT_EQ(DropMember(*new StubbornElement("Stubborn", NextUuid()), "_Member", trace), E_FAIL);

    EXPECT_EQ(ZanDicObj::live_Objects(), before);
    EXPECT_EQ(Written(),
              "Owner::FlushAll- processing _Member: Stubborn, Type: -1 (?).\n"
              "Owner::FlushAll- rc[_Member->FlushAll]=KO.\n"
              "Owner::FlushAll- rc[ZanDictionary->Delete]=KO.\n"
              "Owner::FlushAll- after _Member->Release, RefCount=0.\n");
}

TEST_F(ZanDicTeardownTest, DropsWhatWasTakenWithoutAWord) {
    const int before = ZanDicObj::live_Objects();
    ZanDicElement& element = Own<ZanDicElement>("Held");
    Own<ZanDicElement>("Other", false);
    element.AddRef();
    ClearWritten();

    DropAll();

    EXPECT_TRUE(element.is_Gone());
    EXPECT_FALSE(element.is_Registered());
    EXPECT_EQ(Written(), "");
    EXPECT_EQ(element.Release(), 0U);
    EXPECT_EQ(ZanDicObj::live_Objects(), before);
}

}  // namespace
