// Normalises the dump on standard input and writes it to standard output, for scripts that compare models.
#include <array>
#include <cstdio>
#include <string>

#include "Normalised.h"

int main() {
    std::string dump;
    std::array<char, std::size_t{64} * 1024> piece;
    while (const std::size_t size = std::fread(piece.data(), 1, piece.size(), stdin)) {
        dump.append(piece.data(), size);
    }
    if (std::ferror(stdin) != 0) return 1;
    const std::string normalised = tool::Normalised(dump);
    const bool isWritten = std::fwrite(normalised.data(), 1, normalised.size(), stdout) == normalised.size();
    return isWritten && std::fflush(stdout) == 0 ? 0 : 1;
}
