// Documents of any bytes, laid out: what comes out is a document of the same elements and attributes, the
// same when it is laid out again, and keeping pieces changes nothing of what is read.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "Formatted.h"
#include "ZELVBTXMLNode.h"

namespace {

using Document = std::unique_ptr<ZELVBTXMLDocument>;

void Expect(bool isSo, const char* what) {
    if (isSo) return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

Document Read(std::string_view text, ZELVBTXMLKeep keep) {
    return ZELVBTXMLDocument::CreateFromMemory(text, nullptr, keep);
}

void ExpectSameElements(const ZELVBTXMLDocument& a, const ZELVBTXMLDocument& b) {
    Expect(a.ElementCount() == b.ElementCount(), "another number of elements");
    Expect(a.AttributeCount() == b.AttributeCount(), "another number of attributes");
    for (std::uint32_t index = 0; index < a.ElementCount(); ++index) {
        Expect(a.ElementAt(index).getTag() == b.ElementAt(index).getTag(), "another tag");
        Expect(a.ElementAt(index).Attributes().Size() == b.ElementAt(index).Attributes().Size(),
               "another number of attributes in a tag");
        Expect(a.ElementAt(index).Children().Count() == b.ElementAt(index).Children().Count(),
               "another number of children");
    }
    for (std::uint32_t index = 0; index < a.AttributeCount(); ++index) {
        Expect(a.AttributeAt(index).Name() == b.AttributeAt(index).Name(), "another name");
        Expect(a.AttributeAt(index).Value() == b.AttributeAt(index).Value(), "another value");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const Document plain = Read(text, ZELVBTXMLKeep::Nothing);
    const Document kept = Read(text, ZELVBTXMLKeep::Pieces);
    Expect((plain == nullptr) == (kept == nullptr),
           "refused only when its pieces are kept, or only when not");
    if (kept == nullptr) return 0;
    ExpectSameElements(*plain, *kept);

    const std::string once = tool::Formatted(*kept);
    const Document laidOut = Read(once, ZELVBTXMLKeep::Pieces);
    Expect(laidOut != nullptr, "no document any more");
    ExpectSameElements(*kept, *laidOut);
    Expect(tool::Formatted(*laidOut) == once, "another layout the second time");
    return 0;
}
