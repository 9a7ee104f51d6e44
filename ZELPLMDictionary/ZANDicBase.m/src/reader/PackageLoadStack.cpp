#include "PackageLoadStack.h"

#include <utility>

#include "TuningReading.h"

HRESULT PackageLoadStack::Load(PackageRequest request) {
    push_Call(std::move(request));
    while (true) {
        if (!run_Call(_CALLS.back())) {
            push_Call(_CALLS.back().current->Request());
            continue;
        }
        const Call call = _CALLS.back();
        const bool isPutOff = is_PutOff(call);
        if (isPutOff) {
            call.current->Pause();
        } else {
            end_Call(call);
        }
        _CALLS.pop_back();
        const HRESULT rc = call.load->Result();
        if (!_CALLS.empty()) _CALLS.back().current->Deliver(*call.load);
        if (!isPutOff) _LOADS.resize(call.load->Order());
        if (_CALLS.empty()) return rc;
    }
}

void PackageLoadStack::Abandon() {
    _CALLS.clear();
    while (!_Run.created.empty()) {
        PackageLoad* const member = _Run.created.back();
        _Run.created.pop_back();
        member->Abandon();
    }
    for (; !_LOADS.empty(); _LOADS.pop_back()) {
        if (!_LOADS.back()->IsOver()) _LOADS.back()->Abandon();
    }
}

void PackageLoadStack::push_Call(PackageRequest request) {
    _LOADS.push_back(std::make_unique<PackageLoad>(_Run, std::move(request), _LOADS.size()));
    PackageLoad* const load = _LOADS.back().get();
    Call call{load, load};
    call.next.fill(load->FirstMember());
    _CALLS.push_back(call);
}

/// \returns whether the call is over; otherwise its current load needs a package.
bool PackageLoadStack::run_Call(Call& call) {
    do {
        if (!call.current->Advance(call.phase)) return false;
        call.load->Join(*call.current);
    } while (choose_Member(call));
    return true;
}

/// Finds whose turn it is. \returns whether there is anybody.
bool PackageLoadStack::choose_Member(Call& call) {
    if (_Run.faults.IsStopped() || is_PutOff(call)) return false;
    // One that a scope package brought in only now catches up before the next takes its turn.
    for (const LoadPhase phase : {LoadPhase::Used, LoadPhase::Scoped, LoadPhase::Completed,
                                  LoadPhase::Extended, LoadPhase::Checked}) {
        std::size_t& next = call.next[static_cast<std::size_t>(phase)];
        while (next < _Run.created.size() && _Run.created[next]->HasReached(phase)) ++next;
        if (next == _Run.created.size()) continue;
        if (phase == LoadPhase::Completed && next == call.load->FirstMember()) share_Unknown(next);
        if (call.current != _Run.created[next]) call.current->Pause();
        call.current = _Run.created[next];
        call.phase = phase;
        return true;
    }
    return false;
}

/// Whether the load leads to one that began before it: that one has the last word.
bool PackageLoadStack::is_PutOff(const Call& call) const {
    const bool hasMembers = _Run.created.size() > call.load->FirstMember();
    return hasMembers && call.load->Low() < call.load->Order() && !_Run.faults.IsStopped();
}

void PackageLoadStack::end_Call(const Call& call) {
    _Run.shortage.Check();
    const std::size_t firstMember = call.load->FirstMember();
    const bool isAlone = _Run.created.size() == firstMember + (call.load->IsCreated() ? 1 : 0);
    if (!isAlone) call.current->Pause();
    bool isFailed = Failed(call.load->Result());
    for (std::size_t index = firstMember; index < _Run.created.size(); ++index) {
        isFailed = isFailed || Failed(_Run.created[index]->Result());
    }
    if (isFailed) {
        fail_Ring(firstMember, call.load->Order());
    } else {
        finish_Ring(*call.load, firstMember);
    }
}

/// The tuning documents of all members are read, and their blocks computed together, before the first of
/// them is done.
void PackageLoadStack::finish_Ring(const PackageLoad& load, std::size_t firstMember) {
    const std::vector<PackageLoad*> members(_Run.created.begin() + static_cast<std::ptrdiff_t>(firstMember),
                                            _Run.created.end());
    std::vector<TuningReading*> tunings;
    for (PackageLoad* const member : members) {
        member->ReadTuning();
        if (member->Tuning()->Result() == S_OK) tunings.push_back(member->Tuning());
        if (members.size() > 1) member->Pause();
    }
    if (!tunings.empty()) {
        const ZanDicTrace::DocumentScope document;
        TuningReading::Compute(tunings);
    }
    for (PackageLoad* const member : members) member->EndTuning();
    _Run.shortage.Check();  // from here on nothing fails
    _Run.created.resize(firstMember);
    for (PackageLoad* const member : members) member->Finish();
    if (!load.IsOver()) _LOADS[load.Order()]->Finish();
}

/// Takes the members out, the one created last first.
void PackageLoadStack::fail_Ring(std::size_t firstMember, std::size_t order) {
    int cause = 0;
    for (std::size_t index = firstMember; index < _Run.created.size() && cause == 0; ++index) {
        cause = _Run.created[index]->FirstFailure();
    }
    while (_Run.created.size() > firstMember) {
        PackageLoad* const member = _Run.created.back();
        _Run.created.pop_back();
        member->Fail(cause);
    }
    for (std::size_t index = _LOADS.size(); index > order; --index) {
        if (!_LOADS[index - 1]->IsOver()) _LOADS[index - 1]->Fail(cause);
    }
}

/// Each member of a ring needs what any of them needs.
void PackageLoadStack::share_Unknown(std::size_t firstMember) {
    int cause = 0;
    for (std::size_t index = firstMember; index < _Run.created.size() && cause == 0; ++index) {
        cause = _Run.created[index]->UnknownCause();
    }
    for (std::size_t index = firstMember; cause != 0 && index < _Run.created.size(); ++index) {
        _Run.created[index]->SetUnknownCause(cause);
    }
}
