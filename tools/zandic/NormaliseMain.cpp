// Normalises the dump on standard input and writes it to standard output, for scripts that compare models.
#include <cstdio>
#include <iostream>
#include <iterator>
#include <string>

#include "Normalised.h"

int main() {
    const std::string dump{std::istreambuf_iterator<char>(std::cin), {}};
    const std::string normalised = tool::Normalised(dump);
    const bool isWritten = std::fwrite(normalised.data(), 1, normalised.size(), stdout) == normalised.size();
    return isWritten && std::fflush(stdout) == 0 ? 0 : 1;
}
