#include "ZELStackTrace.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

struct FreeName {
    void operator()(char* name) const noexcept { std::free(name); }
};

void WriteCall(int number, void* address) noexcept {
    Dl_info place{};
    if (dladdr(address, &place) == 0) {
        std::fprintf(stderr, "#%d %p\n", number, address);
        return;
    }
    const char* const module = place.dli_fname != nullptr ? place.dli_fname : "?";
    if (place.dli_sname == nullptr) {
        std::fprintf(stderr, "#%d %p in %s\n", number, address, module);
        return;
    }
    const std::unique_ptr<char, FreeName> readable(
        abi::__cxa_demangle(place.dli_sname, nullptr, nullptr, nullptr));
    const auto offset = static_cast<const char*>(address) - static_cast<const char*>(place.dli_saddr);
    std::fprintf(stderr, "#%d %p %s+%#tx in %s\n", number, address,
                 readable != nullptr ? readable.get() : place.dli_sname, offset, module);
}

}  // namespace

void ZELPrintStackTrace() noexcept {
    constexpr int kDeepest = 64;
    void* addresses[kDeepest + 1];
    const int count = backtrace(addresses, kDeepest + 1);

    std::fflush(stdout);
    // The first call is this function itself.
    for (int index = 1; index < count; ++index) WriteCall(index, addresses[index]);
}
