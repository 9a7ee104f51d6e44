#include "FindingList.h"

#include <gtest/gtest.h>

namespace {

using tool::Finding;
using tool::Findings;

Finding Make(const std::string& file, int line, std::size_t cause = Finding::kNone,
             const std::string& text = "text") {
    Finding finding;
    finding.code = "code";
    finding.at = {file, {line, 1}};
    finding.text = text;
    finding.cause = cause;
    return finding;
}

/// "FILE:LINE" of each, with "<N" for its cause.
std::string Text(const Findings& findings) {
    std::string text;
    for (const Finding& each : findings) {
        text += each.at.file + ":" + std::to_string(each.at.place.line);
        if (each.cause != Finding::kNone) text += "<" + std::to_string(each.cause);
        text += " ";
    }
    return text;
}

TEST(FindingListTest, ArrangeSortsByPlaceAndCausesFollow) {
    Findings findings = {Make("b", 2), Make("b", 1, 0), Make("a", 9, 1)};

    tool::Arrange(findings);

    EXPECT_EQ(Text(findings), "a:9<1 b:1<2 b:2 ");
}

TEST(FindingListTest, ArrangeKeepsOneOfThoseThatSayTheSame) {
    Findings findings = {Make("a", 1), Make("a", 2, 0), Make("a", 1), Make("a", 2, 2),
                         Make("a", 1, Finding::kNone, "other")};

    tool::Arrange(findings);

    EXPECT_EQ(Text(findings), "a:1 a:1 a:2<1 ");
}

TEST(FindingListTest, ArrangePutsTheErrorOfAPlaceFirst) {
    Findings findings = {Make("a", 1), Make("a", 1)};
    findings[1].severity = ZanDicSeverity::Error;

    tool::Arrange(findings);

    EXPECT_EQ(findings[0].severity, ZanDicSeverity::Error);
    EXPECT_EQ(findings[1].severity, ZanDicSeverity::Warning);
}

TEST(FindingListTest, ArrangeMakesNothingItsOwnCause) {
    Findings findings = {Make("a", 1), Make("a", 1, 0)};

    tool::Arrange(findings);

    EXPECT_EQ(Text(findings), "a:1 ");
}

TEST(FindingListTest, AppendKeepsTheCausesOfBoth) {
    Findings findings = {Make("a", 1), Make("a", 2, 0)};

    tool::Append(findings, {Make("b", 1), Make("b", 2, 0)});

    EXPECT_EQ(Text(findings), "a:1 a:2<0 b:1 b:2<2 ");
}

TEST(FindingListTest, WhatFollowedFromSomethingErasedStandsForItself) {
    Findings findings = {Make("a", 1), Make("b", 1), Make("b", 2, 0), Make("b", 3, 1)};

    tool::Erase(findings, [](const Finding& each) { return each.at.file == "a"; });

    EXPECT_EQ(Text(findings), "b:1 b:2 b:3<0 ");
}

TEST(FindingListTest, ConsequencesGoWithTheirCauseHoweverFar) {
    Findings findings = {Make("a", 1), Make("a", 2, 0), Make("a", 3, 1), Make("a", 4)};

    tool::EraseWithConsequences(findings, {true, false, false, false});

    EXPECT_EQ(Text(findings), "a:4 ");
}

TEST(FindingListTest, ConsequencesAreCountedAtTheFirstCause) {
    const Findings findings = {Make("a", 1), Make("a", 2, 0), Make("a", 3, 1), Make("a", 4)};

    EXPECT_EQ(tool::CountConsequences(findings), (std::vector<std::size_t>{2, 0, 0, 0}));
}

}  // namespace
