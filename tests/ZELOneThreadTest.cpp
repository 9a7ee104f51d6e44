#include "ZELOneThread.h"

#include <thread>

#include "DictionaryFixture.h"
#include "OXMIDicPrimitive.h"

namespace {

constexpr const char* kSecondThread =
    "^Called from a second thread: the dictionary is for the one that first asked for its manager, ";

/// The fixture's thread has asked for the manager: it is the owner.
class ZELOneThreadTest : public DictionaryFixture {
protected:
    template <class Action>
    static void OnSecondThread(const Action& action) {
        std::thread(action).join();
    }
};

using ZELOneThreadDeathTest = ZELOneThreadTest;

TEST_F(ZELOneThreadTest, TheFirstThatAskedMayCall) {
    ZELOwnThread();

    ZELRequireThread("GetPackage");
    ZELCheckThread("GetPackage");
}

TEST_F(ZELOneThreadDeathTest, AnotherIsRefusedByName) {
    const auto require = [] { OnSecondThread([] { ZELRequireThread("GetPackage"); }); };

    EXPECT_DEATH(require(), std::string(kSecondThread) + "GetPackage, line 24\n$");
}

TEST_F(ZELOneThreadDeathTest, AskingForTheManagerLaterMakesNoOwner) {
    const auto own = [] {
        OnSecondThread([] {
            ZELOwnThread();
            ZELRequireThread("GetOXMIDicMgr");
        });
    };

    EXPECT_DEATH(own(), kSecondThread);
}

#ifdef NDEBUG

TEST_F(ZELOneThreadTest, AReleaseBuildDoesNotLook) {
    std::uint32_t count = 0;

    OnSecondThread([&] { count = Manager().AddRef(); });

    EXPECT_EQ(Manager().Release(), count - 1);
}

#else

TEST_F(ZELOneThreadDeathTest, OperationsOfInterfacesTellASecondThread) {
    OXMDicPERSISTENT mode = OXMDicPERSISTENT_None;
    const auto getMode = [&] { OnSecondThread([&] { Manager().GetLoadingMode(&mode); }); };
    const auto addRef = [&] { OnSecondThread([&] { Manager().AddRef(); }); };
    const auto release = [&] { OnSecondThread([&] { Manager().Release(); }); };

    EXPECT_DEATH(getMode(), std::string(kSecondThread) + "GetLoadingMode, line 24\n$");
    EXPECT_DEATH(addRef(), std::string(kSecondThread) + "AddRef, line 24\n$");
    EXPECT_DEATH(release(), std::string(kSecondThread) + "Release, line 24\n$");
}

TEST_F(ZELOneThreadDeathTest, AskingForTheManagerTellsASecondThread) {
    const auto ask = [] {
        OnSecondThread([] {
            Held<OXMIDicMgr> manager;
            GetOXMIDicMgr(manager.Out());
        });
    };

    EXPECT_DEATH(ask(), std::string(kSecondThread) + "GetOXMIDicMgr, line 24\n$");
}

#endif

}  // namespace
