#include "AttributeWord.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct NamedRow {
    std::string_view name;
};

constexpr NamedRow kRows[] = {
    {"Name"}, {"Uuid"}, {"ExpositionLevel"}, {"SixteenLettersXX"}, {"SeventeenLettersX"}};
constexpr WordIndex kRowIndex{kRows};
constexpr std::string_view kYes = "Yes";

/// A text with something behind it, as in a document.
class DocumentText {
public:
    explicit DocumentText(std::string_view text) : _Whole(text), _Length(text.size()) {
        _Whole.append(32, '"');
    }
    std::string_view View() const { return std::string_view(_Whole).substr(0, _Length); }

private:
    std::string _Whole;
    std::size_t _Length;
};

TEST(AttributeWordTest, FindsEachRowByItsWord) {
    for (const NamedRow& row : kRows) {
        const NamedRow* const found = kRowIndex.Find(DocumentText(row.name).View());

        ASSERT_EQ(found, &row) << row.name;
        EXPECT_EQ(kRowIndex.IndexOf(*found), static_cast<std::size_t>(&row - kRows));
    }
}

TEST(AttributeWordTest, FindsNoRowForAnyOtherText) {
    for (const std::string_view text :
         {"", "N", "Nam", "name", "Name ", "Names", "ExpositionLeve", "ExpositionLevels", "SixteenLettersX",
          "SixteenLettersXY", "SixteenLettersXXX", "SeventeenLettersY", "SeventeenLettersXX"}) {
        EXPECT_EQ(kRowIndex.Find(DocumentText(text).View()), nullptr) << text;
    }
}

TEST(AttributeWordTest, TellsAWordFromOthers) {
    EXPECT_TRUE(IsWord<kYes>(DocumentText("Yes").View()));
    EXPECT_FALSE(IsWord<kYes>(DocumentText("").View()));
    EXPECT_FALSE(IsWord<kYes>(DocumentText("yes").View()));
    EXPECT_FALSE(IsWord<kYes>(DocumentText("Yess").View()));
    EXPECT_FALSE(IsWord<kYes>(DocumentText("Ye").View()));
}

}  // namespace
