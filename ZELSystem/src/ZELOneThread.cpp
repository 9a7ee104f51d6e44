#include "ZELOneThread.h"

#include <pthread.h>

#include <atomic>

#include "ZELFatalError.h"

namespace {

enum class Ownership { None, BeingTaken, Taken };

constinit std::atomic<Ownership> ownership = Ownership::None;
pthread_t owner;  ///< once it is taken

}  // namespace

void ZELOwnThread() noexcept {
    if (ownership.load(std::memory_order_relaxed) != Ownership::None) return;
    Ownership none = Ownership::None;
    if (!ownership.compare_exchange_strong(none, Ownership::BeingTaken)) return;
    owner = pthread_self();
    ownership.store(Ownership::Taken, std::memory_order_release);
}

void ZELRequireThread(const char* operation) noexcept {
    if (ownership.load(std::memory_order_acquire) != Ownership::Taken) return;
    if (pthread_equal(owner, pthread_self()) != 0) return;
    ZELFatalError(
        "Called from a second thread: the dictionary is for the one that first asked for its manager",
        operation, 24);
}
