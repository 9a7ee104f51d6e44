#include "ZanDicDiagnostic.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

namespace {

class QuietObserver final : public ZanDicDiagnosticObserver {
public:
    bool OnDiagnostic(const ZanDicDiagnostic&) override { return false; }
};

}  // namespace

TEST(ZanDicDiagnosticTest, EveryCodeHasAWordOfItsOwn) {
    constexpr int kCodes = kZanDicDiagnosticCodeCount;
    std::set<std::string_view> names;
    for (int code = 0; code < kCodes; ++code) {
        names.insert(ZanDicDiagnosticName(static_cast<ZanDicDiagnosticCode>(code)));
    }

    EXPECT_EQ(names.size(), static_cast<std::size_t>(kCodes));
    EXPECT_EQ(names.count(""), 0U);
    EXPECT_EQ(names.count("?"), 0U);
}

TEST(ZanDicDiagnosticTest, WordsAreStable) {
    EXPECT_EQ(ZanDicDiagnosticName(ZanDicDiagnosticCode::FileNotFound), "file-not-found");
    EXPECT_EQ(ZanDicDiagnosticName(ZanDicDiagnosticCode::InvalidPackageName), "invalid-package-name");
    EXPECT_EQ(ZanDicDiagnosticName(ZanDicDiagnosticCode::MissingAttribute), "missing-attribute");
    EXPECT_EQ(ZanDicDiagnosticName(ZanDicDiagnosticCode::UnknownTag), "unknown-tag");
    EXPECT_EQ(ZanDicDiagnosticName(ZanDicDiagnosticCode::DuplicateUuid), "duplicate-uuid");
    EXPECT_EQ(ZanDicDiagnosticName(ZanDicDiagnosticCode::ReferenceNotFound), "reference-not-found");
    EXPECT_EQ(ZanDicDiagnosticName(ZanDicDiagnosticCode::InvalidRedefinition), "invalid-redefinition");
    EXPECT_EQ(ZanDicDiagnosticName(ZanDicDiagnosticCode::InvalidBlock), "invalid-block");
    EXPECT_EQ(ZanDicDiagnosticName(static_cast<ZanDicDiagnosticCode>(200)), "?");
}

TEST(ZanDicDiagnosticTest, SettingAnObserverGivesTheOneBefore) {
    QuietObserver observer;

    EXPECT_EQ(ZanDicSetDiagnosticObserver(&observer), nullptr);
    EXPECT_EQ(ZanDicGetDiagnosticObserver(), &observer);
    EXPECT_EQ(ZanDicSetDiagnosticObserver(nullptr), &observer);
    EXPECT_EQ(ZanDicGetDiagnosticObserver(), nullptr);
}
