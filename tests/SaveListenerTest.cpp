// A program that changes the model when a save tells it something.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "OXMIDicClass.h"
#include "OXMIDicPackage.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicSimple.h"
#include "SaveFixture.h"

namespace {

using testing::HasSubstr;

/// Does something at the first line that begins as it says, and drops all lines.
class Listener final : public ZELLineSink {
public:
    Listener(std::string_view begin, std::function<void()> work)
        : _Begin(begin), _Work(std::move(work)), _Before(ZELSetLineSink(this)) {}
    ~Listener() { ZELSetLineSink(_Before); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    void Write(const ZELLine& line) override {
        if (!_Work || !line.text.starts_with(_Begin)) return;
        const std::function<void()> work = std::exchange(_Work, nullptr);
        work();
    }

private:
    std::string _Begin;
    std::function<void()> _Work;
    ZELLineSink* _Before;
};

class SaveListenerTest : public SaveFixture {
protected:
    SaveListenerTest() {
        const ZELString packageName("P");
        const ZELString className("C");
        const ZELString domain("VALKOR");
        const ZELDbBinary uuids[] = {TestUuid(1), TestUuid(2)};
        Manager().CreatePackage(&packageName, &uuids[0], &domain, package.Out());
        Held<OXMIDicClass> element;
        package->CreateClass(&className, &uuids[1], element.Out());
        Held<OXMIDicPrimitive> text;
        Manager().GetPrimitive(OXMDicPRIMITIVEType_String, text.Out());
        for (unsigned number = 3; number < 20; ++number) {
            const ZELString name(("S" + std::to_string(number)).c_str());
            const ZELDbBinary uuid = TestUuid(number);
            Held<OXMIDicSimple> simple;
            element->CreateSimple(&name, &uuid, simple.Out());
            simple->SetPrimitive(text.Get());
            const ZELUnicodeString alias("not \x01 allowed");
            simple->SetAlias(&alias);
        }
    }

    void RemoveTheClass() {
        const ZELString className("C");
        EXPECT_EQ(package->RemoveElement(&className), S_OK);
    }

    Held<OXMIDicPackage> package;
};

TEST_F(SaveListenerTest, AClassThatGoesAtAWarningIsWrittenAsFarAsItAnswers) {
    const Listener listener("OxmDicToXML:DisplaySimple", [this] { RemoveTheClass(); });

    const std::string text = SavedText("P");

    EXPECT_THAT(text, HasSubstr("<Simple Name=\"S3\" "));
    EXPECT_THAT(text, HasSubstr("<Simple Name=\"S19\" "));
    EXPECT_THAT(text, HasSubstr("  </Class>\n</Package>\n"));
}

TEST_F(SaveListenerTest, AClassThatGoesWhenItsWritingStartsIsWrittenAsFarAsItAnswers) {
    ZanDicSetTraceLevel(1);
    const Listener listener("OxmDicToXML:DisplayClass", [this] { RemoveTheClass(); });

    EXPECT_THAT(SavedText("P"), HasSubstr("<Class Name=\"C\" "));
}

}  // namespace
