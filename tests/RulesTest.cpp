#include "Rules.h"

#include <algorithm>
#include <set>

#include "CheckFixture.h"

namespace {

/// What a dictionary only refuses when a program has made something before: no document breaks these rules.
const std::set<std::string_view> kOfPrograms = {"package-not-created", "not-created"};

TEST(RulesTest, EachCodeOfTheReaderHasARow) {
    const auto rules = tool::RulesOfReading();

    ASSERT_GE(rules.size(), static_cast<std::size_t>(kZanDicDiagnosticCodeCount));
    for (int code = 0; code < kZanDicDiagnosticCodeCount; ++code) {
        EXPECT_EQ(rules[static_cast<std::size_t>(code)].code,
                  ZanDicDiagnosticName(static_cast<ZanDicDiagnosticCode>(code)));
    }
}

TEST(RulesTest, AllRulesAreSortedAndEachCodeIsThereOnce) {
    const std::vector<const tool::Rule*> rules = tool::AllRules();

    EXPECT_EQ(std::adjacent_find(rules.begin(), rules.end(),
                                 [](const tool::Rule* a, const tool::Rule* b) { return a->code >= b->code; }),
              rules.end());
    EXPECT_EQ(rules.size(), tool::RulesOfReading().size() + tool::RulesOfModelling().size());
}

TEST(RulesTest, ARuleIsFoundByItsCode) {
    const tool::Rule* const rule = tool::FindRule("duplicate-uuid");

    ASSERT_NE(rule, nullptr);
    EXPECT_EQ(rule->title, "two elements have the same UUID");
    EXPECT_EQ(tool::FindRule("duplicate"), nullptr);
}

std::vector<const tool::Rule*> RulesWithExamples() {
    std::vector<const tool::Rule*> rules = tool::AllRules();
    std::erase_if(rules, [](const tool::Rule* rule) { return kOfPrograms.contains(rule->code); });
    return rules;
}

class RuleTest : public CheckFixture, public ::testing::WithParamInterface<const tool::Rule*> {
protected:
    /// Makes the files of an example; Rules.h says what it looks like.
    void MakeExample(std::string_view example) const {
        if (!example.starts_with("==")) return MakeFile("Parts.metadata", example);
        while (!example.empty()) {
            const std::size_t end = example.find('\n');
            const std::string_view name = example.substr(3, end - 3);
            example.remove_prefix(end + 1);
            const std::size_t next = std::min(example.find("== "), example.size());
            MakeFile(name, example.substr(0, next));
            example.remove_prefix(next);
        }
    }

    tool::CheckResult CheckExample(std::string_view example) {
        MakeExample(example);
        const std::string own = Directory().Path();
        return CheckPath(own + ":" + own + "/old", true);
    }

private:
    void MakeFile(std::string_view name, std::string_view content) const {
        std::string document(content);
        const bool isWhole =
            name != "Parts.metadata" || content.starts_with("<Package") || content.starts_with("<package");
        if (!isWhole) {
            document = "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\">\n" + document +
                       "\n</Package>\n";
        }
        if (name.find('/') != name.npos) std::filesystem::create_directory(Directory().Path("old"));
        Directory().MakeFile(name, document);
    }
};

TEST_P(RuleTest, TheWrongExampleBreaksIt) {
    const tool::CheckResult result = CheckExample(GetParam()->wrong);

    const auto broken = std::find_if(result.findings.begin(), result.findings.end(),
                                     [](const tool::Finding& each) { return each.code == GetParam()->code; });
    ASSERT_NE(broken, result.findings.end()) << Summary(result.findings);
    EXPECT_EQ(broken->severity, GetParam()->severity);
}

TEST_P(RuleTest, TheWrongExampleBreaksNoOther) {
    const tool::CheckResult result = CheckExample(GetParam()->wrong);

    for (const tool::Finding& finding : result.findings) {
        const bool isCauseOfIt =
            std::any_of(result.findings.begin(), result.findings.end(), [&](const auto& each) {
                return each.cause != tool::Finding::kNone && &result.findings[each.cause] == &finding;
            });
        EXPECT_TRUE(finding.code == GetParam()->code || isCauseOfIt || finding.cause != tool::Finding::kNone)
            << Summary(result.findings);
    }
}

TEST_P(RuleTest, TheRightExampleBreaksNone) {
    EXPECT_EQ(Summary(CheckExample(GetParam()->right).findings), "");
}

TEST_P(RuleTest, TheTextsFitATerminal) {
    const tool::Rule& rule = *GetParam();
    EXPECT_FALSE(rule.title.empty());
    EXPECT_FALSE(rule.title.ends_with('.'));
    EXPECT_TRUE(rule.words.ends_with('.'));
    for (std::string_view text : {rule.title, rule.words, rule.wrong, rule.right}) {
        EXPECT_FALSE(text.ends_with('\n'));
        while (!text.empty()) {
            const std::size_t end = std::min(text.find('\n'), text.size());
            const bool isOneWord = text.substr(0, end).find_last_of(' ') < 20;
            EXPECT_TRUE(end <= 76 || isOneWord) << text.substr(0, end);
            text.remove_prefix(std::min(end + 1, text.size()));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Rules, RuleTest, ::testing::ValuesIn(RulesWithExamples()), [](const auto& rule) {
    std::string name(rule.param->code);
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

}  // namespace
