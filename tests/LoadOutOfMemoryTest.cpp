// Memory that runs out at every allocation of a load: the load fails, nothing of it stays, and the next one
// works.
#include <gtest/gtest.h>

#include <string>

#include "DumpJson.h"
#include "FailingMemory.h"
#include "ReaderFixture.h"
#include "zandic.hpp"

namespace {

using Shortage = FailingMemory::Shortage;

/// Keeps no word of what it is told: what it would keep takes memory as well.
class DeafObserver final : public ZanDicDiagnosticObserver {
public:
    explicit DeafObserver(bool isThorough) : _IsThorough(isThorough) { ZanDicSetDiagnosticObserver(this); }
    ~DeafObserver() { ZanDicSetDiagnosticObserver(nullptr); }
    DeafObserver(const DeafObserver&) = delete;
    DeafObserver& operator=(const DeafObserver&) = delete;

    bool OnDiagnostic(const ZanDicDiagnostic&) override {
        ++told;
        return true;
    }
    bool IsThorough() const override { return _IsThorough; }

    int told = 0;

private:
    bool _IsThorough;
};

class Silence final : public ZELLineSink {
public:
    Silence() : _Before(ZELSetLineSink(this)) {}
    ~Silence() { ZELSetLineSink(_Before); }
    void Write(const ZELLine&) override {}

private:
    ZELLineSink* _Before;
};

class LoadOutOfMemoryTest : public ReaderFixture, public ::testing::WithParamInterface<Shortage> {
protected:
    /// Loads \p name with memory that runs out at the first allocation, then at the second and so on, until
    /// it does not any more. \returns the result of the load in which memory did not run out.
    HRESULT SweepLoad(const std::string& directories, std::string_view name) {
        const Silence silence;
        const ZELString package(name);
        const std::string stateBefore = State();
        const int objectsBefore = ZanDicObj::live_Objects();
        for (int failAt = 1;; ++failAt) {
            HRESULT rc = S_OK;
            int failures = 0;
            {
                const FailingMemory memory(failAt, GetParam());
                rc = Manager().LoadPackageFromDir(directories.c_str(), &package, OXMDicPERSISTENT_Xml,
                                                  OXMDicCONTENT_metadata);
                failures = memory.Failures();
            }
            if (failures == 0) return rc;
            EXPECT_EQ(rc, E_FAIL) << "allocation " << failAt;
            EXPECT_EQ(ZanDicObj::live_Objects(), objectsBefore) << "allocation " << failAt;
            EXPECT_EQ(State(), stateBefore) << "allocation " << failAt;
            if (HasFailure()) return E_FAIL;
        }
    }

    std::string State() { return tool::DumpText(zandic::Dictionary::Open()); }
};
INSTANTIATE_TEST_SUITE_P(Shortages, LoadOutOfMemoryTest,
                         ::testing::Values(Shortage::Once, Shortage::FromThenOn),
                         [](const auto& run) { return run.param == Shortage::Once ? "Once" : "FromThenOn"; });

TEST_P(LoadOutOfMemoryTest, APackageWithTuning) {
    EXPECT_EQ(SweepLoad(ZANDIC_TEST_DATA "/good", "Tuned"), S_OK);

    EXPECT_TRUE(IsLoaded("Tuned"));
}

}  // namespace
