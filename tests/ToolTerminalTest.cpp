// Colours: on a terminal only, and not where they are not wanted.
#include <gmock/gmock.h>

#include "ToolRunner.h"

namespace {

using testing::HasSubstr;
using testing::Not;

class ToolTerminalTest : public ToolTest {
protected:
    /// Runs the tool on a terminal. \returns what the terminal is given.
    std::string OnTerminal(const std::string& settings, const std::string& arguments) const {
        const std::string file = Own().Path("typescript");
        const std::string line = "env -u NO_COLOR TERM=xterm " + settings +
                                 " script -qec '\"$TOOL\" --quiet " + "--path \"$SAMPLES\" " + arguments +
                                 "' '" + file + "' < /dev/null > /dev/null";
        EXPECT_GE(Shell(line), 0);
        return ContentOf(file);
    }

    static constexpr const char* kEscape = "\033[";
};

TEST_F(ToolTerminalTest, HeadingsAndLabelsStandOut) {
    const std::string shown = OnTerminal("", "show BomItems::BomPart");

    EXPECT_THAT(shown, HasSubstr("\033[1mClass BomItems::BomPart\033[0m"));
    EXPECT_THAT(shown, HasSubstr("\033[1mOwn attributes (7)\033[0m"));
    EXPECT_THAT(shown, HasSubstr("UUID"));
}

TEST_F(ToolTerminalTest, ErrorsStandOut) {
    EXPECT_THAT(OnTerminal("", "show BomNothing"), HasSubstr("\033[1;31merror:\033[0m"));
}

TEST_F(ToolTerminalTest, NothingIsColouredWhereThatIsNotWanted) {
    for (const char* arguments :
         {"show BomItems::BomPart", "tree", "find *", "stats", "help", "show BomNothing"}) {
        const std::string shown = OnTerminal("NO_COLOR=1", arguments);

        EXPECT_THAT(shown, Not(HasSubstr(kEscape))) << arguments;
    }
    EXPECT_THAT(OnTerminal("TERM=dumb", "show BomItems"), Not(HasSubstr(kEscape)));
}

TEST_F(ToolTerminalTest, AnEmptyVariableIsNone) {
    EXPECT_THAT(OnTerminal("NO_COLOR=", "show BomItems::BomPart"), HasSubstr(kEscape));
}

TEST_F(ToolTerminalTest, AFileIsNoTerminal) {
    EXPECT_THAT(OnSample({"show", "BomItems::BomPart"}).out, Not(HasSubstr(kEscape)));
    EXPECT_THAT(OnSample({"show", "BomNothing"}).err, Not(HasSubstr(kEscape)));
}

TEST_F(ToolTerminalTest, TheLayoutIsTheSameWithColours) {
    std::string shown = OnTerminal("", "show BomItems::BomPart");
    for (std::size_t at = 0; (at = shown.find("\033[", at)) != shown.npos;) {
        shown.erase(at, shown.find('m', at) + 1 - at);
    }
    std::erase(shown, '\r');

    EXPECT_THAT(shown, HasSubstr(ExpectedOutput("show-class.txt")));
}

}  // namespace
