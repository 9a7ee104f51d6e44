// What the rules take for a UUID, against what the reader makes of it.
#include "RuleWords.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

#include "HexToBinary.h"

namespace {

using tool::IsUuidText;

TEST(RuleWordsTest, TheUsualFormsAreUuids) {
    EXPECT_TRUE(IsUuidText("1F668CA2-4BA1-4075-82660C8D11C0A4FF"));
    EXPECT_TRUE(IsUuidText("1f668ca24ba1407582660c8d11c0a4ff"));
    EXPECT_TRUE(IsUuidText("1F668CA2-4BA1-4075-8266-0C8D11C0A4FF"));
    EXPECT_TRUE(IsUuidText("-1F668CA24BA1407582660C8D11C0A4FF"));
    EXPECT_TRUE(IsUuidText("1F-66-8C-A2-4B-A1-40-75-82-66-0C-8D-11-C0-A4-FF-"));
}

TEST(RuleWordsTest, WhatHasAnotherDigitTooFewOrTooManyIsNone) {
    EXPECT_FALSE(IsUuidText(""));
    EXPECT_FALSE(IsUuidText("-"));
    EXPECT_FALSE(IsUuidText("1F668CA2-4BA1-4075-82660C8D11C0A4F"));
    EXPECT_FALSE(IsUuidText("1F668CA2-4BA1-4075-82660C8D11C0A4FF0"));
    EXPECT_FALSE(IsUuidText("1F668CA2-4BA1-4075-82660C8D11C0A4FG"));
    EXPECT_FALSE(IsUuidText("1F668CA2--4BA1-4075-82660C8D11C0A4F"));
    EXPECT_FALSE(IsUuidText("1-F668CA2-4BA1-4075-82660C8D11C0A4FF"));
    EXPECT_FALSE(IsUuidText("{1F668CA2-4BA1-4075-8266-0C8D11C0A4FF}"));
}

RC_GTEST_PROP(RuleWordsTest, DashesBetweenBytesDoNotMatter, ()) {
    const auto bytes = *rc::gen::container<std::string>(32, rc::gen::elementOf(std::string("019AF")));
    std::string text = *rc::gen::arbitrary<bool>() ? "-" : "";
    for (std::size_t at = 0; at < bytes.size(); at += 2) {
        text += bytes.substr(at, 2);
        if (*rc::gen::arbitrary<bool>()) text += '-';
    }

    RC_ASSERT(IsUuidText(text));
    RC_ASSERT(UuidFromText(text).HexText() == bytes);
    RC_ASSERT(!IsUuidText(text + "0"));
    RC_ASSERT(!IsUuidText(text.substr(0, text.find_last_not_of('-'))));
}

}  // namespace
