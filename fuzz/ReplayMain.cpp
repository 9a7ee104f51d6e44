// Gives files to a fuzz target, one after the other: for compilers that have no fuzzer. Directories stand for
// the files in them. Says how many it gave; a finding ends the process, after the name of its file.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) __attribute__((weak));

namespace {

namespace fs = std::filesystem;

int given = 0;

void Give(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    std::fprintf(stderr, "%s\n", path.c_str());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++given;
}

}  // namespace

int main(int argc, char** argv) {
    if (LLVMFuzzerInitialize != nullptr) LLVMFuzzerInitialize(&argc, &argv);
    for (int index = 1; index < argc; ++index) {
        const fs::path path(argv[index]);
        if (!fs::exists(path)) {
            std::fprintf(stderr, "%s is not there\n", argv[index]);
            return 2;
        }
        if (!fs::is_directory(path)) {
            Give(path);
            continue;
        }
        for (const auto& entry : fs::recursive_directory_iterator(path)) {
            if (entry.is_regular_file()) Give(entry.path());
        }
    }
    std::printf("%d inputs, no finding\n", given);
    return given > 0 ? 0 : 1;
}
