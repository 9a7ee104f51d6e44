// Documents of any bytes: pugixml and libxml2 must see what ZELVBTXMLDocument sees, departures apart.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "ZELXMLOracles.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string disagreement = ZELXMLDisagreement({reinterpret_cast<const char*>(data), size});
    if (!disagreement.empty()) {
        std::fprintf(stderr, "%s\n", disagreement.c_str());
        std::abort();
    }
    return 0;
}
