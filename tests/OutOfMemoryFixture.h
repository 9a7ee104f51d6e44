/// What tests of memory that runs out share.
#ifndef OUT_OF_MEMORY_FIXTURE_H
#define OUT_OF_MEMORY_FIXTURE_H

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "DumpJson.h"
#include "FailingMemory.h"
#include "ReaderFixture.h"
#include "zandic.hpp"

/// Takes no line: what would keep them takes memory as well.
class Silence final : public ZELLineSink {
public:
    Silence() : _Before(ZELSetLineSink(this)) {}
    ~Silence() { ZELSetLineSink(_Before); }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;
    void Write(const ZELLine&) override {}

private:
    ZELLineSink* _Before;
};

/// Sweeps of one action over all its allocations. \p Base is the fixture that makes what the action works on.
template <class Base>
class OutOfMemoryFixture : public Base, public ::testing::WithParamInterface<FailingMemory::Shortage> {
protected:
    /// Runs \p action with memory that runs out at the first allocation, then at the second and so on, until
    /// it does not run out any more; \p check follows with the result of each that fell short. \returns the
    /// last result.
    template <class Action, class Check>
    HRESULT SweepAll(const Action& action, const Check& check) {
        const Silence silence;
        for (int failAt = 1;; ++failAt) {
            HRESULT rc = S_OK;
            int failures = 0;
            {
                const FailingMemory memory(failAt, this->GetParam());
                rc = action();
                failures = memory.Failures();
            }
            if (failures == 0) return rc;
            ++_Failures;
            SCOPED_TRACE("allocation " + std::to_string(failAt));
            check(rc);
            if (this->HasFailure()) return rc;
        }
    }

    /// The same for what fails whenever memory runs out.
    template <class Action, class Check>
    HRESULT Sweep(const Action& action, const Check& check) {
        return SweepAll(action, [&](HRESULT rc) {
            EXPECT_EQ(rc, E_FAIL);
            check();
        });
    }

    /// Loads one of the good documents. It takes no memory beside the load's own.
    HRESULT LoadGood(const ZELString& name, OXMDicCONTENT content = OXMDicCONTENT_metadata,
                     const char* directory = ZANDIC_TEST_DATA "/good") {
        return this->Manager().LoadPackageFromDir(directory, &name, OXMDicPERSISTENT_Xml, content);
    }

    /// All that the dictionary has, as text.
    static std::string State() { return tool::DumpText(zandic::Dictionary::Open()); }

    /// How often memory ran out.
    int Failures() const { return _Failures; }

private:
    int _Failures = 0;
};

/// Both ways of running out, as names of tests.
inline std::string ShortageName(const ::testing::TestParamInfo<FailingMemory::Shortage>& run) {
    return run.param == FailingMemory::Shortage::Once ? "Once" : "FromThenOn";
}

#endif
