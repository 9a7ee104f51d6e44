#include "ZanDicTuning.h"

#include <utility>

#include "ZanDicTrace.h"

namespace {

constinit ZanDicBlockFaultListener* faultListener = nullptr;

}  // namespace

void ZanDicTellBlockFault(const ZanDicBlockFault& fault) {
    if (faultListener != nullptr) {
        faultListener->OnBlockFault(fault);
        return;
    }
    for (const std::string& line : fault.lines) ZanDicWriteError(line);
}

ZanDicBlockFaultScope::ZanDicBlockFaultScope(ZanDicBlockFaultListener* listener)
    : _Before(std::exchange(faultListener, listener)) {}

ZanDicBlockFaultScope::~ZanDicBlockFaultScope() { faultListener = _Before; }
