// Prints the nanoseconds of an access that has to wait for the one before it, in as much memory as fits into
// a cache that cores share: scripts/bench tells by them whether something else is at work on the machine.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <numeric>
#include <random>
#include <vector>

namespace {

constexpr std::size_t kLines = std::size_t{128} * 1024;  ///< 8 MB: more than the own caches of a core hold

/// A line of the cache that names the next one.
struct alignas(64) Line {
    std::uint32_t next = 0;
};

}  // namespace

int main() {
    std::vector<std::uint32_t> order(kLines);
    std::iota(order.begin(), order.end(), 0U);
    std::shuffle(order.begin(), order.end(), std::mt19937(1));
    std::vector<Line> lines(kLines);
    for (std::size_t index = 0; index < kLines; ++index) {
        lines[order[index]].next = order[(index + 1) % kLines];
    }
    std::uint32_t at = 0;
    double nanoseconds = 0;
    for (const bool isMeasured : {false, true}) {
        const auto start = std::chrono::steady_clock::now();
        for (std::size_t step = 0; step < kLines; ++step) at = lines[at].next;
        const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
        if (isMeasured) nanoseconds = time.count();
    }
    std::printf("%.2f\n", nanoseconds / kLines);
    return at == 0 ? 0 : 1;
}
