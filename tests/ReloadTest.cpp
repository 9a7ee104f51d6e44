// The sample dictionary loaded and unloaded again and again: the same model each time, and no growth.
#include <malloc.h>

#include <cstddef>

#include "DictionaryFixture.h"
#include "DumpJson.h"
#include "zandic.hpp"

#if defined(__SANITIZE_ADDRESS__)
// Of the sanitizer's runtime; not every compiler brings the header that declares it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {

/// \returns the bytes that the process has allocated and not freed.
std::size_t LiveBytes() {
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

class ReloadTest : public DictionaryFixture {
protected:
    /// Loads every package of the sample that nobody uses, and so all of them.
    void LoadAll() {
        for (const char* name : {"BomEffectivity", "BomServices", "BomStorageMap.rbomap", "BomWorkshop"}) {
            const ZELString packageName(name);
            ASSERT_EQ(Manager().LoadPackageFromDir(ZANDIC_SAMPLES, &packageName, OXMDicPERSISTENT_Xml), S_OK);
        }
    }

    /// Unloads the packages, the last one first, so that none is used any more when it goes.
    void UnloadAll() {
        for (const char* domain : {"DUVRA", "VALKOR"}) {
            const ZELString domainName(domain);
            HeldList packages;
            ASSERT_EQ(Manager().GetPackages(&domainName, &packages), S_OK);
            for (int position = packages.Size(); position >= 1; --position) {
                ZELString name;
                static_cast<OXMIDicPackage*>(packages[position])->GetName(&name);
                ASSERT_EQ(Manager().RemovePackage(&name), S_OK);
            }
        }
    }

    static std::string Dump() { return tool::DumpText(zandic::Dictionary::Open()); }
};

TEST_F(ReloadTest, AThousandLoadsGiveTheSameModelAndMemoryStaysFlat) {
    constexpr int kCycles = 1000;
    constexpr int kSettled = 100;          // pools and tables have their sizes by then
    constexpr std::size_t kSlack = 65536;  // for the C library's own buffers

    LoadAll();
    const std::string first = Dump();
    UnloadAll();
    std::size_t settled = 0;
    for (int cycle = 1; cycle <= kCycles; ++cycle) {
        LoadAll();
        ASSERT_EQ(Dump(), first) << "cycle " << cycle;
        UnloadAll();
        ClearWritten();
        if (cycle == kSettled) settled = LiveBytes();
    }

    EXPECT_GT(first.size(), 10000U);
    EXPECT_LE(LiveBytes(), settled + kSlack);
}

}  // namespace
