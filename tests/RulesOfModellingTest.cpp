// The table of the rules about what a load accepts: each example does what it is there for.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "Rules.h"
#include "RulesFixture.h"

namespace {

/// An example as documents: see Rules.h.
std::string WholeExample(std::string_view example) {
    if (example.starts_with("== ")) return std::string(example);
    if (example.starts_with("<Package")) return "== Parts.metadata\n" + std::string(example);
    return "== Parts.metadata\n<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\">\n" +
           std::string(example) + "\n</Package>";
}

class RulesOfModellingTest : public RulesFixture, public ::testing::WithParamInterface<const tool::Rule*> {
protected:
    tool::Findings CheckExample(std::string_view example) {
        const std::string whole = WholeExample(example);
        for (std::size_t begin = 0; begin != std::string::npos;) {
            const std::size_t next = whole.find("\n== ", begin);
            const std::string part = whole.substr(begin, next == std::string::npos ? next : next - begin + 1);
            const std::size_t endOfLine = part.find('\n');
            Make(part.substr(3, endOfLine - 3), part.substr(endOfLine + 1) + "\n");
            begin = next == std::string::npos ? next : next + 1;
        }
        return CheckParts();
    }
};

TEST_P(RulesOfModellingTest, TheWrongExampleGivesTheCodeAndNothingElse) {
    const tool::Findings findings = CheckExample(GetParam()->wrong);

    ASSERT_EQ(findings.size(), 1U) << TextOf(findings);
    EXPECT_EQ(findings.front().code, GetParam()->code);
    EXPECT_EQ(findings.front().severity, GetParam()->severity);
    EXPECT_TRUE(IsLoaded("Parts"));
}

TEST_P(RulesOfModellingTest, TheRightExampleGivesNothing) {
    const tool::Findings findings = CheckExample(GetParam()->right);

    EXPECT_EQ(TextOf(findings), "");
    EXPECT_TRUE(IsLoaded("Parts"));
}

std::vector<const tool::Rule*> RulesToTry() {
    std::vector<const tool::Rule*> rules;
    for (const tool::Rule& rule : tool::RulesOfModelling()) rules.push_back(&rule);
    return rules;
}

INSTANTIATE_TEST_SUITE_P(Rules, RulesOfModellingTest, ::testing::ValuesIn(RulesToTry()),
                         [](const auto& rule) {
                             std::string name(rule.param->code);
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

}  // namespace
