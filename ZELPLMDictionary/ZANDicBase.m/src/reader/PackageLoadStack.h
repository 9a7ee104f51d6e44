/// The loads of one call, from the first package to the last, rings included.
#ifndef PACKAGE_LOAD_STACK_H
#define PACKAGE_LOAD_STACK_H

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

#include "PackageLoad.h"

/// Drives loads that wait for each other. A list of calls rather than calls within calls: how many there are
/// is up to the documents.
///
/// A package that leads back to one in progress is put off: its call returns, it stays in progress, and the
/// outermost load that it leads to takes it through the remaining phases together with all other members of
/// the ring, in order of creation. A ring succeeds or fails as a whole.
class PackageLoadStack {
public:
    explicit PackageLoadStack(LoadRun& run) : _Run(run) {}

    /// Loads a package with all that it needs.
    HRESULT Load(PackageRequest request);

    /// Ends everything in progress as failed, the innermost first, when memory has run out.
    void Abandon();

private:
    static constexpr std::size_t kPhases = static_cast<std::size_t>(LoadPhase::Checked) + 1;

    /// A load that was asked for and has not returned.
    struct Call {
        PackageLoad* load;
        PackageLoad* current;  ///< it, or the member of its ring whose turn it is
        LoadPhase phase = LoadPhase::Read;
        std::array<std::size_t, kPhases> next = {};  ///< by phase: the member to look at next
    };

    void push_Call(PackageRequest request);
    bool run_Call(Call& call);
    bool choose_Member(Call& call);
    bool is_PutOff(const Call& call) const;
    void end_Call(const Call& call);
    void finish_Ring(const PackageLoad& load, std::size_t firstMember);
    void fail_Ring(std::size_t firstMember, std::size_t order);
    void share_Unknown(std::size_t firstMember);

    LoadRun& _Run;
    std::vector<std::unique_ptr<PackageLoad>> _LOADS;  ///< in progress, in the order in which they began
    std::vector<Call> _CALLS;
};

#endif
