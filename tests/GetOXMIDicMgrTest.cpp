#include "GetOXMIDicMgr.h"

#include "DictionaryFixture.h"
#include "ZanDicData.h"

namespace {

class GetOXMIDicMgrTest : public DictionaryFixture {
protected:
    ~GetOXMIDicMgrTest() override { OXMIDicSetMgrProvider(_Provider); }

    /// Puts another provider in place for the rest of the test.
    void Provide(OXMIDicMgrProvider provider) { OXMIDicSetMgrProvider(provider); }

private:
    OXMIDicMgrProvider _Provider = [] {
        const OXMIDicMgrProvider registered = OXMIDicSetMgrProvider(nullptr);
        OXMIDicSetMgrProvider(registered);
        return registered;
    }();
};

}  // namespace

TEST_F(GetOXMIDicMgrTest, HandsOutTheManagerOfTheLoadedDictionary) {
    Held<OXMIDicMgr> manager;
    Held<OXMIDicMgr> held;
    _StaticZanDicData.get_OXMIDicMgr(held.Out());

    EXPECT_EQ(GetOXMIDicMgr(manager.Out()), S_OK);
    EXPECT_EQ(manager.Get(), held.Get());
}

TEST_F(GetOXMIDicMgrTest, FailsForANullOutput) { EXPECT_EQ(GetOXMIDicMgr(nullptr), E_FAIL); }

TEST_F(GetOXMIDicMgrTest, FailsWithoutADictionary) {
    Provide(nullptr);
    OXMIDicMgr* manager = nullptr;

    EXPECT_EQ(GetOXMIDicMgr(&manager), E_FAIL);
    EXPECT_EQ(manager, nullptr);
}

TEST_F(GetOXMIDicMgrTest, PassesOnWhatTheProviderAnswers) {
    Provide([](OXMIDicMgr**) { return E_NOINTERFACE; });
    OXMIDicMgr* manager = nullptr;

    EXPECT_EQ(GetOXMIDicMgr(&manager), E_NOINTERFACE);
}
