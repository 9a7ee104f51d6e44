#include "ZanDicProfiling.h"

namespace {

constinit ZanDicProfiler* theProfiler = nullptr;

}  // namespace

ZanDicProfiler* ZanDicSetProfiler(ZanDicProfiler* profiler) noexcept {
    ZanDicProfiler* const before = theProfiler;
    theProfiler = profiler;
    return before;
}

void ZanDicProfiling::StepIn(std::string_view operation, std::string_view subject) {
    if (theProfiler != nullptr) theProfiler->StepIn(operation, subject);
}

void ZanDicProfiling::StepOut(std::string_view operation, std::string_view subject) {
    if (theProfiler != nullptr) theProfiler->StepOut(operation, subject);
}

void ZanDicProfiling::ResetAll() {
    if (theProfiler != nullptr) theProfiler->ResetAll();
}

std::string ZanDicProfiling::PhaseName(std::string_view operation, std::string_view subject) {
    std::string name(operation);
    name.append(" [").append(subject).append("]");
    return name;
}
